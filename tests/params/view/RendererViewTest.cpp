// Every operation called the way the renderer calls it: through its own declarations.
// A slot out of place lands in a different operation and gives a different answer.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "RendererView.h"
#include "ViewFactory.h"

using rview::Array;
using rview::Lanes;
using rview::Parameter;
using rview::Rgba;
using rview::Vec;

namespace {

const unsigned long textureId = 0x77780002;
const unsigned long floatTextureId = 0x7782F8E5;
const unsigned long vectorTextureId = 0x7782F8E6;
const unsigned long transformTextureId = 0x7782F8E9;
const unsigned long intTextureId = 0x7782F8EA;
const unsigned long rttexId = 0x77CFFFA6;
const unsigned long settableId = 0xBABADED3;
const unsigned long cloneableId = 0x77DE0EDC;

template <class View>
std::unique_ptr<View> adopt(void* object) {
    return std::unique_ptr<View>(static_cast<View*>(object));
}

template <class Iface>
Iface* query(Parameter& param, unsigned long id) {
    return static_cast<Iface*>(param.query(id));
}

const rview::VRayContext context{};

void expectLanes(const Lanes& lanes, float x, float y, float z, float w) {
    EXPECT_EQ(x, lanes.x);
    EXPECT_EQ(y, lanes.y);
    EXPECT_EQ(z, lanes.z);
    EXPECT_EQ(w, lanes.w);
}

void expectRgba(const Rgba& c, float r, float g, float b, float a) {
    EXPECT_EQ(r, c.rgb.r);
    EXPECT_EQ(g, c.rgb.g);
    EXPECT_EQ(b, c.rgb.b);
    EXPECT_EQ(a, c.a);
}

template <class T>
void expectEmpty(const Array<T>& list) {
    EXPECT_EQ(nullptr, list.ptr);
    EXPECT_EQ(nullptr, list.refs);
    EXPECT_EQ(0, list.length);
    EXPECT_EQ(0, list.owner);
}

}  // namespace

TEST(RendererView, EveryBuiltInInterfaceReportsItselfAndItsObject) {
    struct Row {
        unsigned long id;
        const char* name;
    };
    const Row rows[] = {{textureId, "EXT_TEXTURE"},
                        {floatTextureId, "EXT_TEXTURE_FLOAT"},
                        {vectorTextureId, "EXT_TEXTURE_VECTOR"},
                        {transformTextureId, "EXT_TEXTURE_TRANSFORM"},
                        {intTextureId, "EXT_TEXTURE_INT"},
                        {rttexId, "EXT_RTTEX"},
                        {settableId, "EXT_SETTABLE_PARAM"},
                        {cloneableId, "EXT_CLONEABLE_PARAM"}};
    std::unique_ptr<Parameter> objects[] = {adopt<Parameter>(viewfactory::newIntParam("i", 1)),
                                            adopt<Parameter>(viewfactory::newFloatParam("f", 1.0f)),
                                            adopt<Parameter>(viewfactory::newVectorParam("v")),
                                            adopt<Parameter>(viewfactory::newStringParam("s")),
                                            adopt<Parameter>(viewfactory::newFloatListParam("l"))};
    for (auto& object : objects) {
        SCOPED_TRACE(object->name());
        for (const Row& row : rows) {
            SCOPED_TRACE(row.name);
            rview::Interface* iface = object->query(row.id);
            ASSERT_NE(nullptr, iface);
            EXPECT_EQ(row.id, iface->id());
            EXPECT_STREQ(row.name, iface->name());
            EXPECT_EQ(object.get(), iface->plugin());
            iface->release();
            object->releaseInterface(iface);
        }
        EXPECT_EQ(nullptr, object->query(0x7792855D));
    }
}

TEST(RendererView, ParameterSlotsOfAnIntegerAnswerAsTheTableSays) {
    auto param = adopt<rview::IntObject>(viewfactory::newIntParam("count", 7));
    EXPECT_STREQ("count", param->name());
    EXPECT_EQ(-1, param->count(0.0));
    EXPECT_EQ(nullptr, param->open(0));
    EXPECT_EQ(nullptr, param->openAt(0, 0.0));
    param->close(nullptr);
    EXPECT_EQ(7, param->asInt(0, 0.0));
    EXPECT_EQ(7.0f, param->asFloat(0, 0.0));
    EXPECT_EQ(7.0, param->asDouble(0, 0.0));
    EXPECT_EQ(1, param->asBool(0, 0.0));
    EXPECT_EQ(0.0f, param->asVector(0, 0.0).z);
    EXPECT_EQ(0.0f, param->asColor(0, 0.0).g);
    expectRgba(param->asAColor(0, 0.0), 0, 0, 0, 0);
    EXPECT_EQ(0.0f, param->asMatrix(0, 0.0).col[2].z);
    EXPECT_EQ(0.0, param->asTransform(0, 0.0).oz);
    EXPECT_EQ(nullptr, param->asString(0, 0.0));
    const char* untouched = "name";
    EXPECT_EQ(param.get(), param->asObject(0, 0.0, &untouched));
    EXPECT_STREQ("name", untouched);
    expectEmpty(param->intList(0.0));
    expectEmpty(param->floatList(0.0));
    expectEmpty(param->vectorList(0.0));
    expectEmpty(param->colorList(0.0));
    expectEmpty(param->doubleList(0.0));
    expectEmpty(param->transformList(0.0));
    expectEmpty(param->stringList(0.0));
    EXPECT_EQ(0, param->type(0, 0.0));
    param->dontInterpolate(true);
    EXPECT_EQ(0, param->flags());
    EXPECT_EQ(7, param->texInt(context));
    EXPECT_EQ(7.0f, param->texFloat(context));
}

TEST(RendererView, AppendedSlotsOfAFloat) {
    auto param = adopt<rview::FloatObject>(viewfactory::newFloatParam("f", 2.5f));
    EXPECT_EQ(param.get(), param->owner());
    EXPECT_EQ(1, param->type(0, 0.0));
    EXPECT_EQ(2, param->asInt(0, 0.0));
    expectRgba(param->asAColor(0, 0.0), 2.5f, 2.5f, 2.5f, 1.0f);
    EXPECT_EQ(2.5f, param->asColor(0, 0.0).b);

    rview::ShaderSource source;
    EXPECT_FALSE(param->source("", "", "Material", source, rview::OCLData{}));
    EXPECT_TRUE(param->source("", "", "MaterialDescriptor", source, rview::OCLData{}));
    EXPECT_EQ("color 2.500000 2.500000 2.500000 2.500000\n", source.text);

    expectRgba(param->texColor(context), 2.5f, 2.5f, 2.5f, 1.0f);
    Rgba lo{};
    Rgba hi{};
    param->texColorBounds(lo, hi);
    expectRgba(hi, 2.5f, 2.5f, 2.5f, 1.0f);
    EXPECT_EQ(0.0f, param->colorGradient(context).x);
    EXPECT_EQ(2.5f, param->texFloat(context));
    float fmin = 0.0f;
    float fmax = 0.0f;
    param->texFloatBounds(fmin, fmax);
    EXPECT_EQ(2.5f, fmin);
    EXPECT_EQ(2.5f, fmax);
    EXPECT_EQ(0.0f, param->floatGradient(context).y);
    EXPECT_EQ(2, param->texInt(context));
    expectLanes(param->texTransform(context).offs, 0, 0, 0, 0);
    expectLanes(param->texVector(context), 0, 0, 0, 0);
    Lanes vlo{1, 1, 1, 1};
    Lanes vhi{1, 1, 1, 1};
    param->texVectorBounds(vlo, vhi);
    expectLanes(vhi, 0, 0, 0, 0);

    float constant = 0.0f;
    EXPECT_TRUE(param->constantFloat(constant));
    EXPECT_EQ(2.5f, constant);
    param->putInt(3, 0, 0.0);
    EXPECT_EQ(3.0f, param->asFloat(0, 0.0));
    param->putBool(4, 0, 0.0);
    EXPECT_EQ(4.0f, param->asFloat(0, 0.0));
    param->putFloat(5.5f, 0, 0.0);
    EXPECT_EQ(5.5f, param->asFloat(0, 0.0));
    param->putDouble(0.1, 0, 0.0);
    EXPECT_EQ(0.1f, param->asFloat(0, 0.0));
    std::unique_ptr<Parameter> copy(param->copy());
    EXPECT_EQ(0.1f, copy->asFloat(0, 0.0));
    EXPECT_STREQ("f", copy->name());
}

TEST(RendererView, AppendedSlotsOfAnInteger) {
    auto param = adopt<rview::IntObject>(viewfactory::newIntParam("i", 0));
    param->putInt(-9, 0, 0.0);
    EXPECT_EQ(-9, param->asInt(0, 0.0));
    param->putBool(5, 0, 0.0);
    EXPECT_EQ(5, param->asInt(0, 0.0));
    param->putFloat(-3.99f, 0, 0.0);
    EXPECT_EQ(-3, param->asInt(0, 0.0));
    param->putDouble(3.99, 0, 0.0);
    EXPECT_EQ(3, param->asInt(0, 0.0));
    std::unique_ptr<Parameter> copy(param->copy());
    EXPECT_EQ(3, copy->asInt(0, 0.0));
    EXPECT_EQ(0, copy->type(0, 0.0));
}

TEST(RendererView, AppendedSlotsOfAVector) {
    auto param = adopt<rview::VectorObject>(viewfactory::newVectorParam("v"));
    param->putVector(Vec{1, 2, 3}, 0, 0.0);
    const Vec v = param->asVector(0, 0.0);
    EXPECT_EQ(2.0f, v.y);
    EXPECT_EQ(3.0f, v.z);
    expectLanes(param->texVector(context), 1, 2, 3, 3);
    Lanes lo{};
    Lanes hi{};
    param->texVectorBounds(lo, hi);
    expectLanes(lo, 1, 2, 3, 3);
    EXPECT_EQ(0.0f, param->vectorGradient(context).col[1].y);
    EXPECT_EQ(4, param->type(0, 0.0));
    std::unique_ptr<Parameter> copy(param->copy());
    EXPECT_EQ(3.0f, copy->asVector(0, 0.0).z);
}

TEST(RendererView, AppendedSlotsOfAString) {
    auto param = adopt<rview::StringObject>(viewfactory::newStringParam("s"));
    EXPECT_STREQ("", param->asString(0, 0.0));
    param->putString("abc", 0, 0.0);
    EXPECT_STREQ("abc", param->asString(0, 0.0));
    EXPECT_EQ(9, param->type(0, 0.0));
    std::unique_ptr<Parameter> copy(param->copy());
    param->putString(nullptr, 0, 0.0);
    EXPECT_EQ(nullptr, param->asString(0, 0.0));
    EXPECT_STREQ("abc", copy->asString(0, 0.0));
}

TEST(RendererView, AppendedSlotsOfAFloatList) {
    auto list = adopt<rview::FloatListObject>(viewfactory::newFloatListParam("l"));
    EXPECT_EQ(0, list->count(0.0));
    list->putFloat(1.5f, -1, 0.0);
    list->putInt(2, -1, 0.0);
    list->putBool(3, -1, 0.0);
    list->putDouble(4.5, -1, 0.0);
    EXPECT_EQ(4, list->count(0.0));
    EXPECT_EQ(1, list->type(0, 0.0));
    EXPECT_EQ(4.5, list->asDouble(3, 0.0));
    EXPECT_EQ(1, list->asInt(0, 0.0));
    EXPECT_EQ(1, list->asBool(2, 0.0));
    const Array<float> view = list->floatList(0.0);
    ASSERT_EQ(4, view.length);
    EXPECT_EQ(2.0f, view.ptr[1]);
    EXPECT_EQ(nullptr, list->open(0));
    EXPECT_EQ(-1, list->count(0.0));
    list->close(nullptr);
    EXPECT_EQ(nullptr, list->openAt(0, 1.0));
    list->close(nullptr);
    EXPECT_EQ(4, list->count(0.0));

    std::unique_ptr<Parameter> copy(list->copy());
    list->putCount(2, 0.0);
    EXPECT_EQ(2, list->count(0.0));
    list->reserveCount(10, 0.0);
    EXPECT_EQ(0, list->count(0.0));
    float values[] = {7, 8, 9};
    list->putFloatList(Array<float>{values, nullptr, 3, 0}, 0.0);
    EXPECT_EQ(9.0f, list->asFloat(2, 0.0));
    EXPECT_EQ(4, copy->count(0.0));
    EXPECT_EQ(4.5f, copy->asFloat(3, 0.0));
}

TEST(RendererView, TextureInterfacesOfAVector) {
    auto param = adopt<rview::VectorObject>(viewfactory::newVectorParam("v"));
    param->putVector(Vec{1, 2, 3}, 0, 0.0);
    auto* vector = query<rview::VectorTexture>(*param, vectorTextureId);
    expectLanes(vector->value(context), 1, 2, 3, 3);
    Lanes lo{};
    Lanes hi{};
    vector->bounds(lo, hi);
    expectLanes(hi, 1, 2, 3, 3);
    EXPECT_EQ(0.0f, vector->gradient(context).col[0].x);

    auto* texture = query<rview::Texture>(*param, textureId);
    expectRgba(texture->color(context), 0, 0, 0, 0);
    Rgba clo{};
    Rgba chi{};
    texture->colorBounds(clo, chi);
    expectRgba(chi, 0, 0, 0, 0);
    EXPECT_EQ(0.0f, texture->gradient(context).z);
    Rgba constant{};
    EXPECT_FALSE(texture->constant(constant));
    rview::VRayRenderer renderer;
    EXPECT_FALSE(texture->instanceDependent(&renderer));

    auto* transform = query<rview::TransformTexture>(*param, transformTextureId);
    expectLanes(transform->value(context).col[0], 0, 0, 0, 0);
}

TEST(RendererView, TextureInterfacesOfAFloat) {
    auto param = adopt<Parameter>(viewfactory::newFloatParam("f", -2.5f));
    auto* floatTexture = query<rview::FloatTexture>(*param, floatTextureId);
    EXPECT_EQ(-2.5f, floatTexture->value(context));
    float lo = 0.0f;
    float hi = 0.0f;
    floatTexture->bounds(lo, hi);
    EXPECT_EQ(-2.5f, lo);
    EXPECT_EQ(-2.5f, hi);
    EXPECT_EQ(0.0f, floatTexture->gradient(context).x);
    float constant = 0.0f;
    EXPECT_TRUE(floatTexture->constant(constant));
    EXPECT_EQ(-2.5f, constant);

    EXPECT_EQ(-2, query<rview::IntTexture>(*param, intTextureId)->value(context));
    expectRgba(query<rview::Texture>(*param, textureId)->color(context), -2.5f, -2.5f, -2.5f, 1);

    rview::ShaderSource source;
    rview::OCLData ocl;
    ocl.frameTime = 3.0;
    auto* rttex = query<rview::RTTex>(*param, rttexId);
    EXPECT_TRUE(rttex->source("a", "b", "MaterialDescriptor", source, ocl));
    EXPECT_FALSE(rttex->source("a", "b", "MaterialDescriptorX", source, ocl));
    EXPECT_EQ("color -2.500000 -2.500000 -2.500000 -2.500000\n", source.text);
}

namespace {

// One settable call per slot, each with a value no other slot would produce.
void putEverything(rview::Settable& s) {
    static float floats[] = {31, 32};
    static int ints[] = {41};
    s.putInt(11, 0, 0.0);
    s.putFloat(12.75f, 0, 0.0);
    s.putDouble(13.9, 0, 0.0);
    s.putBool(14, 0, 0.0);
    s.putColor(rview::Rgb{15, 15, 15}, 0, 0.0);
    s.putAColor(Rgba{{16, 16, 16}, 16}, 0, 0.0);
    s.putString("17", 0, 0.0);
    s.putObject(nullptr, 0, 0.0);
    s.putVector(Vec{18, 19, 20}, 0, 0.0);
    s.putMatrix(rview::Mat{}, 0, 0.0);
    s.putTransform(rview::Xform{}, 0, 0.0);
    s.putIntList(Array<int>{ints, nullptr, 1, 0}, 0.0);
    s.putVectorList(Array<Vec>{}, 0.0);
    s.putFloatList(Array<float>{floats, nullptr, 2, 0}, 0.0);
    s.putColorList(Array<rview::Rgb>{}, 0.0);
    s.putAColorList(Array<Rgba>{}, 0.0);
    s.putCount(3, 0.0);
    s.reserveCount(0, 0.0);
    s.putNamedObject(nullptr, "x", 0, 0.0);
    s.putValueList(Array<rview::Plugin*>{}, 0.0);
    s.putHandle(nullptr, 0.0, "x");
    s.putStringList(Array<const char*>{}, 0.0);
    s.putDoubleList(Array<double>{}, 0.0);
    s.putMatrixList(Array<rview::Mat>{}, 0.0);
    s.putTransformList(Array<rview::Xform>{}, 0.0);
}

}  // namespace

TEST(RendererView, SettableSlotsReachOnlyTheSettersOfTheirKind) {
    auto i = adopt<Parameter>(viewfactory::newIntParam("i", 0));
    auto* si = query<rview::Settable>(*i, settableId);
    si->putInt(11, 0, 0.0);
    EXPECT_EQ(11, i->asInt(0, 0.0));
    si->putFloat(12.75f, 0, 0.0);
    EXPECT_EQ(12, i->asInt(0, 0.0));
    si->putDouble(13.9, 0, 0.0);
    EXPECT_EQ(13, i->asInt(0, 0.0));
    si->putBool(14, 0, 0.0);
    EXPECT_EQ(14, i->asInt(0, 0.0));
    putEverything(*si);
    EXPECT_EQ(14, i->asInt(0, 0.0));

    auto f = adopt<Parameter>(viewfactory::newFloatParam("f", 0.0f));
    auto* sf = query<rview::Settable>(*f, settableId);
    sf->putDouble(13.9, 0, 0.0);
    EXPECT_EQ(13.9f, f->asFloat(0, 0.0));
    sf->putFloat(12.75f, 0, 0.0);
    EXPECT_EQ(12.75f, f->asFloat(0, 0.0));
    putEverything(*sf);
    EXPECT_EQ(14.0f, f->asFloat(0, 0.0));

    auto v = adopt<Parameter>(viewfactory::newVectorParam("v"));
    putEverything(*query<rview::Settable>(*v, settableId));
    EXPECT_EQ(18.0f, v->asVector(0, 0.0).x);
    EXPECT_EQ(20.0f, v->asVector(0, 0.0).z);

    auto s = adopt<Parameter>(viewfactory::newStringParam("s"));
    putEverything(*query<rview::Settable>(*s, settableId));
    EXPECT_STREQ("17", s->asString(0, 0.0));

    // The list takes int, float, double and bool appends, the float list (which
    // replaces them), then setCount 3 and reserve 0, which empties it.
    auto l = adopt<Parameter>(viewfactory::newFloatListParam("l"));
    auto* sl = query<rview::Settable>(*l, settableId);
    putEverything(*sl);
    EXPECT_EQ(0, l->count(0.0));
    sl->putInt(1, -1, 0.0);
    sl->putFloat(2.5f, -1, 0.0);
    sl->putDouble(3.5, -1, 0.0);
    sl->putBool(4, -1, 0.0);
    const Array<float> items = l->floatList(0.0);
    ASSERT_EQ(4, items.length);
    EXPECT_EQ((std::vector<float>{1, 2.5f, 3.5f, 4}), std::vector<float>(items.ptr, items.ptr + 4));
    float two[] = {31, 32};
    sl->putFloatList(Array<float>{two, nullptr, 2, 0}, 0.0);
    EXPECT_EQ(32.0f, l->asFloat(1, 0.0));
    sl->putCount(1, 0.0);
    EXPECT_EQ(1, l->count(0.0));
    sl->reserveCount(5, 0.0);
    EXPECT_EQ(0, l->count(0.0));
}

TEST(RendererView, CloneableSlotCopiesThroughTheInterface) {
    auto f = adopt<Parameter>(viewfactory::newFloatParam("f", 0.75f));
    auto* cloneable = query<rview::Cloneable>(*f, cloneableId);
    std::unique_ptr<Parameter> copy(cloneable->copy());
    EXPECT_NE(f.get(), copy.get());
    EXPECT_EQ(0.75f, copy->asFloat(0, 0.0));
    EXPECT_EQ(f.get(), cloneable->plugin());
}
