#include <maya/MTime.h>

#include "../HostState.h"

namespace {

double secondsPer(MTime::Unit unit) {
    switch (unit) {
        case MTime::kHours:
            return 3600.0;
        case MTime::kMinutes:
            return 60.0;
        case MTime::kSeconds:
            return 1.0;
        case MTime::kMilliseconds:
            return 0.001;
        case MTime::k15FPS:
            return 1.0 / 15.0;
        case MTime::k24FPS:
            return 1.0 / 24.0;
        case MTime::k25FPS:
            return 1.0 / 25.0;
        case MTime::k30FPS:
            return 1.0 / 30.0;
        case MTime::k48FPS:
            return 1.0 / 48.0;
        case MTime::k50FPS:
            return 1.0 / 50.0;
        case MTime::k60FPS:
            return 1.0 / 60.0;
        default:
            return 0.0;
    }
}

MTime::Unit& uiUnitSetting() {
    static MTime::Unit unit = MTime::kFilm;  // Maya's default: film, 24 frames per second
    return unit;
}

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MTime::MTime() : fValue(0.0), fUnit(uiUnit()) {}
MTime::MTime(double value, Unit unit) : fValue(value), fUnit(unit) {}

double MTime::value() const { return fValue; }
MTime::Unit MTime::unit() const { return fUnit; }

double MTime::as(Unit unit) const {
    const double target = secondsPer(unit);
    if (unit == fUnit || target == 0.0) return fValue;
    return fValue * secondsPer(fUnit) / target;
}

double MTime::asUnits(Unit unit) const { return as(unit); }

MStatus MTime::setValue(double value) {
    fValue = value;
    return MStatus::kSuccess;
}

MStatus MTime::setUnit(Unit unit) {
    if (secondsPer(unit) == 0.0) return MStatus::kInvalidParameter;
    fUnit = unit;
    return MStatus::kSuccess;
}

bool MTime::operator==(const MTime& other) const { return as(kSeconds) == other.as(kSeconds); }
bool MTime::operator!=(const MTime& other) const { return !(*this == other); }

MTime::Unit MTime::uiUnit() { return uiUnitSetting(); }

MStatus MTime::setUIUnit(Unit unit) {
    if (secondsPer(unit) == 0.0) return MStatus::kInvalidParameter;
    uiUnitSetting() = unit;
    return MStatus::kSuccess;
}

OPENMAYA_NAMESPACE_CLOSE
