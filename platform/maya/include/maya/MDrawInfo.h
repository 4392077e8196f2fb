#pragma once
#include <maya/M3dView.h>
#include <maya/MDrawRequest.h>

OPENMAYA_NAMESPACE_OPEN

// The state in which the legacy viewport asks a shape's UI for its draw requests.
class OPENMAYA_EXPORT MDrawInfo {
public:
    MDrawInfo();
    MDrawInfo(const MDrawInfo& in);
    virtual ~MDrawInfo();

    // A request carrying this info's path, view, display style and status, and no colour.
    MDrawRequest getPrototype(const MPxSurfaceShapeUI& drawHandler) const;
    M3dView view() const;
    const MDagPath multiPath() const;
    const MMatrix inclusiveMatrix() const;
    M3dView::DisplayStyle displayStyle() const;
    M3dView::DisplayStatus displayStatus() const;
    bool objectDisplayStatus(M3dView::DisplayObjects objects) const;

private:
    friend struct mayahost::detail::Access;
    MObject fPathNode;  // the host has no instancing: a path is known by its last node
    M3dView fView;
    M3dView::DisplayStyle fStyle;
    M3dView::DisplayStatus fStatus;
    unsigned int fShownObjects;  // M3dView::DisplayObjects bits
};

OPENMAYA_NAMESPACE_CLOSE
