#include <maya/MTime.h>

#include "../HostState.h"

namespace {

// The length of one unit in seconds as an exact fraction, so that converting between units
// that share a rate (frame 1001 at 23.976 fps to itself, or to 47.952 fps) loses nothing.
struct Seconds {
    long long numerator;
    long long denominator;  // 0 for a unit that is no length of time
};

Seconds secondsPer(MTime::Unit unit) {
    switch (unit) {
        case MTime::kHours:
            return {3600, 1};
        case MTime::kMinutes:
            return {60, 1};
        case MTime::kSeconds:
            return {1, 1};
        case MTime::kMilliseconds:
            return {1, 1000};
        // The NTSC rates run at 1000/1001 of their whole-number counterparts.
        case MTime::k23_976FPS:
            return {1001, 24000};
        case MTime::k29_97FPS:
        case MTime::k29_97DF:  // drop-frame numbering, the same rate
            return {1001, 30000};
        case MTime::k47_952FPS:
            return {1001, 48000};
        case MTime::k59_94FPS:
            return {1001, 60000};
        default:
            break;
    }
    static const struct {
        MTime::Unit unit;
        int framesPerSecond;
    } rates[] = {{MTime::k15FPS, 15},       {MTime::k24FPS, 24},     {MTime::k25FPS, 25},
                 {MTime::k30FPS, 30},       {MTime::k48FPS, 48},     {MTime::k50FPS, 50},
                 {MTime::k60FPS, 60},       {MTime::k2FPS, 2},       {MTime::k3FPS, 3},
                 {MTime::k4FPS, 4},         {MTime::k5FPS, 5},       {MTime::k6FPS, 6},
                 {MTime::k8FPS, 8},         {MTime::k10FPS, 10},     {MTime::k12FPS, 12},
                 {MTime::k16FPS, 16},       {MTime::k20FPS, 20},     {MTime::k40FPS, 40},
                 {MTime::k75FPS, 75},       {MTime::k80FPS, 80},     {MTime::k100FPS, 100},
                 {MTime::k120FPS, 120},     {MTime::k125FPS, 125},   {MTime::k150FPS, 150},
                 {MTime::k200FPS, 200},     {MTime::k240FPS, 240},   {MTime::k250FPS, 250},
                 {MTime::k300FPS, 300},     {MTime::k375FPS, 375},   {MTime::k400FPS, 400},
                 {MTime::k500FPS, 500},     {MTime::k600FPS, 600},   {MTime::k750FPS, 750},
                 {MTime::k1200FPS, 1200},   {MTime::k1500FPS, 1500}, {MTime::k2000FPS, 2000},
                 {MTime::k3000FPS, 3000},   {MTime::k6000FPS, 6000}, {MTime::k44100FPS, 44100},
                 {MTime::k48000FPS, 48000}, {MTime::k90FPS, 90}};
    for (const auto& rate : rates)
        if (rate.unit == unit) return {1, rate.framesPerSecond};
    return {0, 0};
}

bool isTimeUnit(MTime::Unit unit) { return secondsPer(unit).denominator != 0; }

long long greatestCommonDivisor(long long a, long long b) {
    while (b != 0) {
        const long long rest = a % b;
        a = b;
        b = rest;
    }
    return a;
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
    if (unit == fUnit || !isTimeUnit(unit) || !isTimeUnit(fUnit)) return fValue;
    const Seconds from = secondsPer(fUnit);
    const Seconds to = secondsPer(unit);
    // value * (from / to), with the fraction reduced first so whole ratios stay exact.
    long long numerator = from.numerator * to.denominator;
    long long denominator = from.denominator * to.numerator;
    const long long common = greatestCommonDivisor(numerator, denominator);
    numerator /= common;
    denominator /= common;
    return fValue * static_cast<double>(numerator) / static_cast<double>(denominator);
}

double MTime::asUnits(Unit unit) const { return as(unit); }

MStatus MTime::setValue(double value) {
    fValue = value;
    return MStatus::kSuccess;
}

MStatus MTime::setUnit(Unit unit) {
    if (!isTimeUnit(unit)) return MStatus::kInvalidParameter;
    fUnit = unit;
    return MStatus::kSuccess;
}

bool MTime::operator==(const MTime& other) const { return as(kSeconds) == other.as(kSeconds); }
bool MTime::operator!=(const MTime& other) const { return !(*this == other); }

MTime::Unit MTime::uiUnit() { return uiUnitSetting(); }

MStatus MTime::setUIUnit(Unit unit) {
    if (!isTimeUnit(unit)) return MStatus::kInvalidParameter;
    uiUnitSetting() = unit;
    return MStatus::kSuccess;
}

OPENMAYA_NAMESPACE_CLOSE
