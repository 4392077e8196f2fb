#include "params/DefParamBase.h"

#include <cstring>

#include "params/NumericConversions.h"
#include "params/StringCopy.h"

namespace VUtils {

namespace {

AColor grey(float value, float alpha) { return AColor{{value, value, value}, alpha}; }

}  // namespace

DefParamBase::DefParamBase(const char* name, bool copyName)
    : ownsName(copyName), paramName(copyName ? duplicateString(name) : name) {}

DefParamBase::~DefParamBase() {
    if (ownsName) {
        delete[] paramName;
    }
}

PluginInterface* DefParamBase::newInterface(unsigned long interfaceID) {
    switch (interfaceID) {
        case EXT_RTTEX:
            return static_cast<RTTexInterface*>(this);
        case EXT_TEXTURE:
            return static_cast<TextureInterface*>(this);
        case EXT_TEXTURE_FLOAT:
            return static_cast<TextureFloatInterface*>(this);
        case EXT_TEXTURE_INT:
            return static_cast<TextureIntInterface*>(this);
        case EXT_TEXTURE_TRANSFORM:
            return static_cast<TextureTransformInterface*>(this);
        case EXT_TEXTURE_VECTOR:
            return static_cast<TextureVectorInterface*>(this);
        default:
            return PluginBase::newInterface(interfaceID);
    }
}

const char* DefParamBase::getName() { return paramName; }

float DefParamBase::getFloat(int index, double time) {
    switch (getType(index, time)) {
        case paramTypeDouble:
            return static_cast<float>(getDouble(index, time));
        case paramTypeColor: {
            const Color c = getColor(index, time);
            return (c.r + c.g + c.b) * oneThird;
        }
        case paramTypeAColor: {
            const Color c = getAColor(index, time).color;
            return (c.r + c.g + c.b) * oneThird;
        }
        default:
            return 0.0f;
    }
}

int DefParamBase::getBool(int index, double time) { return getInt(index, time); }

Color DefParamBase::getColor(int index, double time) {
    switch (getType(index, time)) {
        case paramTypeFloat: {
            const float f = getFloat(index, time);
            return Color{f, f, f};
        }
        case paramTypeDouble: {
            const float d = static_cast<float>(getDouble(index, time));
            return Color{d, d, d};
        }
        case paramTypeAColor:
            return getAColor(index, time).color;
        default:
            return Color{0.0f, 0.0f, 0.0f};
    }
}

AColor DefParamBase::getAColor(int index, double time) {
    switch (getType(index, time)) {
        case paramTypeFloat:
            return grey(getFloat(index, time), 1.0f);
        case paramTypeDouble:
            return grey(static_cast<float>(getDouble(index, time)), 1.0f);
        case paramTypeColor:
            return AColor{getColor(index, time), 1.0f};
        default:
            return grey(0.0f, 0.0f);
    }
}

PluginBase* DefParamBase::getObject(int, double, const char**) { return asPlugin(); }

PluginBase* DefParamBase::getPlugin() { return asPlugin(); }

bool DefParamBase::getSource(const char*, const char*, const char* descriptorKind,
                             ShaderSource& shaderSource, const OCLData& oclData) {
    if (!descriptorKind || std::strcmp(descriptorKind, "MaterialDescriptor") != 0) {
        return false;
    }
    const int type = getType(0, 0.0);
    const double frameTime = getFrameTimeFromOCLData(oclData);
    const AColor c = sourceColorAt(type, frameTime);
    printShaderSourceString(shaderSource, "color %f %f %f %f\n", static_cast<double>(c.color.r),
                            static_cast<double>(c.color.g), static_cast<double>(c.color.b),
                            static_cast<double>(c.alpha));
    return true;
}

// Scalars repeat their value in alpha too, unlike getAColor: the shader reads all four.
AColor DefParamBase::sourceColorAt(int type, double time) {
    switch (type) {
        case paramTypeAColor:
            return getAColor(0, time);
        case paramTypeColor:
            return AColor{getColor(0, time), 1.0f};
        case paramTypeDouble: {
            const float d = static_cast<float>(getDouble(0, time));
            return grey(d, d);
        }
        case paramTypeFloat: {
            const float f = getFloat(0, time);
            return grey(f, f);
        }
        case paramTypeInt: {
            const float i = static_cast<float>(getInt(0, time));
            return grey(i, i);
        }
        default:
            return grey(0.0f, 0.0f);
    }
}

AColor DefParamBase::getTexColor(const VRayContext&) { return getAColor(0, 0.0); }

void DefParamBase::getTexColorBounds(AColor& minColor, AColor& maxColor) {
    minColor = maxColor = getAColor(0, 0.0);
}

Vector DefParamBase::getColorBumpGradient(const VRayContext&) { return Vector{0.0f, 0.0f, 0.0f}; }

float DefParamBase::getTexFloat(const VRayContext&) { return getFloat(0, 0.0); }

void DefParamBase::getTexFloatBounds(float& fmin, float& fmax) { fmin = fmax = getFloat(0, 0.0); }

Vector DefParamBase::getFloatBumpGradient(const VRayContext&) { return Vector{0.0f, 0.0f, 0.0f}; }

int DefParamBase::getTexInt(const VRayContext&) { return getInt(0, 0.0); }

simd::Transform3f DefParamBase::getTexTransform(const VRayContext&) {
    return simd::Transform3f::fromTraceTransform(getTransform(0, 0.0));
}

simd::Vector3f DefParamBase::getTexVector(const VRayContext&) {
    return simd::Vector3f::fromVector(getVector(0, 0.0));
}

void DefParamBase::getTexVectorBounds(simd::Vector3f& vmin, simd::Vector3f& vmax) {
    vmin = vmax = simd::Vector3f::fromVector(getVector(0, 0.0));
}

}  // namespace VUtils
