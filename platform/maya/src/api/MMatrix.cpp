#include <maya/MMatrix.h>

#include <cmath>

OPENMAYA_NAMESPACE_OPEN

const MMatrix MMatrix::identity;

MMatrix::MMatrix() {
    for (unsigned int row = 0; row < 4; ++row)
        for (unsigned int col = 0; col < 4; ++col) matrix[row][col] = row == col ? 1.0 : 0.0;
}

MMatrix::MMatrix(const double m[4][4]) {
    for (unsigned int row = 0; row < 4; ++row)
        for (unsigned int col = 0; col < 4; ++col) matrix[row][col] = m[row][col];
}

double MMatrix::operator()(unsigned int row, unsigned int col) const { return matrix[row][col]; }
const double* MMatrix::operator[](unsigned int row) const { return matrix[row]; }
double* MMatrix::operator[](unsigned int row) { return matrix[row]; }

MMatrix MMatrix::operator*(const MMatrix& right) const {
    MMatrix product;
    for (unsigned int row = 0; row < 4; ++row) {
        for (unsigned int col = 0; col < 4; ++col) {
            double sum = 0.0;
            for (unsigned int k = 0; k < 4; ++k) sum += matrix[row][k] * right.matrix[k][col];
            product.matrix[row][col] = sum;
        }
    }
    return product;
}

MMatrix& MMatrix::operator*=(const MMatrix& right) { return *this = *this * right; }

bool MMatrix::operator==(const MMatrix& other) const { return isEquivalent(other, 0.0); }
bool MMatrix::operator!=(const MMatrix& other) const { return !(*this == other); }

bool MMatrix::isEquivalent(const MMatrix& other, double tolerance) const {
    for (unsigned int row = 0; row < 4; ++row)
        for (unsigned int col = 0; col < 4; ++col)
            if (std::fabs(matrix[row][col] - other.matrix[row][col]) > tolerance) return false;
    return true;
}

OPENMAYA_NAMESPACE_CLOSE
