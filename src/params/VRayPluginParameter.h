#pragma once

#include "params/AColor.h"
#include "params/Color.h"
#include "params/Matrix.h"
#include "params/PluginBase.h"
#include "params/PtrArray.h"
#include "params/TraceTransform.h"
#include "params/Vector.h"

namespace VUtils {

enum ParamTypeCode : int {
    paramTypeInt = 0,
    paramTypeFloat = 1,
    paramTypeDouble = 2,
    paramTypeVector = 4,
    paramTypeColor = 5,
    paramTypeAColor = 6,
    paramTypeString = 9,
    paramTypeNone = 10000,
};

// What the renderer reads a parameter through. Every answer defaults to "no value".
class VRayPluginParameter : public PluginBase {
public:
    virtual const char* getName() = 0;
    virtual int getCount(double time);
    virtual void* openList(int index);
    virtual void* openList(int index, double time);
    virtual void closeList(void* handle);
    virtual int getInt(int index, double time);
    virtual float getFloat(int index, double time);
    virtual double getDouble(int index, double time);
    virtual int getBool(int index, double time);
    virtual Vector getVector(int index, double time);
    virtual Color getColor(int index, double time);
    virtual AColor getAColor(int index, double time);
    virtual Matrix getMatrix(int index, double time);
    virtual TraceTransform getTransform(int index, double time);
    virtual const char* getString(int index, double time);
    virtual PluginBase* getObject(int index, double time, const char** outName);
    virtual PtrArray<int> getIntList(double time);
    virtual PtrArray<float> getFloatList(double time);
    virtual PtrArray<Vector> getVectorList(double time);
    virtual PtrArray<Color> getColorList(double time);
    virtual PtrArray<double> getDoubleList(double time);
    virtual PtrArray<TraceTransform> getTransformList(double time);
    virtual PtrArray<const char*> getStringList(double time);
    virtual int getType(int index, double time);
    virtual void setDontInterpolateValue(bool dontInterpolate);
    virtual int getFlags();
};

}  // namespace VUtils
