#pragma once
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MTime {
public:
    enum Unit {
        kInvalid,
        kHours,
        kMinutes,
        kSeconds,
        kMilliseconds,
        k15FPS,
        kGames = k15FPS,
        k24FPS,
        kFilm = k24FPS,
        k25FPS,
        kPALFrame = k25FPS,
        k30FPS,
        kNTSCFrame = k30FPS,
        k48FPS,
        kShowScan = k48FPS,
        k50FPS,
        kPALField = k50FPS,
        k60FPS,
        kNTSCField = k60FPS,
        kLast
    };

    MTime();
    MTime(double value, Unit unit = kFilm);
    MTime(const MTime& other) = default;
    MTime& operator=(const MTime& other) = default;

    double value() const;
    Unit unit() const;
    double as(Unit unit) const;
    double asUnits(Unit unit) const;
    MStatus setValue(double value);
    MStatus setUnit(Unit unit);

    bool operator==(const MTime& other) const;
    bool operator!=(const MTime& other) const;

    static Unit uiUnit();
    static MStatus setUIUnit(Unit unit);

private:
    double fValue;
    Unit fUnit;
};

OPENMAYA_NAMESPACE_CLOSE
