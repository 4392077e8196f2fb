// Messages shown through MGlobal and MStatus::perror: kept for the host's users and printed as
// Maya's batch mode prints them, on standard error or to whoever takes the lines.
#include <gtest/gtest.h>
#include <maya/MGlobal.h>
#include <maya/MStatus.h>
#include <mayahost/Host.h>

#include <string>
#include <vector>

namespace {

void showOneOfEach() {
    MGlobal::displayError("no fur");
    MGlobal::displayWarning("old cache");
    MGlobal::displayInfo("3 frames");
    MStatus(MStatus::kInvalidParameter).perror("setAttr");
}

const char* const kPrinted =
    "// Error: no fur\n"
    "// Warning: old cache\n"
    "3 frames\n"
    "setAttr: (kInvalidParameter): Object is incompatible with this method\n";

TEST(Messages, GoToWhoeverTakesTheLinesAndAreKeptAllTheSame) {
    mayahost::reset();
    std::string taken;
    mayahost::setMessageEcho([&taken](const std::string& line) { taken += line + "\n"; });
    testing::internal::CaptureStderr();
    showOneOfEach();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(taken, kPrinted);
    std::vector<std::string> kept;
    for (const mayahost::Message& message : mayahost::messages()) kept.push_back(message.text);
    EXPECT_EQ(kept, (std::vector<std::string>{"no fur", "old cache", "3 frames", "setAttr"}));

    mayahost::setMessageEcho(nullptr);
    taken.clear();
    testing::internal::CaptureStderr();
    showOneOfEach();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), kPrinted);
    EXPECT_EQ(taken, "");
    mayahost::reset();
}

}  // namespace
