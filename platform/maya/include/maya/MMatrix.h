#pragma once
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

// A 4x4 transformation matrix for row vectors: points are multiplied on the left, and the
// translation sits in the last row.
class OPENMAYA_EXPORT MMatrix {
public:
    MMatrix();
    MMatrix(const MMatrix& src) = default;
    MMatrix(const double m[4][4]);
    MMatrix& operator=(const MMatrix& src) = default;

    double operator()(unsigned int row, unsigned int col) const;
    const double* operator[](unsigned int row) const;
    double* operator[](unsigned int row);
    MMatrix operator*(const MMatrix& right) const;
    MMatrix& operator*=(const MMatrix& right);
    bool operator==(const MMatrix& other) const;
    bool operator!=(const MMatrix& other) const;
    bool isEquivalent(const MMatrix& other, double tolerance = 1.0e-10) const;

    static const MMatrix identity;

    double matrix[4][4];
};

OPENMAYA_NAMESPACE_CLOSE
