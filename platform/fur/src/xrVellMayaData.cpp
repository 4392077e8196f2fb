#include "xrVellMayaData.h"

const char* const xrVellMayaData::typeName = "xrVellMayaData";
const MTypeId xrVellMayaData::id(0x1158C6);

void* xrVellMayaData::creator() { return new xrVellMayaData; }

void xrVellMayaData::copy(const MPxData&) {}

MTypeId xrVellMayaData::typeId() const { return id; }

MString xrVellMayaData::name() const { return typeName; }
