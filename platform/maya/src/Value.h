#pragma once
#include <maya/MObject.h>
#include <maya/MString.h>
#include <maya/MTime.h>

namespace mayahost {
namespace detail {

// One attribute value. Every numeric field is kept in step by the setters so that a value can be
// read back as any numeric kind, as Maya's data handles allow.
struct Value {
    bool b = false;
    char c = 0;
    short s = 0;
    int i = 0;
    float f = 0.0f;
    double d = 0.0;
    void* addr = nullptr;
    MString str;
    MTime time;
    MObject data;

    void setNumber(double value);
    void setTime(const MTime& value);
    void setAddr(void* value);
    void setString(const MString& value);
    void setData(const MObject& value);
};

}  // namespace detail
}  // namespace mayahost
