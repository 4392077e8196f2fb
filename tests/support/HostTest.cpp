#include "HostTest.h"

const char* const kBridgePath = XRVELL_PLUGIN_PATH;

void HostTest::SetUp() { mayahost::reset(); }

void HostTest::TearDown() { mayahost::reset(); }

void HostTest::loadBridge() {
    const mayahost::PluginLoad load = mayahost::loadPlugin(kBridgePath);
    ASSERT_TRUE(load) << load.error;
}

std::vector<std::string> HostTest::shown(mayahost::Message::Channel channel) {
    std::vector<std::string> texts;
    for (const mayahost::Message& message : mayahost::messages())
        if (message.channel == channel) texts.push_back(message.text);
    return texts;
}
