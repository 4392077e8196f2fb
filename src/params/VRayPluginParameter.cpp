#include "params/VRayPluginParameter.h"

namespace VUtils {

int VRayPluginParameter::getCount(double) { return -1; }

void* VRayPluginParameter::openList(int) { return nullptr; }

void* VRayPluginParameter::openList(int index, double) { return openList(index); }

void VRayPluginParameter::closeList(void*) {}

int VRayPluginParameter::getInt(int, double) { return 0; }

float VRayPluginParameter::getFloat(int, double) { return 0.0f; }

double VRayPluginParameter::getDouble(int, double) { return 0.0; }

int VRayPluginParameter::getBool(int, double) { return 0; }

Vector VRayPluginParameter::getVector(int, double) { return Vector{0.0f, 0.0f, 0.0f}; }

Color VRayPluginParameter::getColor(int, double) { return Color{0.0f, 0.0f, 0.0f}; }

AColor VRayPluginParameter::getAColor(int, double) { return AColor{{0.0f, 0.0f, 0.0f}, 0.0f}; }

Matrix VRayPluginParameter::getMatrix(int, double) { return Matrix{}; }

TraceTransform VRayPluginParameter::getTransform(int, double) { return TraceTransform{}; }

const char* VRayPluginParameter::getString(int, double) { return nullptr; }

PluginBase* VRayPluginParameter::getObject(int, double, const char**) { return nullptr; }

PtrArray<int> VRayPluginParameter::getIntList(double) { return PtrArray<int>{}; }

PtrArray<float> VRayPluginParameter::getFloatList(double) { return PtrArray<float>{}; }

PtrArray<Vector> VRayPluginParameter::getVectorList(double) { return PtrArray<Vector>{}; }

PtrArray<Color> VRayPluginParameter::getColorList(double) { return PtrArray<Color>{}; }

PtrArray<double> VRayPluginParameter::getDoubleList(double) { return PtrArray<double>{}; }

PtrArray<TraceTransform> VRayPluginParameter::getTransformList(double) {
    return PtrArray<TraceTransform>{};
}

PtrArray<const char*> VRayPluginParameter::getStringList(double) { return PtrArray<const char*>{}; }

int VRayPluginParameter::getType(int, double) { return paramTypeNone; }

void VRayPluginParameter::setDontInterpolateValue(bool) {}

int VRayPluginParameter::getFlags() { return 0; }

}  // namespace VUtils
