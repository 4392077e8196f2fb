#pragma once
// Maya 2022 keeps its API classes in a versioned namespace and lifts them to global scope, so
// plug-in symbols carry the version in their mangled names. Forward declarations go through
// this header; a bare `class MObject;` would declare a different, global class.

#define OPENMAYA_NAMESPACE OpenMaya20220000
#define OPENMAYA_NAMESPACE_OPEN \
    namespace Autodesk {        \
    namespace Maya {            \
    namespace OpenMaya20220000 {
#define OPENMAYA_NAMESPACE_CLOSE \
    }                            \
    }                            \
    }

#define OPENMAYA_EXPORT __attribute__((visibility("default")))

OPENMAYA_NAMESPACE_OPEN
class M3dView;
class MBoundingBox;
class MDagPath;
class MDataBlock;
class MDataHandle;
class MDrawData;
class MDrawInfo;
class MDrawRequest;
class MDrawRequestQueue;
class MFnAttribute;
class MFnBase;
class MFnDagNode;
class MFnData;
class MFnDependencyNode;
class MFnNumericAttribute;
class MFnNumericData;
class MFnPlugin;
class MFnStringData;
class MFnTypedAttribute;
class MFnUnitAttribute;
class MGlobal;
class MMaterial;
class MMatrix;
class MObject;
class MPlug;
class MPlugArray;
class MPoint;
class MPointArray;
class MPxData;
class MPxNode;
class MPxSurfaceShape;
class MPxSurfaceShapeUI;
class MSelectInfo;
class MSelectionList;
class MSelectionMask;
class MStatus;
class MString;
class MTime;
class MTypeId;
OPENMAYA_NAMESPACE_CLOSE

using Autodesk::Maya::OpenMaya20220000::M3dView;
using Autodesk::Maya::OpenMaya20220000::MBoundingBox;
using Autodesk::Maya::OpenMaya20220000::MDagPath;
using Autodesk::Maya::OpenMaya20220000::MDataBlock;
using Autodesk::Maya::OpenMaya20220000::MDataHandle;
using Autodesk::Maya::OpenMaya20220000::MDrawData;
using Autodesk::Maya::OpenMaya20220000::MDrawInfo;
using Autodesk::Maya::OpenMaya20220000::MDrawRequest;
using Autodesk::Maya::OpenMaya20220000::MDrawRequestQueue;
using Autodesk::Maya::OpenMaya20220000::MFnAttribute;
using Autodesk::Maya::OpenMaya20220000::MFnBase;
using Autodesk::Maya::OpenMaya20220000::MFnDagNode;
using Autodesk::Maya::OpenMaya20220000::MFnData;
using Autodesk::Maya::OpenMaya20220000::MFnDependencyNode;
using Autodesk::Maya::OpenMaya20220000::MFnNumericAttribute;
using Autodesk::Maya::OpenMaya20220000::MFnNumericData;
using Autodesk::Maya::OpenMaya20220000::MFnPlugin;
using Autodesk::Maya::OpenMaya20220000::MFnStringData;
using Autodesk::Maya::OpenMaya20220000::MFnTypedAttribute;
using Autodesk::Maya::OpenMaya20220000::MFnUnitAttribute;
using Autodesk::Maya::OpenMaya20220000::MGlobal;
using Autodesk::Maya::OpenMaya20220000::MMaterial;
using Autodesk::Maya::OpenMaya20220000::MMatrix;
using Autodesk::Maya::OpenMaya20220000::MObject;
using Autodesk::Maya::OpenMaya20220000::MPlug;
using Autodesk::Maya::OpenMaya20220000::MPlugArray;
using Autodesk::Maya::OpenMaya20220000::MPoint;
using Autodesk::Maya::OpenMaya20220000::MPointArray;
using Autodesk::Maya::OpenMaya20220000::MPxData;
using Autodesk::Maya::OpenMaya20220000::MPxNode;
using Autodesk::Maya::OpenMaya20220000::MPxSurfaceShape;
using Autodesk::Maya::OpenMaya20220000::MPxSurfaceShapeUI;
using Autodesk::Maya::OpenMaya20220000::MSelectInfo;
using Autodesk::Maya::OpenMaya20220000::MSelectionList;
using Autodesk::Maya::OpenMaya20220000::MSelectionMask;
using Autodesk::Maya::OpenMaya20220000::MStatus;
using Autodesk::Maya::OpenMaya20220000::MString;
using Autodesk::Maya::OpenMaya20220000::MTime;
using Autodesk::Maya::OpenMaya20220000::MTypeId;

// Host-internal objects behind the API handles; not part of Maya's API.
namespace mayahost {
namespace detail {
struct Access;
struct DrawQueue;
struct DrawRequestState;
struct Object;
struct SelectionItems;
struct SelectionRecord;
}  // namespace detail
}  // namespace mayahost
