#pragma once
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MPoint {
public:
    MPoint() : x(0.0), y(0.0), z(0.0), w(1.0) {}
    MPoint(double xx, double yy, double zz = 0.0, double ww = 1.0) : x(xx), y(yy), z(zz), w(ww) {}
    MPoint(const MPoint& other) = default;
    MPoint& operator=(const MPoint& other) = default;

    // The point as a row vector times the matrix; w takes part and is not divided out.
    MPoint operator*(const MMatrix& right) const;
    MPoint& operator*=(const MMatrix& right);
    bool operator==(const MPoint& other) const;
    bool operator!=(const MPoint& other) const;

    static const MPoint origin;

    double x;
    double y;
    double z;
    double w;
};

OPENMAYA_NAMESPACE_CLOSE
