#include <maya/MGlobal.h>

#include <cstdio>
#include <string>
#include <utility>

#include "../HostState.h"

namespace mayahost {
namespace {

MessageEcho& echo() {
    static MessageEcho taken;
    return taken;
}

}  // namespace

void setMessageEcho(MessageEcho taker) { echo() = std::move(taker); }

namespace detail {

// Collected for the host's users and echoed the way Maya's batch mode prints them.
void showMessage(Message::Channel channel, const std::string& text, const std::string& line) {
    state().messages.push_back(Message{channel, text});
    if (echo())
        echo()(line);
    else
        std::fprintf(stderr, "%s\n", line.c_str());
}

}  // namespace detail
}  // namespace mayahost

OPENMAYA_NAMESPACE_OPEN

void MGlobal::displayError(const MString& theError) {
    mayahost::detail::showMessage(mayahost::Message::Channel::Error, theError.asChar(),
                                  std::string("// Error: ") + theError.asChar());
}

void MGlobal::displayWarning(const MString& theWarning) {
    mayahost::detail::showMessage(mayahost::Message::Channel::Warning, theWarning.asChar(),
                                  std::string("// Warning: ") + theWarning.asChar());
}

void MGlobal::displayInfo(const MString& theMessage) {
    mayahost::detail::showMessage(mayahost::Message::Channel::Info, theMessage.asChar(),
                                  theMessage.asChar());
}

OPENMAYA_NAMESPACE_CLOSE
