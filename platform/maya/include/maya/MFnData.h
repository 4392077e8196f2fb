#pragma once
#include <maya/MFnBase.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MFnData : public MFnBase {
public:
    enum Type {
        kInvalid,
        kNumeric,
        kPlugin,
        kPluginGeometry,
        kString,
        kMatrix,
        kStringArray,
        kDoubleArray,
        kFloatArray,
        kIntArray,
        kPointArray,
        kVectorArray,
        kMatrixArray,
        kComponentList,
        kMesh,
        kLattice,
        kNurbsCurve,
        kNurbsSurface,
        kSphere,
        kDynArrayAttrs,
        kDynSweptGeometry,
        kSubdSurface,
        kNObject,
        kNId,
        kAny,
        kLast
    };

protected:
    MFnData() = default;
};

OPENMAYA_NAMESPACE_CLOSE
