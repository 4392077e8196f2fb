#include <maya/MString.h>

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

// Frames 1 and 2 with three motion-blur samples each, around the given interval centre.
vrayrender::RenderSettings twoBlurredFrames(double intervalCenter) {
    vrayrender::RenderSettings settings;
    settings.startFrame = 1;
    settings.endFrame = 2;
    settings.motionBlur.enabled = true;
    settings.motionBlur.intervalCenter = intervalCenter;
    settings.motionBlur.geometrySamples = 3;
    return settings;
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
    const vrayrender::RenderSettings settings = twoBlurredFrames(0.0);
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

namespace {

// Writes down what the renderer hands on, and checks each record is complete when it comes.
class Observer : public vrayrender::RenderObserver {
public:
    std::vector<std::string> events;
    bool stopAfterFirstFrame = false;

    void frameStarted(const vrayrender::RecordedFrame& frame) override {
        events.push_back("start " + std::to_string(static_cast<int>(frame.frame)) + " " +
                         std::to_string(frame.sampleTimes.size()));
    }
    void instanceDone(const vrayrender::RecordedFrame& frame,
                      const vrayrender::RecordedInstance& instance) override {
        const vrayrender::RecordedParameter& files = named(instance, "file");
        const std::string last = files.valueAt(frame.sampleTimes.size() - 1).text;
        events.push_back(instance.node + " " + last);
    }
    bool frameDone(const vrayrender::RecordedFrame& frame) override {
        events.push_back("done " + std::to_string(frame.instances.size()));
        return !stopAfterFirstFrame;
    }
};

}  // namespace

// Each instance comes as soon as its last sample is read, complete, between its frame's start
// and end; the frames themselves are then not kept.
TEST_F(RenderDriver, AnObserverGetsEachInstanceAsItsFrameEnds) {
    const MObject otherFur = createFur("otherFur");
    addBridgeFor(otherFur, "otherBridge");
    mayahost::findPlug(fur, "cacheFilePattern").setString("a.####.xvc");
    mayahost::findPlug(otherFur, "cacheFilePattern").setString("b.####.xvc");
    const vrayrender::RenderSettings settings = twoBlurredFrames(0.5);
    Observer observer;
    vrayrender::RenderRecord record;
    {
        vrayrender::RenderDriver driver(&registry);
        record = driver.render(settings, &observer);
    }
    EXPECT_TRUE(record.frames.empty());
    EXPECT_EQ(observer.events,
              (std::vector<std::string>{
                  "start 1 3", "bridgeShape a.0002.xvc", "otherBridge b.0002.xvc", "done 2",
                  "start 2 3", "bridgeShape a.0003.xvc", "otherBridge b.0003.xvc", "done 2"}));

    observer.events.clear();
    observer.stopAfterFirstFrame = true;
    vrayrender::RenderDriver driver(&registry);
    driver.render(settings, &observer);
    EXPECT_EQ(observer.events.back(), "done 2");
    EXPECT_EQ(observer.events.size(), 4u) << "the render went on after the observer said stop";
}

// Only the fields of the value's kind are the value: a held number is told from a changed one
// without reading the text or the list.
TEST(RecordedValueTest, ValuesAreEqualByTheFieldsOfTheirKind) {
    using Kind = vrayrender::RecordedValue::Kind;
    const auto make = [](Kind kind) {
        vrayrender::RecordedValue value;
        value.kind = kind;
        return value;
    };
    struct Case {
        const char* what;
        void (*change)(vrayrender::RecordedValue&);
        Kind kind;
        bool equal;
    };
    const Case cases[] = {
        {"int value", [](vrayrender::RecordedValue& v) { v.intValue = 1; }, Kind::Int, false},
        {"number of an int", [](vrayrender::RecordedValue& v) { v.number = 1; }, Kind::Int, true},
        {"float number", [](vrayrender::RecordedValue& v) { v.number = 1; }, Kind::Float, false},
        {"double number", [](vrayrender::RecordedValue& v) { v.number = 1; }, Kind::Double, false},
        {"text of a float", [](vrayrender::RecordedValue& v) { v.text = "x"; }, Kind::Float, true},
        {"vector z", [](vrayrender::RecordedValue& v) { v.vector[2] = 1; }, Kind::Vector, false},
        {"colour b", [](vrayrender::RecordedValue& v) { v.vector[2] = 1; }, Kind::Color, false},
        {"number of a vector", [](vrayrender::RecordedValue& v) { v.number = 1; }, Kind::Vector,
         true},
        {"text", [](vrayrender::RecordedValue& v) { v.text = "x"; }, Kind::String, false},
        {"null string", [](vrayrender::RecordedValue& v) { v.isNull = true; }, Kind::String, false},
        {"list", [](vrayrender::RecordedValue& v) { v.list = {0.0f}; }, Kind::FloatList, false},
        {"list of a string", [](vrayrender::RecordedValue& v) { v.list = {1.0f}; }, Kind::String,
         true},
        {"anything of none", [](vrayrender::RecordedValue& v) { v.intValue = 3; }, Kind::None,
         true},
    };
    for (const Case& c : cases) {
        const vrayrender::RecordedValue held = make(c.kind);
        vrayrender::RecordedValue read = make(c.kind);
        c.change(read);
        EXPECT_EQ(read == held, c.equal) << c.what;
        EXPECT_EQ(read != held, !c.equal) << c.what;
    }
    EXPECT_NE(make(Kind::Int), make(Kind::Float)) << "kinds differ";
}
