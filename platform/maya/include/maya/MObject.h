#pragma once
#include <maya/MTypes.h>

OPENMAYA_NAMESPACE_OPEN

// A reference-counted handle to a host object: a node, an attribute, a data object or a plug-in.
class OPENMAYA_EXPORT MObject {
public:
    MObject();
    MObject(const MObject& other);
    ~MObject();
    MObject& operator=(const MObject& other);

    bool isNull() const;
    bool operator==(const MObject& other) const;
    bool operator!=(const MObject& other) const;

    static const MObject kNullObj;

private:
    friend struct mayahost::detail::Access;
    mayahost::detail::Object* fObj;
};

OPENMAYA_NAMESPACE_CLOSE
