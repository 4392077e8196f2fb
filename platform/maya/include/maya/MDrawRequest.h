#pragma once
#include <maya/M3dView.h>
#include <maya/MObject.h>

OPENMAYA_NAMESPACE_OPEN

// One request to draw (part of) a shape, made from MDrawInfo::getPrototype.
class OPENMAYA_EXPORT MDrawRequest {
public:
    MDrawRequest();
    MDrawRequest(const MDrawRequest& in);
    ~MDrawRequest();
    MDrawRequest& operator=(const MDrawRequest& other);

    M3dView view() const;
    void setView(M3dView& view);
    const MDagPath multiPath() const;
    void setMultiPath(const MDagPath& path);
    MDrawData drawData() const;
    void setDrawData(MDrawData& data);
    M3dView::DisplayStatus displayStatus() const;
    void setDisplayStatus(M3dView::DisplayStatus status);
    M3dView::DisplayStyle displayStyle() const;
    void setDisplayStyle(M3dView::DisplayStyle style);
    // The colour index for the table the colour was set in; -1 for any other table.
    int color(M3dView::ColorTable table) const;
    void setColor(int colorIndex, M3dView::ColorTable table);
    MMaterial material() const;
    void setMaterial(MMaterial& material);
    bool isTransparent() const;
    void setIsTransparent(bool transparent);
    int token() const;
    void setToken(int token);

private:
    friend struct mayahost::detail::Access;
    // Path, data and material are only declared here, as in Maya's own header.
    mayahost::detail::DrawRequestState* fState;
};

OPENMAYA_NAMESPACE_CLOSE
