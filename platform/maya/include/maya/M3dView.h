#pragma once
#include <maya/MObject.h>
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

// A 3D viewport of the legacy viewport. The host's views draw nothing; they only tell one view
// from another.
class OPENMAYA_EXPORT M3dView {
public:
    enum DisplayStyle { kBoundingBox, kFlatShaded, kGouraudShaded, kWireFrame, kPoints };
    enum DisplayStatus {
        kActive,
        kLive,
        kDormant,
        kInvisible,
        kHilite,
        kTemplate,
        kActiveTemplate,
        kActiveComponent,
        kLead,
        kIntermediateObject,
        kActiveAffected,
        kNoStatus
    };
    enum ColorTable {
        kActiveColors = kActive,
        kDormantColors = kDormant,
        kTemplateColor = kTemplate,
        kBackgroundColor = kActiveTemplate
    };
    enum DisplayObjects {
        kDisplayEverything = ~0,
        kDisplayNurbsCurves = 1 << 0,
        kDisplayNurbsSurfaces = 1 << 1,
        kDisplayMeshes = 1 << 2
    };

    M3dView();
    M3dView(const M3dView& other) = default;
    M3dView& operator=(const M3dView& other) = default;
    virtual ~M3dView();

private:
    friend struct mayahost::detail::Access;
    unsigned int fViewId;  // 0 for a view that is not on screen
};

OPENMAYA_NAMESPACE_CLOSE
