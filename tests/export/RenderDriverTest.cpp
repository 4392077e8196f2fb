#include "ExportScene.h"
#include "RenderDriver.h"

using xrvellfur::FurOperation;

namespace {

class RenderDriver : public ExportScene {};

const vrayrender::RecordedParameter& named(const vrayrender::RecordedInstance& instance,
                                           const std::string& name) {
    for (const auto& parameter : instance.parameters)
        if (parameter.name == name) return parameter;
    static vrayrender::RecordedParameter none;
    return none;
}

}  // namespace

TEST_F(RenderDriver, MotionBlurSamplesAreSpreadOverTheInterval) {
    vrayrender::MotionBlur blur;
    blur.enabled = true;
    blur.duration = 1.0;
    blur.intervalCenter = 0.0;
    blur.geometrySamples = 3;
    EXPECT_EQ(vrayrender::sampleTimes(2.0, blur), (std::vector<double>{1.5, 2.0, 2.5}));
    blur.enabled = false;
    EXPECT_EQ(vrayrender::sampleTimes(2.0, blur), std::vector<double>{2.0});
}

TEST_F(RenderDriver, RendersEveryFrameAndSampleThroughTheBridge) {
    mayahost::findPlug(fur, "cacheFilePattern").setString("hair.####.xvc");
    vrayrender::RenderSettings settings;
    settings.startFrame = 1;
    settings.endFrame = 2;
    settings.motionBlur.enabled = true;
    settings.motionBlur.intervalCenter = 0.0;
    settings.motionBlur.geometrySamples = 3;
    vrayrender::RenderRecord record;
    {
        vrayrender::RenderDriver driver(&registry);
        record = driver.render(settings);
    }
    EXPECT_EQ(record.geometrySources, 1);
    EXPECT_EQ(record.instancesCreated, 1);
    ASSERT_EQ(record.frames.size(), 2u);
    const vrayrender::RecordedInstance& second = record.frames[1].instances.at(0);
    EXPECT_EQ(second.node, "bridgeShape");
    EXPECT_FALSE(second.created);

    // Frame 2 samples 1.5, 2, 2.5; clearing at 1.5 keeps frame 1's last sample (1.5).
    const vrayrender::RecordedParameter& samples = named(second, "sampleGenerator");
    ASSERT_EQ(samples.later.size(), 2u);
    EXPECT_EQ(samples.valueAt(2).list, (std::vector<float>{1.5f, 1.5f, 2.0f, 2.5f}));
    // Once the file changes, every sample of the frame is spelled out.
    const vrayrender::RecordedParameter& files = named(second, "file");
    ASSERT_EQ(files.later.size(), 2u);
    EXPECT_EQ(files.valueAt(0).text, "hair.0001.xvc");
    EXPECT_EQ(files.valueAt(1).text, "hair.0002.xvc");
    EXPECT_EQ(files.valueAt(2).text, "hair.0002.xvc");
    // Every other parameter holds its value through the frame and keeps just that one.
    for (const vrayrender::RecordedParameter& parameter : second.parameters) {
        if (parameter.name == "sampleGenerator" || parameter.name == "file") continue;
        EXPECT_TRUE(parameter.heldThroughFrame()) << parameter.name;
        EXPECT_EQ(&parameter.valueAt(2), &parameter.first) << parameter.name;
    }
    // The render's end clears everything on the fur node.
    EXPECT_EQ(furCalls().back().operation, FurOperation::RemoveRenderSamples);
}
