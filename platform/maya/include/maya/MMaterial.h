#pragma once
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

// The shaded-display material of a shape instance. Whether it is textured is known at once;
// whether it is transparent only once it has been evaluated for a view.
class OPENMAYA_EXPORT MMaterial {
public:
    MMaterial();
    MMaterial(const MMaterial& in);
    ~MMaterial();
    MMaterial& operator=(const MMaterial& in);

    MStatus evaluateMaterial(M3dView& view, const MDagPath& path);
    MStatus evaluateTexture(MDrawData& data);
    bool materialIsTextured() const;
    MStatus getHasTransparency(bool& hasTransparency);

private:
    friend struct mayahost::detail::Access;
    bool fAssigned;   // false for a default-constructed material
    bool fEvaluates;  // whether evaluation succeeds
    bool fTextured;
    bool fTransparent;
    bool fEvaluated;
};

OPENMAYA_NAMESPACE_CLOSE
