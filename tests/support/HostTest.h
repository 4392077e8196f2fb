#pragma once
#include <gtest/gtest.h>
#include <mayahost/Host.h>

#include <string>
#include <vector>

// A fresh stand-in host for each test.
class HostTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Loads the bridge plug-in and fails the test if it does not load.
    void loadBridge();
    // The messages shown on one channel, in order.
    static std::vector<std::string> shown(mayahost::Message::Channel channel);
};

// Runs the action and returns what it wrote to the process's standard error stream.
template <class Action>
std::string stderrOf(Action action) {
    ::testing::internal::CaptureStderr();
    action();
    return ::testing::internal::GetCapturedStderr();
}

extern const char* const kBridgePath;
