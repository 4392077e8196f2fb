#pragma once
#include <maya/MApiNamespace.h>

#define PLUGIN_EXPORT __attribute__((visibility("default")))

#ifndef NULL
#define NULL 0
#endif

OPENMAYA_NAMESPACE_OPEN
typedef void* (*MCreatorFunction)();
typedef MStatus (*MInitializeFunction)();
OPENMAYA_NAMESPACE_CLOSE

using Autodesk::Maya::OpenMaya20220000::MCreatorFunction;
using Autodesk::Maya::OpenMaya20220000::MInitializeFunction;
