// Scene time: the time1 node that every scene has, and its unit.
#include <maya/MTime.h>

#include "FurScene.h"

namespace {

class SceneTime : public HostTest {};

MTime outTime() { return mayahost::findPlug(mayahost::findNode("time1"), "outTime").asMTime(); }

}  // namespace

TEST_F(SceneTime, AFreshSceneHasTime1AtFrameOneInFilmUnits) {
    mayahost::NodeTypeInfo type;
    ASSERT_TRUE(mayahost::findNodeType("time", &type));
    EXPECT_FALSE(mayahost::findNode("time1").isNull());
    EXPECT_EQ(outTime().value(), 1.0);
    EXPECT_EQ(outTime().unit(), MTime::kFilm);
    EXPECT_EQ(MTime::uiUnit(), MTime::kFilm);
}

TEST_F(SceneTime, OutTimeFollowsTheCurrentTimeInTheUIUnit) {
    mayahost::setCurrentTime(MTime(0.5, MTime::kSeconds));
    EXPECT_EQ(outTime().value(), 12.0);
    EXPECT_EQ(outTime().unit(), MTime::kFilm);
    MTime::setUIUnit(MTime::kPALFrame);
    mayahost::setCurrentTime(MTime(2.0, MTime::kSeconds));
    EXPECT_EQ(outTime().value(), 50.0);
    EXPECT_EQ(outTime().unit(), MTime::kPALFrame);
}

TEST_F(SceneTime, ConnectedTimeReachesTheBridgeUnrounded) {
    loadBridge();
    mayahost::createNode("xrVellMayaVRay", "bridge");
    ASSERT_EQ(mayahost::connectAttr("time1.outTime", "bridge.currentTime"), MStatus::kSuccess);
    mayahost::setCurrentTime(MTime(1.0 / 3.0, MTime::kFilm));
    const MTime time = mayahost::findPlug(mayahost::findNode("bridge"), "currentTime").asMTime();
    EXPECT_EQ(time.value(), 1.0 / 3.0);
    EXPECT_EQ(time.unit(), MTime::kFilm);
}

TEST_F(SceneTime, ResetBringsBackAFreshTime1) {
    mayahost::setCurrentTime(MTime(40.0));
    ASSERT_EQ(mayahost::deleteNode(mayahost::findNode("time1")), MStatus::kSuccess);
    mayahost::reset();
    EXPECT_EQ(outTime().value(), 1.0);
    EXPECT_EQ(mayahost::currentTime().value(), 1.0);
}

namespace {

// Every unit's length in seconds, as numerator / denominator.
struct UnitCase {
    MTime::Unit unit;
    int value;  // the enumerator's value in Maya 2022
    double numerator;
    double denominator;
};

const UnitCase kUnits[] = {
    {MTime::kHours, 1, 3600, 1},
    {MTime::kMinutes, 2, 60, 1},
    {MTime::kSeconds, 3, 1, 1},
    {MTime::kMilliseconds, 4, 1, 1000},
    {MTime::kGames, 5, 1, 15},
    {MTime::kFilm, 6, 1, 24},
    {MTime::kPALFrame, 7, 1, 25},
    {MTime::kNTSCFrame, 8, 1, 30},
    {MTime::kShowScan, 9, 1, 48},
    {MTime::kPALField, 10, 1, 50},
    {MTime::kNTSCField, 11, 1, 60},
    {MTime::k2FPS, 12, 1, 2},
    {MTime::k3FPS, 13, 1, 3},
    {MTime::k4FPS, 14, 1, 4},
    {MTime::k5FPS, 15, 1, 5},
    {MTime::k6FPS, 16, 1, 6},
    {MTime::k8FPS, 17, 1, 8},
    {MTime::k10FPS, 18, 1, 10},
    {MTime::k12FPS, 19, 1, 12},
    {MTime::k16FPS, 20, 1, 16},
    {MTime::k20FPS, 21, 1, 20},
    {MTime::k40FPS, 22, 1, 40},
    {MTime::k75FPS, 23, 1, 75},
    {MTime::k80FPS, 24, 1, 80},
    {MTime::k100FPS, 25, 1, 100},
    {MTime::k120FPS, 26, 1, 120},
    {MTime::k125FPS, 27, 1, 125},
    {MTime::k150FPS, 28, 1, 150},
    {MTime::k200FPS, 29, 1, 200},
    {MTime::k240FPS, 30, 1, 240},
    {MTime::k250FPS, 31, 1, 250},
    {MTime::k300FPS, 32, 1, 300},
    {MTime::k375FPS, 33, 1, 375},
    {MTime::k400FPS, 34, 1, 400},
    {MTime::k500FPS, 35, 1, 500},
    {MTime::k600FPS, 36, 1, 600},
    {MTime::k750FPS, 37, 1, 750},
    {MTime::k1200FPS, 38, 1, 1200},
    {MTime::k1500FPS, 39, 1, 1500},
    {MTime::k2000FPS, 40, 1, 2000},
    {MTime::k3000FPS, 41, 1, 3000},
    {MTime::k6000FPS, 42, 1, 6000},
    {MTime::k23_976FPS, 43, 1001, 24000},
    {MTime::k29_97FPS, 44, 1001, 30000},
    {MTime::k29_97DF, 45, 1001, 30000},
    {MTime::k47_952FPS, 46, 1001, 48000},
    {MTime::k59_94FPS, 47, 1001, 60000},
    {MTime::k44100FPS, 48, 1, 44100},
    {MTime::k48000FPS, 49, 1, 48000},
    {MTime::k90FPS, 50, 1, 90},
};

TEST(TimeUnits, EveryUnitHasMayasValueAndConvertsThroughSeconds) {
    EXPECT_EQ(MTime::kUserDef, 51);
    EXPECT_EQ(MTime::kLast, 52);
    for (const UnitCase& from : kUnits) {
        EXPECT_EQ(static_cast<int>(from.unit), from.value);
        const MTime time(1001.5, from.unit);
        EXPECT_EQ(time.as(from.unit), 1001.5) << from.value;
        EXPECT_DOUBLE_EQ(time.as(MTime::kSeconds), 1001.5 * from.numerator / from.denominator)
            << from.value;
        for (const UnitCase& to : kUnits) {
            const double expected =
                1001.5 * from.numerator * to.denominator / (from.denominator * to.numerator);
            EXPECT_DOUBLE_EQ(time.as(to.unit), expected) << from.value << " to " << to.value;
        }
    }
}

TEST(TimeUnits, NtscRatesKeepTheirFramesExactly) {
    // Frame 1001 at 23.976 fps is 1001 * 1001 / 24000 s; back in its own rate it is 1001 again.
    const MTime frame(1001.0, MTime::k23_976FPS);
    EXPECT_EQ(MTime(frame.as(MTime::k47_952FPS), MTime::k47_952FPS).as(MTime::k23_976FPS), 1001.0);
    EXPECT_EQ(MTime(0.5, MTime::k29_97FPS).as(MTime::k59_94FPS), 1.0);
    EXPECT_EQ(MTime(1.0, MTime::kFilm).as(MTime::k23_976FPS), 1000.0 / 1001.0);
    EXPECT_EQ(MTime(1.0, MTime::kFilm).setUnit(MTime::kUserDef), MStatus::kInvalidParameter);
    EXPECT_EQ(MTime::setUIUnit(MTime::kInvalid), MStatus::kInvalidParameter);
}

}  // namespace
