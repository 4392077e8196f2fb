#pragma once

#include "params/AColor.h"
#include "params/Color.h"
#include "params/InterfaceIds.h"
#include "params/Matrix.h"
#include "params/PluginInterface.h"
#include "params/PtrArray.h"
#include "params/TraceTransform.h"
#include "params/Vector.h"

namespace VUtils {

// Lets the renderer write values. Every setter ignores what its class does not hold.
class VRaySettableParamInterface : public PluginInterface {
public:
    unsigned long getInterfaceID() const override { return EXT_SETTABLE_PARAM; }
    const char* getInterfaceName() const override { return "EXT_SETTABLE_PARAM"; }
    virtual void setInt(int, int, double) {}
    virtual void setFloat(float, int, double) {}
    virtual void setDouble(double, int, double) {}
    virtual void setBool(int, int, double) {}
    virtual void setColor(const Color&, int, double) {}
    virtual void setAColor(const AColor&, int, double) {}
    virtual void setString(const char*, int, double) {}
    virtual void setUserObject(PluginBase*, int, double) {}
    virtual void setVector(const Vector&, int, double) {}
    virtual void setMatrix(const Matrix&, int, double) {}
    virtual void setTransform(const TraceTransform&, int, double) {}
    virtual void setIntList(const PtrArray<int>&, double) {}
    virtual void setVectorList(const PtrArray<Vector>&, double) {}
    virtual void setFloatList(const PtrArray<float>&, double) {}
    virtual void setColorList(const PtrArray<Color>&, double) {}
    virtual void setAColorList(const PtrArray<AColor>&, double) {}
    virtual void setCount(int, double) {}
    virtual void reserve(int, double) {}
    virtual void setUserObject(PluginBase*, const char*, int, double) {}
    virtual void setValueList(const PtrArray<PluginBase*>&, double) {}
    virtual void setUserObject(void*, double, const char*) {}
    virtual void setStringList(const PtrArray<const char*>&, double) {}
    virtual void setDoubleList(const PtrArray<double>&, double) {}
    virtual void setMatrixList(const PtrArray<Matrix>&, double) {}
    virtual void setTransformList(const PtrArray<TraceTransform>&, double) {}
};

}  // namespace VUtils
