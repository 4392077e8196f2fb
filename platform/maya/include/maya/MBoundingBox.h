#pragma once
#include <maya/MPoint.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MBoundingBox {
public:
    // A default box is empty: it holds no point until expanded.
    MBoundingBox();
    MBoundingBox(const MPoint& corner1, const MPoint& corner2);
    MBoundingBox(const MBoundingBox& other) = default;
    MBoundingBox& operator=(const MBoundingBox& other) = default;

    void clear();
    void expand(const MPoint& point);
    void expand(const MBoundingBox& box);
    bool contains(const MPoint& point) const;
    // Replaces the box by the box around its eight corners carried through the matrix.
    MStatus transformUsing(const MMatrix& matrix);
    double width() const;
    double height() const;
    double depth() const;
    MPoint center() const;
    MPoint min() const;
    MPoint max() const;

private:
    MPoint fMin;
    MPoint fMax;
    bool fEmpty;
};

OPENMAYA_NAMESPACE_CLOSE
