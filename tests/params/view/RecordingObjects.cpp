// Objects whose every operation only notes its own name, built from the plug-in's
// declarations, so the view can check that each of its slots reaches the operation
// of the same name, defaults included. Where two slots of a real class would give the
// same answer, a subclass of that class notes which of the two was reached.
#include "ViewFactory.h"

#include "params/AnimatedParameterInterface.h"
#include "params/DefFloatListParam.h"
#include "params/DefFloatParam.h"
#include "params/DefIntParam.h"
#include "params/TextureFloatInterface.h"
#include "params/TextureInterface.h"
#include "params/TextureVectorInterface.h"
#include "params/VRayPluginParameter.h"
#include "params/VRaySettableParamInterface.h"

namespace viewfactory {

std::vector<std::string>& recordedCalls() {
    static std::vector<std::string> calls;
    return calls;
}

namespace {

template <class T>
T note(const char* name) {
    recordedCalls().push_back(name);
    return T{};
}

void note(const char* name) { recordedCalls().push_back(name); }

using namespace VUtils;

class RecordingParameter : public VRayPluginParameter {
public:
    PluginInterface* newInterface(unsigned long) override {
        return note<PluginInterface*>("newInterface");
    }
    void deleteInterface(PluginInterface*) override { note("deleteInterface"); }
    bool addInterface(PluginInterface*, int) override { return note<bool>("addInterface"); }
    bool removeInterface(PluginInterface*) override { return note<bool>("removeInterface"); }
    const char* getName() override { return note<const char*>("getName"); }
    int getCount(double) override { return note<int>("getCount"); }
    void* openList(int) override { return note<void*>("openList"); }
    void* openList(int, double) override { return note<void*>("openList(time)"); }
    void closeList(void*) override { note("closeList"); }
    int getInt(int, double) override { return note<int>("getInt"); }
    float getFloat(int, double) override { return note<float>("getFloat"); }
    double getDouble(int, double) override { return note<double>("getDouble"); }
    int getBool(int, double) override { return note<int>("getBool"); }
    Vector getVector(int, double) override { return note<Vector>("getVector"); }
    Color getColor(int, double) override { return note<Color>("getColor"); }
    AColor getAColor(int, double) override { return note<AColor>("getAColor"); }
    Matrix getMatrix(int, double) override { return note<Matrix>("getMatrix"); }
    TraceTransform getTransform(int, double) override {
        return note<TraceTransform>("getTransform");
    }
    const char* getString(int, double) override { return note<const char*>("getString"); }
    PluginBase* getObject(int, double, const char**) override {
        return note<PluginBase*>("getObject");
    }
    PtrArray<int> getIntList(double) override { return note<PtrArray<int>>("getIntList"); }
    PtrArray<float> getFloatList(double) override { return note<PtrArray<float>>("getFloatList"); }
    PtrArray<Vector> getVectorList(double) override {
        return note<PtrArray<Vector>>("getVectorList");
    }
    PtrArray<Color> getColorList(double) override { return note<PtrArray<Color>>("getColorList"); }
    PtrArray<double> getDoubleList(double) override {
        return note<PtrArray<double>>("getDoubleList");
    }
    PtrArray<TraceTransform> getTransformList(double) override {
        return note<PtrArray<TraceTransform>>("getTransformList");
    }
    PtrArray<const char*> getStringList(double) override {
        return note<PtrArray<const char*>>("getStringList");
    }
    int getType(int, double) override { return note<int>("getType"); }
    void setDontInterpolateValue(bool) override { note("setDontInterpolateValue"); }
    int getFlags() override { return note<int>("getFlags"); }
};

template <class Interface>
class Recording : public Interface {
public:
    PluginBase* getPlugin() override { return note<PluginBase*>("getPlugin"); }
    void deleteInterface() override { note("deleteInterface"); }
};

class RecordingSettable : public Recording<VRaySettableParamInterface> {
public:
    void setInt(int, int, double) override { note("setInt"); }
    void setFloat(float, int, double) override { note("setFloat"); }
    void setDouble(double, int, double) override { note("setDouble"); }
    void setBool(int, int, double) override { note("setBool"); }
    void setColor(const Color&, int, double) override { note("setColor"); }
    void setAColor(const AColor&, int, double) override { note("setAColor"); }
    void setString(const char*, int, double) override { note("setString"); }
    void setUserObject(PluginBase*, int, double) override { note("setUserObject"); }
    void setVector(const Vector&, int, double) override { note("setVector"); }
    void setMatrix(const Matrix&, int, double) override { note("setMatrix"); }
    void setTransform(const TraceTransform&, int, double) override { note("setTransform"); }
    void setIntList(const PtrArray<int>&, double) override { note("setIntList"); }
    void setVectorList(const PtrArray<Vector>&, double) override { note("setVectorList"); }
    void setFloatList(const PtrArray<float>&, double) override { note("setFloatList"); }
    void setColorList(const PtrArray<Color>&, double) override { note("setColorList"); }
    void setAColorList(const PtrArray<AColor>&, double) override { note("setAColorList"); }
    void setCount(int, double) override { note("setCount"); }
    void reserve(int, double) override { note("reserve"); }
    void setUserObject(PluginBase*, const char*, int, double) override {
        note("setUserObject(name)");
    }
    void setValueList(const PtrArray<PluginBase*>&, double) override { note("setValueList"); }
    void setUserObject(void*, double, const char*) override { note("setUserObject(handle)"); }
    void setStringList(const PtrArray<const char*>&, double) override { note("setStringList"); }
    void setDoubleList(const PtrArray<double>&, double) override { note("setDoubleList"); }
    void setMatrixList(const PtrArray<Matrix>&, double) override { note("setMatrixList"); }
    void setTransformList(const PtrArray<TraceTransform>&, double) override {
        note("setTransformList");
    }
};

// Defaulted operations note too: their defaults all answer false or zero, so only
// the name tells the slots apart.
class RecordingTexture : public Recording<TextureInterface> {
public:
    AColor getTexColor(const VRayContext&) override { return note<AColor>("getTexColor"); }
    void getTexColorBounds(AColor&, AColor&) override { note("getTexColorBounds"); }
    Vector getColorBumpGradient(const VRayContext&) override {
        return note<Vector>("getColorBumpGradient");
    }
    bool isConstant(AColor&) override { return note<bool>("isConstant(AColor)"); }
    bool isInstanceDependent(const VRayRenderer*) override {
        return note<bool>("isInstanceDependent");
    }
};

class RecordingFloatTexture : public Recording<TextureFloatInterface> {
public:
    float getTexFloat(const VRayContext&) override { return note<float>("getTexFloat"); }
    void getTexFloatBounds(float&, float&) override { note("getTexFloatBounds"); }
    Vector getFloatBumpGradient(const VRayContext&) override {
        return note<Vector>("getFloatBumpGradient");
    }
    bool isConstant(float&) override { return note<bool>("isConstant(float)"); }
};

class RecordingVectorTexture : public Recording<TextureVectorInterface> {
public:
    simd::Vector3f getTexVector(const VRayContext&) override {
        return note<simd::Vector3f>("getTexVector");
    }
    void getTexVectorBounds(simd::Vector3f&, simd::Vector3f&) override {
        note("getTexVectorBounds");
    }
    Matrix getVectorBumpGradient(const VRayContext&) override {
        return note<Matrix>("getVectorBumpGradient");
    }
};

class RecordingAnimated : public AnimatedParameterInterface {
public:
    void clearKeyFrames(double, int) override { note("clearKeyFrames"); }
    void createKeyFrame(double, int) override { note("createKeyFrame"); }
    int numKeyframesPerFrame() override { return note<int>("numKeyframesPerFrame"); }
};

// Both bump gradients of the base answer zero.
class RecordingBumpGradients : public DefParamBase {
public:
    RecordingBumpGradients() : DefParamBase("gradients") {}
    Vector getColorBumpGradient(const VRayContext&) override {
        return note<Vector>("getColorBumpGradient");
    }
    Vector getFloatBumpGradient(const VRayContext&) override {
        return note<Vector>("getFloatBumpGradient");
    }
};

// setInt and setBool store the same value in every class that has them.
template <class Param>
class RecordingIntAndBool : public Param {
public:
    using Param::Param;
    void setInt(int, int, double) override { note("setInt"); }
    void setBool(int, int, double) override { note("setBool"); }
};

void* asRendererSees(VRayPluginParameter* param) { return param; }

}  // namespace

void* newRecordingParameter() { return static_cast<VRayPluginParameter*>(new RecordingParameter); }

void* newRecordingSettable() { return static_cast<PluginInterface*>(new RecordingSettable); }

void* newRecordingTexture() { return static_cast<PluginInterface*>(new RecordingTexture); }

void* newRecordingFloatTexture() {
    return static_cast<PluginInterface*>(new RecordingFloatTexture);
}

void* newRecordingVectorTexture() {
    return static_cast<PluginInterface*>(new RecordingVectorTexture);
}

void* newRecordingAnimated() { return static_cast<PluginInterface*>(new RecordingAnimated); }

void* newRecordingBumpGradients() { return asRendererSees(new RecordingBumpGradients); }

void* newRecordingIntSetters() {
    return asRendererSees(new RecordingIntAndBool<DefIntParam>("i", 0));
}

void* newRecordingFloatSetters() {
    return asRendererSees(new RecordingIntAndBool<DefFloatParam>("f", 0.0f));
}

void* newRecordingFloatListSetters() {
    return asRendererSees(new RecordingIntAndBool<DefFloatListParam>("l"));
}

}  // namespace viewfactory
