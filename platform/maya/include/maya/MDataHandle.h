#pragma once
#include <maya/MObject.h>

OPENMAYA_NAMESPACE_OPEN

// A view of one attribute's value in a node's data block. The reference getters hand out the
// stored field of that kind; the setters keep every kind of the value consistent.
class OPENMAYA_EXPORT MDataHandle {
public:
    MDataHandle();

    bool& asBool() const;
    char& asChar() const;
    short& asShort() const;
    int& asInt() const;
    float& asFloat() const;
    double& asDouble() const;
    void*& asAddr() const;
    MString& asString() const;
    MTime asTime() const;
    MObject data();

    void setBool(bool value);
    void setChar(char value);
    void setShort(short value);
    void setInt(int value);
    void setFloat(float value);
    void setDouble(double value);
    void setString(const MString& value);
    void setMTime(const MTime& value);
    void setClean();

private:
    friend struct mayahost::detail::Access;
    mayahost::detail::Object* fNode;
    mayahost::detail::Object* fAttribute;
};

OPENMAYA_NAMESPACE_CLOSE
