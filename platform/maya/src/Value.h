#pragma once
#include <maya/MObject.h>
#include <maya/MString.h>
#include <maya/MTime.h>

namespace mayahost {
namespace detail {

// One attribute value. Every numeric field is kept in step by the setters so that a value can be
// read back as any numeric kind, as Maya's data handles allow. Laid out largest first: a large
// scene holds tens of thousands of these.
struct Value {
    double d = 0.0;
    void* addr = nullptr;
    MString str;
    MObject data;
    int i = 0;
    float f = 0.0f;
    MTime::Unit timeUnit = MTime::uiUnit();  // the time is d in this unit
    short s = 0;
    char c = 0;
    bool b = false;

    MTime time() const { return MTime(d, timeUnit); }
    void setNumber(double value);
    void setTime(const MTime& value);
    void setAddr(void* value);
    void setString(const MString& value);
    void setData(const MObject& value);
};

}  // namespace detail
}  // namespace mayahost
