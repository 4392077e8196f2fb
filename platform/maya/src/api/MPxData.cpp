#include <maya/MPxData.h>

OPENMAYA_NAMESPACE_OPEN

MPxData::MPxData() = default;
MPxData::~MPxData() = default;

OPENMAYA_NAMESPACE_CLOSE
