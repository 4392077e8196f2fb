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
        kGames,
        k15FPS = kGames,
        kFilm,
        k24FPS = kFilm,
        kPALFrame,
        k25FPS = kPALFrame,
        kNTSCFrame,
        k30FPS = kNTSCFrame,
        kShowScan,
        k48FPS = kShowScan,
        kPALField,
        k50FPS = kPALField,
        kNTSCField,
        k60FPS = kNTSCField,
        k2FPS,
        k3FPS,
        k4FPS,
        k5FPS,
        k6FPS,
        k8FPS,
        k10FPS,
        k12FPS,
        k16FPS,
        k20FPS,
        k40FPS,
        k75FPS,
        k80FPS,
        k100FPS,
        k120FPS,
        k125FPS,
        k150FPS,
        k200FPS,
        k240FPS,
        k250FPS,
        k300FPS,
        k375FPS,
        k400FPS,
        k500FPS,
        k600FPS,
        k750FPS,
        k1200FPS,
        k1500FPS,
        k2000FPS,
        k3000FPS,
        k6000FPS,
        k23_976FPS,
        k29_97FPS,
        k29_97DF,
        k47_952FPS,
        k59_94FPS,
        k44100FPS,
        k48000FPS,
        k90FPS,
        kUserDef,
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
