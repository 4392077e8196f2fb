#pragma once

// The parameter objects as the renderer declares them, written independently of the
// plug-in's headers: only the slot order, the value layouts and the ids are shared.
// Never include a plug-in header next to this one.

#include "vray/OCLData.h"
#include "vray/ShaderSource.h"
#include "vray/VRayContext.h"
#include "vray/VRayRenderer.h"

namespace rview {

using VUtils::OCLData;
using VUtils::ShaderSource;
using VUtils::VRayContext;
using VUtils::VRayRenderer;

struct Vec {
    float x, y, z;
};
struct Rgb {
    float r, g, b;
};
struct Rgba {
    Rgb rgb;
    float a;
};
struct Mat {
    Vec col[3];
};
struct Xform {
    Mat m;
    double ox, oy, oz;
};
struct alignas(16) Lanes {
    float x, y, z, w;
};
struct LanesXform {
    Lanes col[3];
    Lanes offs;
};
template <class T>
struct Array {
    T* ptr;
    int* refs;
    int length;
    int owner;
};

class Plugin;

class Interface {
public:
    virtual ~Interface() {}
    virtual unsigned long id() = 0;
    virtual Plugin* plugin() = 0;
    virtual const char* name() = 0;
    virtual void release() = 0;
};

class Plugin {
public:
    virtual ~Plugin() {}
    virtual Interface* query(unsigned long id) = 0;
    virtual void releaseInterface(Interface* iface) = 0;
    virtual bool attach(Interface* iface, int flags) = 0;
    virtual bool detach(Interface* iface) = 0;
};

class Parameter : public Plugin {
public:
    virtual const char* name() = 0;
    virtual int count(double time) = 0;
    virtual void* open(int index) = 0;
    virtual void* openAt(int index, double time) = 0;
    virtual void close(void* handle) = 0;
    virtual int asInt(int index, double time) = 0;
    virtual float asFloat(int index, double time) = 0;
    virtual double asDouble(int index, double time) = 0;
    virtual int asBool(int index, double time) = 0;
    virtual Vec asVector(int index, double time) = 0;
    virtual Rgb asColor(int index, double time) = 0;
    virtual Rgba asAColor(int index, double time) = 0;
    virtual Mat asMatrix(int index, double time) = 0;
    virtual Xform asTransform(int index, double time) = 0;
    virtual const char* asString(int index, double time) = 0;
    virtual Plugin* asObject(int index, double time, const char** outName) = 0;
    virtual Array<int> intList(double time) = 0;
    virtual Array<float> floatList(double time) = 0;
    virtual Array<Vec> vectorList(double time) = 0;
    virtual Array<Rgb> colorList(double time) = 0;
    virtual Array<double> doubleList(double time) = 0;
    virtual Array<Xform> transformList(double time) = 0;
    virtual Array<const char*> stringList(double time) = 0;
    virtual int type(int index, double time) = 0;
    virtual void dontInterpolate(bool value) = 0;
    virtual int flags() = 0;
};

// The slots every parameter object appends after the parameter interface.
class ParamObject : public Parameter {
public:
    virtual Plugin* owner() = 0;
    virtual bool source(const char* a, const char* b, const char* kind, ShaderSource& out,
                        const OCLData& ocl) = 0;
    virtual Rgba texColor(const VRayContext& rc) = 0;
    virtual void texColorBounds(Rgba& lo, Rgba& hi) = 0;
    virtual Vec colorGradient(const VRayContext& rc) = 0;
    virtual float texFloat(const VRayContext& rc) = 0;
    virtual void texFloatBounds(float& lo, float& hi) = 0;
    virtual Vec floatGradient(const VRayContext& rc) = 0;
    virtual int texInt(const VRayContext& rc) = 0;
    virtual LanesXform texTransform(const VRayContext& rc) = 0;
    virtual Lanes texVector(const VRayContext& rc) = 0;
    virtual void texVectorBounds(Lanes& lo, Lanes& hi) = 0;
};

class IntObject : public ParamObject {
public:
    virtual void putInt(int v, int index, double time) = 0;
    virtual void putBool(int v, int index, double time) = 0;
    virtual void putFloat(float v, int index, double time) = 0;
    virtual void putDouble(double v, int index, double time) = 0;
    virtual Parameter* copy() = 0;
};

class FloatObject : public IntObject {
public:
    virtual bool constantFloat(float& out) = 0;
};

class VectorObject : public ParamObject {
public:
    virtual void putVector(const Vec& v, int index, double time) = 0;
    virtual Parameter* copy() = 0;
    virtual Mat vectorGradient(const VRayContext& rc) = 0;
};

class StringObject : public ParamObject {
public:
    virtual void putString(const char* s, int index, double time) = 0;
    virtual Parameter* copy() = 0;
};

class FloatListObject : public ParamObject {
public:
    virtual void putCount(int count, double time) = 0;
    virtual void reserveCount(int count, double time) = 0;
    virtual void putFloat(float v, int index, double time) = 0;
    virtual void putInt(int v, int index, double time) = 0;
    virtual void putBool(int v, int index, double time) = 0;
    virtual void putDouble(double v, int index, double time) = 0;
    virtual void putFloatList(const Array<float>& list, double time) = 0;
    virtual Parameter* copy() = 0;
};

class RTTex : public Interface {
public:
    virtual bool source(const char* a, const char* b, const char* kind, ShaderSource& out,
                        const OCLData& ocl) = 0;
};

class Texture : public Interface {
public:
    virtual Rgba color(const VRayContext& rc) = 0;
    virtual void colorBounds(Rgba& lo, Rgba& hi) = 0;
    virtual Vec gradient(const VRayContext& rc) = 0;
    virtual bool constant(Rgba& out) = 0;
    virtual bool instanceDependent(const VRayRenderer* renderer) = 0;
};

class FloatTexture : public Interface {
public:
    virtual float value(const VRayContext& rc) = 0;
    virtual void bounds(float& lo, float& hi) = 0;
    virtual Vec gradient(const VRayContext& rc) = 0;
    virtual bool constant(float& out) = 0;
};

class IntTexture : public Interface {
public:
    virtual int value(const VRayContext& rc) = 0;
};

class TransformTexture : public Interface {
public:
    virtual LanesXform value(const VRayContext& rc) = 0;
};

class VectorTexture : public Interface {
public:
    virtual Lanes value(const VRayContext& rc) = 0;
    virtual void bounds(Lanes& lo, Lanes& hi) = 0;
    virtual Mat gradient(const VRayContext& rc) = 0;
};

class Settable : public Interface {
public:
    virtual void putInt(int v, int index, double time) = 0;
    virtual void putFloat(float v, int index, double time) = 0;
    virtual void putDouble(double v, int index, double time) = 0;
    virtual void putBool(int v, int index, double time) = 0;
    virtual void putColor(const Rgb& v, int index, double time) = 0;
    virtual void putAColor(const Rgba& v, int index, double time) = 0;
    virtual void putString(const char* v, int index, double time) = 0;
    virtual void putObject(Plugin* v, int index, double time) = 0;
    virtual void putVector(const Vec& v, int index, double time) = 0;
    virtual void putMatrix(const Mat& v, int index, double time) = 0;
    virtual void putTransform(const Xform& v, int index, double time) = 0;
    virtual void putIntList(const Array<int>& v, double time) = 0;
    virtual void putVectorList(const Array<Vec>& v, double time) = 0;
    virtual void putFloatList(const Array<float>& v, double time) = 0;
    virtual void putColorList(const Array<Rgb>& v, double time) = 0;
    virtual void putAColorList(const Array<Rgba>& v, double time) = 0;
    virtual void putCount(int count, double time) = 0;
    virtual void reserveCount(int count, double time) = 0;
    virtual void putNamedObject(Plugin* v, const char* name, int index, double time) = 0;
    virtual void putValueList(const Array<Plugin*>& v, double time) = 0;
    virtual void putHandle(void* handle, double time, const char* name) = 0;
    virtual void putStringList(const Array<const char*>& v, double time) = 0;
    virtual void putDoubleList(const Array<double>& v, double time) = 0;
    virtual void putMatrixList(const Array<Mat>& v, double time) = 0;
    virtual void putTransformList(const Array<Xform>& v, double time) = 0;
};

class Animated : public Interface {
public:
    virtual void clearKeys(double time, int index) = 0;
    virtual void createKey(double time, int index) = 0;
    virtual int keysPerFrame() = 0;
};

class Cloneable : public Interface {
public:
    virtual Parameter* copy() = 0;
};

}  // namespace rview
