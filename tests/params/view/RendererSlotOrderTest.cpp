// Each slot of the renderer's declarations reaches the operation of the same name,
// also where every default gives the same empty answer. The answers themselves are
// checked on the real objects elsewhere.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "RendererView.h"
#include "ViewFactory.h"

using rview::Array;
using Calls = std::vector<std::string>;

namespace {

template <class View>
std::unique_ptr<View> adopt(void* object) {
    viewfactory::recordedCalls().clear();
    return std::unique_ptr<View>(static_cast<View*>(object));
}

Calls takeCalls() {
    Calls calls;
    calls.swap(viewfactory::recordedCalls());
    return calls;
}

const rview::VRayContext context{};

}  // namespace

TEST(RendererSlotOrder, PluginAndParameterOperations) {
    auto param = adopt<rview::Parameter>(viewfactory::newRecordingParameter());
    param->query(1);
    param->releaseInterface(nullptr);
    param->attach(nullptr, 0);
    param->detach(nullptr);
    param->name();
    param->count(0.0);
    param->open(0);
    param->openAt(0, 0.0);
    param->close(nullptr);
    param->asInt(0, 0.0);
    param->asFloat(0, 0.0);
    param->asDouble(0, 0.0);
    param->asBool(0, 0.0);
    param->asVector(0, 0.0);
    param->asColor(0, 0.0);
    param->asAColor(0, 0.0);
    param->asMatrix(0, 0.0);
    param->asTransform(0, 0.0);
    param->asString(0, 0.0);
    param->asObject(0, 0.0, nullptr);
    param->intList(0.0);
    param->floatList(0.0);
    param->vectorList(0.0);
    param->colorList(0.0);
    param->doubleList(0.0);
    param->transformList(0.0);
    param->stringList(0.0);
    param->type(0, 0.0);
    param->dontInterpolate(false);
    param->flags();
    const Calls expected{"newInterface",
                         "deleteInterface",
                         "addInterface",
                         "removeInterface",
                         "getName",
                         "getCount",
                         "openList",
                         "openList(time)",
                         "closeList",
                         "getInt",
                         "getFloat",
                         "getDouble",
                         "getBool",
                         "getVector",
                         "getColor",
                         "getAColor",
                         "getMatrix",
                         "getTransform",
                         "getString",
                         "getObject",
                         "getIntList",
                         "getFloatList",
                         "getVectorList",
                         "getColorList",
                         "getDoubleList",
                         "getTransformList",
                         "getStringList",
                         "getType",
                         "setDontInterpolateValue",
                         "getFlags"};
    EXPECT_EQ(expected, takeCalls());
}

TEST(RendererSlotOrder, SettableOperations) {
    auto settable = adopt<rview::Settable>(viewfactory::newRecordingSettable());
    EXPECT_EQ(0xBABADED3ul, settable->id());
    EXPECT_STREQ("EXT_SETTABLE_PARAM", settable->name());
    settable->plugin();
    settable->release();
    settable->putInt(0, 0, 0.0);
    settable->putFloat(0, 0, 0.0);
    settable->putDouble(0, 0, 0.0);
    settable->putBool(0, 0, 0.0);
    settable->putColor({}, 0, 0.0);
    settable->putAColor({}, 0, 0.0);
    settable->putString(nullptr, 0, 0.0);
    settable->putObject(nullptr, 0, 0.0);
    settable->putVector({}, 0, 0.0);
    settable->putMatrix({}, 0, 0.0);
    settable->putTransform({}, 0, 0.0);
    settable->putIntList({}, 0.0);
    settable->putVectorList({}, 0.0);
    settable->putFloatList({}, 0.0);
    settable->putColorList({}, 0.0);
    settable->putAColorList({}, 0.0);
    settable->putCount(0, 0.0);
    settable->reserveCount(0, 0.0);
    settable->putNamedObject(nullptr, nullptr, 0, 0.0);
    settable->putValueList({}, 0.0);
    settable->putHandle(nullptr, 0.0, nullptr);
    settable->putStringList({}, 0.0);
    settable->putDoubleList({}, 0.0);
    settable->putMatrixList({}, 0.0);
    settable->putTransformList({}, 0.0);
    const Calls expected{"getPlugin",
                         "deleteInterface",
                         "setInt",
                         "setFloat",
                         "setDouble",
                         "setBool",
                         "setColor",
                         "setAColor",
                         "setString",
                         "setUserObject",
                         "setVector",
                         "setMatrix",
                         "setTransform",
                         "setIntList",
                         "setVectorList",
                         "setFloatList",
                         "setColorList",
                         "setAColorList",
                         "setCount",
                         "reserve",
                         "setUserObject(name)",
                         "setValueList",
                         "setUserObject(handle)",
                         "setStringList",
                         "setDoubleList",
                         "setMatrixList",
                         "setTransformList"};
    EXPECT_EQ(expected, takeCalls());
}

TEST(RendererSlotOrder, TextureOperations) {
    auto texture = adopt<rview::Texture>(viewfactory::newRecordingTexture());
    EXPECT_EQ(0x77780002ul, texture->id());
    EXPECT_STREQ("EXT_TEXTURE", texture->name());
    rview::Rgba lo{};
    rview::Rgba hi{};
    texture->color(context);
    texture->colorBounds(lo, hi);
    texture->gradient(context);
    texture->constant(lo);
    texture->instanceDependent(nullptr);
    EXPECT_EQ((Calls{"getTexColor", "getTexColorBounds", "getColorBumpGradient",
                     "isConstant(AColor)", "isInstanceDependent"}),
              takeCalls());

    auto floats = adopt<rview::FloatTexture>(viewfactory::newRecordingFloatTexture());
    EXPECT_EQ(0x7782F8E5ul, floats->id());
    EXPECT_STREQ("EXT_TEXTURE_FLOAT", floats->name());
    float a = 0.0f;
    float b = 0.0f;
    floats->value(context);
    floats->bounds(a, b);
    floats->gradient(context);
    floats->constant(a);
    EXPECT_EQ(
        (Calls{"getTexFloat", "getTexFloatBounds", "getFloatBumpGradient", "isConstant(float)"}),
        takeCalls());

    auto vectors = adopt<rview::VectorTexture>(viewfactory::newRecordingVectorTexture());
    EXPECT_EQ(0x7782F8E6ul, vectors->id());
    EXPECT_STREQ("EXT_TEXTURE_VECTOR", vectors->name());
    rview::Lanes vlo{};
    rview::Lanes vhi{};
    vectors->value(context);
    vectors->bounds(vlo, vhi);
    vectors->gradient(context);
    EXPECT_EQ((Calls{"getTexVector", "getTexVectorBounds", "getVectorBumpGradient"}), takeCalls());
}

TEST(RendererSlotOrder, AnimatedOperations) {
    auto animated = adopt<rview::Animated>(viewfactory::newRecordingAnimated());
    EXPECT_EQ(0x7792855Dul, animated->id());
    EXPECT_STREQ("EXT_ANIMATEDPARAM", animated->name());
    EXPECT_EQ(nullptr, animated->plugin());
    animated->release();
    animated->clearKeys(1.0, 0);
    animated->createKey(1.0, 0);
    animated->keysPerFrame();
    EXPECT_EQ((Calls{"clearKeyFrames", "createKeyFrame", "numKeyframesPerFrame"}), takeCalls());
}

namespace {

template <class View, class Calling>
Calls callsThrough(void* object, Calling calling) {
    auto view = adopt<View>(object);
    calling(*view);
    return takeCalls();
}

void putIntThenBool(rview::IntObject& p) {
    p.putInt(1, 0, 0.0);
    p.putBool(1, 0, 0.0);
}

}  // namespace

// Slots that would give the same answer on the real classes, told apart by name.
TEST(RendererSlotOrder, LookAlikeSlotsOfTheRealClasses) {
    EXPECT_EQ((Calls{"getColorBumpGradient", "getFloatBumpGradient"}),
              callsThrough<rview::ParamObject>(viewfactory::newRecordingBumpGradients(),
                                               [](rview::ParamObject& p) {
                                                   p.colorGradient(context);
                                                   p.floatGradient(context);
                                               }));
    const Calls intThenBool{"setInt", "setBool"};
    EXPECT_EQ(intThenBool, callsThrough<rview::IntObject>(viewfactory::newRecordingIntSetters(),
                                                          putIntThenBool));
    EXPECT_EQ(intThenBool, callsThrough<rview::FloatObject>(viewfactory::newRecordingFloatSetters(),
                                                            putIntThenBool));
    EXPECT_EQ(intThenBool,
              callsThrough<rview::FloatListObject>(viewfactory::newRecordingFloatListSetters(),
                                                   [](rview::FloatListObject& p) {
                                                       p.putInt(1, 0, 0.0);
                                                       p.putBool(1, 0, 0.0);
                                                   }));
}
