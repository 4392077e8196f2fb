#pragma once
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MSelectionMask {
public:
    // The first of Maya's selection types, with their values.
    enum SelectionType {
        kSelectHandles,
        kSelectLocalAxis,
        kSelectIkHandles,
        kSelectIkEndEffectors,
        kSelectJoints,
        kSelectLights,
        kSelectCameras,
        kSelectLattices,
        kSelectClusters,
        kSelectSculpts,
        kSelectNurbsCurves,
        kSelectNurbsSurfaces,
        kSelectMeshes
    };

    MSelectionMask();
    MSelectionMask(SelectionType selType);
    MSelectionMask(const MSelectionMask& in);
    virtual ~MSelectionMask();
    MSelectionMask& operator=(const MSelectionMask& other);

    MStatus setMask(SelectionType selType);
    MStatus addMask(SelectionType selType);
    bool intersects(SelectionType selType, MStatus* ReturnStatus = NULL) const;

private:
    friend struct mayahost::detail::Access;
    unsigned long long fTypes;  // one bit per selection type
};

OPENMAYA_NAMESPACE_CLOSE
