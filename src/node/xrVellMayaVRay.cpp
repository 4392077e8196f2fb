#include "node/xrVellMayaVRay.h"

#include <maya/MFnNumericAttribute.h>
#include <maya/MFnStringData.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MFnUnitAttribute.h>

#include <iostream>

namespace {

// The data type of the fur node's output; registered by the fur product's own plug-in.
const unsigned int kFurDataTypeId = 0x1158C6;

MStatus reportFailure(const char* message) {
    std::cerr << message;
    return MStatus::kFailure;
}

}  // namespace

// Constructed at library load in this order: type id, class strings, attribute handles.
MTypeId xrVellMayaVRay::id(0x1158D8);
MString xrVellMayaVRay::apiType("VRayGeometry");
MString xrVellMayaVRay::classification("geometry");

MObject xrVellMayaVRay::m_vrayGeom;
MObject xrVellMayaVRay::m_vrayGeomResult;
MObject xrVellMayaVRay::m_inputData;
MObject xrVellMayaVRay::m_time;
MObject xrVellMayaVRay::m_outApiType;
MObject xrVellMayaVRay::m_outApiClassification;

xrVellMayaVRay::xrVellMayaVRay() {}

xrVellMayaVRay::~xrVellMayaVRay() {}

void xrVellMayaVRay::postConstructor() { setRenderable(true); }

bool xrVellMayaVRay::isBounded() const { return true; }

void* xrVellMayaVRay::creator() { return new xrVellMayaVRay(); }

MStatus xrVellMayaVRay::initialize() {
    MFnNumericAttribute numeric;
    MFnTypedAttribute typed;
    MFnUnitAttribute unit;

    m_vrayGeom = numeric.createAddr("vrayGeomInfo", "vgi", NULL);
    numeric.setKeyable(false);
    numeric.setStorable(false);
    numeric.setReadable(true);
    numeric.setWritable(true);
    numeric.setHidden(true);
    if (addAttribute(m_vrayGeom) != MStatus::kSuccess)
        return reportFailure("xrVellMayaVRay : error adding m_vrayGeom attribute.\n");

    m_vrayGeomResult = numeric.create("vrayGeomResult", "vgr", MFnNumericData::kInt, 0);
    numeric.setKeyable(false);
    numeric.setStorable(false);
    numeric.setReadable(true);
    numeric.setWritable(false);
    numeric.setHidden(true);
    // The message names m_vrayGeom for this attribute as well; scripts match on it.
    if (addAttribute(m_vrayGeomResult) != MStatus::kSuccess)
        return reportFailure("xrVellMayaVRay : error adding m_vrayGeom attribute.\n");

    MFnStringData stringData;
    MObject apiTypeData = stringData.create(apiType);
    m_outApiType = typed.create("outApiType", "oat", MFnData::kString, apiTypeData);
    typed.setStorable(true);
    typed.setKeyable(false);
    typed.setHidden(true);
    if (addAttribute(m_outApiType) != MStatus::kSuccess)
        return reportFailure("xrVellMayaVRay : error adding m_outApiType attribute.\n");

    MObject classificationData = stringData.create(classification);
    m_outApiClassification =
        typed.create("outApiClassification", "oac", MFnData::kString, classificationData);
    typed.setStorable(true);
    typed.setKeyable(false);
    typed.setHidden(true);
    if (addAttribute(m_outApiClassification) != MStatus::kSuccess)
        return reportFailure("xrVellMayaVRay : error adding m_outApiClassification attribute.\n");

    m_inputData = typed.create("inputData", "vid", MTypeId(kFurDataTypeId), MObject::kNullObj);
    typed.setStorable(false);
    typed.setReadable(false);
    if (addAttribute(m_inputData) != MStatus::kSuccess)
        return reportFailure("xrVellMayaVRay : error adding m_inputData attribute.\n");

    m_time = unit.create("currentTime", "time", MFnUnitAttribute::kTime, 1.0);
    unit.setAffectsWorldSpace(true);
    unit.setStorable(false);
    // Carries the fur node's type name and no full stop; kept as existing logs show it.
    if (addAttribute(m_time) != MStatus::kSuccess)
        return reportFailure("xrVellMaya : error adding m_time attribute\n");

    // Only the last relation is checked: the first two never failed in practice.
    attributeAffects(m_vrayGeom, m_vrayGeomResult);
    attributeAffects(m_inputData, m_vrayGeomResult);
    if (attributeAffects(m_time, m_vrayGeomResult) != MStatus::kSuccess)
        return reportFailure("xrVellMayaVRay : error in attributeAffects\n");

    return MStatus::kSuccess;
}
