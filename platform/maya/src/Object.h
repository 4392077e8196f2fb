#pragma once
// Host-side objects behind Maya's handles (MObject, MPlug, MDataHandle ...).
#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MObject.h>
#include <maya/MPxNode.h>

namespace mayahost {
namespace detail {

// Reference counted by the MObject handles that point at it; the host keeps its own reference
// for as long as the object is part of the scene or a registry.
struct Object {
    virtual ~Object() = default;
    int references = 0;
};

void retain(Object* object);
void release(Object* object);

// Reaches the private parts of API classes that hold host objects.
struct Access {
    static Object* object(const MObject& handle) { return handle.fObj; }
    static MObject handle(Object* object);

    static MDataBlock dataBlock(Object& node) {
        MDataBlock block;
        block.fNode = &node;
        return block;
    }
    static MDataHandle dataHandle(Object& node, Object& attribute) {
        MDataHandle handle;
        handle.fNode = &node;
        handle.fAttribute = &attribute;
        return handle;
    }
    static void bind(MPxNode& user, Object* node) { user.fNode = node; }
    static Object* node(const MDataBlock& block) { return block.fNode; }
    static Object* node(const MDataHandle& handle) { return handle.fNode; }
    static Object* attribute(const MDataHandle& handle) { return handle.fAttribute; }

    template <class T>
    static T* as(const MObject& handle) {
        return dynamic_cast<T*>(handle.fObj);
    }
};

}  // namespace detail
}  // namespace mayahost
