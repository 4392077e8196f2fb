#include <maya/MBoundingBox.h>
#include <maya/MMatrix.h>

#include <algorithm>

OPENMAYA_NAMESPACE_OPEN

const MPoint MPoint::origin;

bool MPoint::operator==(const MPoint& other) const {
    return x == other.x && y == other.y && z == other.z && w == other.w;
}

bool MPoint::operator!=(const MPoint& other) const { return !(*this == other); }

MPoint MPoint::operator*(const MMatrix& m) const {
    return MPoint(x * m[0][0] + y * m[1][0] + z * m[2][0] + w * m[3][0],
                  x * m[0][1] + y * m[1][1] + z * m[2][1] + w * m[3][1],
                  x * m[0][2] + y * m[1][2] + z * m[2][2] + w * m[3][2],
                  x * m[0][3] + y * m[1][3] + z * m[2][3] + w * m[3][3]);
}

MPoint& MPoint::operator*=(const MMatrix& right) { return *this = *this * right; }

MBoundingBox::MBoundingBox() : fEmpty(true) {}

MBoundingBox::MBoundingBox(const MPoint& corner1, const MPoint& corner2) : fEmpty(true) {
    expand(corner1);
    expand(corner2);
}

void MBoundingBox::clear() {
    fMin = MPoint();
    fMax = MPoint();
    fEmpty = true;
}

void MBoundingBox::expand(const MPoint& point) {
    if (fEmpty) {
        fMin = MPoint(point.x, point.y, point.z);
        fMax = fMin;
        fEmpty = false;
        return;
    }
    fMin = MPoint(std::min(fMin.x, point.x), std::min(fMin.y, point.y), std::min(fMin.z, point.z));
    fMax = MPoint(std::max(fMax.x, point.x), std::max(fMax.y, point.y), std::max(fMax.z, point.z));
}

void MBoundingBox::expand(const MBoundingBox& box) {
    if (box.fEmpty) return;
    expand(box.fMin);
    expand(box.fMax);
}

bool MBoundingBox::contains(const MPoint& p) const {
    return !fEmpty && p.x >= fMin.x && p.x <= fMax.x && p.y >= fMin.y && p.y <= fMax.y &&
           p.z >= fMin.z && p.z <= fMax.z;
}

MStatus MBoundingBox::transformUsing(const MMatrix& matrix) {
    if (fEmpty) return MStatus::kSuccess;
    const MPoint low = fMin;
    const MPoint high = fMax;
    clear();
    for (int corner = 0; corner < 8; ++corner) {
        const MPoint p((corner & 1) ? high.x : low.x, (corner & 2) ? high.y : low.y,
                       (corner & 4) ? high.z : low.z);
        expand(p * matrix);
    }
    return MStatus::kSuccess;
}

double MBoundingBox::width() const { return fMax.x - fMin.x; }
double MBoundingBox::height() const { return fMax.y - fMin.y; }
double MBoundingBox::depth() const { return fMax.z - fMin.z; }

MPoint MBoundingBox::center() const {
    return MPoint((fMin.x + fMax.x) / 2.0, (fMin.y + fMax.y) / 2.0, (fMin.z + fMax.z) / 2.0);
}

MPoint MBoundingBox::min() const { return fMin; }
MPoint MBoundingBox::max() const { return fMax; }

OPENMAYA_NAMESPACE_CLOSE
