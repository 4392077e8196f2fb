#pragma once
#include <maya/MBoundingBox.h>
#include <maya/MPxNode.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MPxSurfaceShape : public MPxNode {
public:
    MPxSurfaceShape();
    ~MPxSurfaceShape() override;
    Type type() const override;

    virtual bool isBounded() const;
    virtual MBoundingBox boundingBox() const;

    void setRenderable(bool renderable);
    bool isRenderable() const;

private:
    bool fRenderable;
};

OPENMAYA_NAMESPACE_CLOSE
