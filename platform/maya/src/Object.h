#pragma once
// Host-side objects behind Maya's handles (MObject, MPlug, MDataHandle ...).
#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MObject.h>
#include <maya/MPxNode.h>

namespace mayahost {
struct MaterialSettings;
struct QueuedRequest;

namespace detail {

// Reference counted by the MObject handles that point at it; the host keeps its own reference
// for as long as the object is part of the scene or a registry.
struct NodeObj;
struct AttributeObj;

struct Object {
    virtual ~Object() = default;
    // What the object is, told without a dynamic_cast: every plug access resolves its handles.
    virtual NodeObj* asNode() { return nullptr; }
    virtual AttributeObj* asAttribute() { return nullptr; }
    int references = 0;
};

struct DrawDataObj;

// Inline: every copy and end of a handle or plug goes through these.
inline void retain(Object* object) {
    if (object) ++object->references;
}

inline void release(Object* object) {
    if (object && --object->references == 0) delete object;
}

// Reaches the private parts of API classes that hold host objects.
struct Access {
    static Object* object(const MObject& handle) { return handle.fObj; }
    static MObject handle(Object* object) {
        MObject result;
        result.fObj = object;
        retain(object);
        return result;
    }

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

    // DAG paths and the legacy viewport (Viewport.cpp, api/MDagPath.cpp).
    static MDagPath dagPath(Object* node);
    static Object* node(const MDagPath& path);
    static void bind(MPxSurfaceShapeUI& ui, MPxSurfaceShape* shape);
    static M3dView view(unsigned int id);
    static void setUp(MDrawInfo& info, const MDagPath& path, const M3dView& view, int style,
                      int status, unsigned int shownObjects);
    static void setUp(MSelectInfo& info, const MDagPath& path, bool singleSelection);
    static SelectionRecord& record(const MSelectInfo& info);
    static SelectionItems& items(const MSelectionList& list);
    static unsigned long long types(const MSelectionMask& mask);
    static void assign(MDrawData& to, const MDrawData& from);
    static void setGeometry(MDrawData& data, const void* geometry);
    static void markTextureEvaluated(MDrawData& data);
    static const DrawDataObj& contents(const MDrawData& data);
    static MMaterial material(const MaterialSettings& settings);
    static QueuedRequest describe(const MDrawRequest& request);
};

}  // namespace detail
}  // namespace mayahost
