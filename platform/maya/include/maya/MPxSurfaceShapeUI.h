#pragma once
#include <maya/MTypes.h>

OPENMAYA_NAMESPACE_OPEN

// Legacy viewport interface of a surface shape. Maya binds each UI object to its shape node.
class OPENMAYA_EXPORT MPxSurfaceShapeUI {
public:
    MPxSurfaceShapeUI();
    virtual ~MPxSurfaceShapeUI();

    virtual void getDrawRequests(const MDrawInfo& info, bool objectAndActiveOnly,
                                 MDrawRequestQueue& requests);
    virtual void draw(const MDrawRequest& request, M3dView& view) const;
    virtual bool select(MSelectInfo& selectInfo, MSelectionList& selectionList,
                        MPointArray& worldSpaceSelectPts) const;
    virtual bool snap(MSelectInfo& snapInfo) const;
    virtual bool canDrawUV() const;

    MPxSurfaceShape* surfaceShape() const;

    MPxSurfaceShapeUI(const MPxSurfaceShapeUI&) = delete;
    MPxSurfaceShapeUI& operator=(const MPxSurfaceShapeUI&) = delete;

private:
    friend struct mayahost::detail::Access;
    MPxSurfaceShape* fShape;
};

OPENMAYA_NAMESPACE_CLOSE
