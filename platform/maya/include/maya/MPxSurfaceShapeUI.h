#pragma once
#include <maya/MTypes.h>

OPENMAYA_NAMESPACE_OPEN

// Legacy viewport interface of a surface shape. The host makes one per shape node and binds it
// to that node.
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

    void getDrawData(const void* geom, MDrawData& drawData);
    // The material assigned to the shape instance on the path.
    MMaterial material(MDagPath& path) const;
    MPxSurfaceShape* surfaceShape() const;

    MPxSurfaceShapeUI(const MPxSurfaceShapeUI&) = delete;
    MPxSurfaceShapeUI& operator=(const MPxSurfaceShapeUI&) = delete;

private:
    friend struct mayahost::detail::Access;
    MPxSurfaceShape* fShape;
};

OPENMAYA_NAMESPACE_CLOSE
