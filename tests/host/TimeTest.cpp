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
