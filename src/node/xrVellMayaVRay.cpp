#include "node/xrVellMayaVRay.h"

#include <maya/MDataBlock.h>
#include <maya/MDataHandle.h>
#include <maya/MFnDagNode.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnStringData.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MFnUnitAttribute.h>
#include <maya/MGlobal.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>
#include <maya/MTime.h>

#include <iostream>

#include "node/VellFurNode.h"
#include "params/Vector.h"

namespace {

// The data type of the fur node's output; registered by the fur product's own plug-in.
const unsigned int kFurDataTypeId = 0x1158C6;
// The fur node is recognised by this exact type name and nothing else.
const char* const kFurNodeType = "xrVellMaya";

VUtils::Vector narrowed(const MPoint& corner) {
    return VUtils::Vector{static_cast<float>(corner.x), static_cast<float>(corner.y),
                          static_cast<float>(corner.z)};
}

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

void xrVellMayaVRay::postConstructor() {
    parameters.setOwner(this);
    setRenderable(true);
}

MStatus xrVellMayaVRay::compute(const MPlug& plug, MDataBlock& data) {
    if (plug != m_vrayGeomResult) return MStatus::kUnknownParameter;

    // Every request starts the fur node's render samples afresh at the current time.
    remove();
    updateSample();

    MPlug input(thisMObject(), m_inputData);
    MPlugArray sources;
    if (input.connectedTo(sources, true, false)) {
        MObject upstream = sources[0].node();
        MStatus bound;
        MFnDagNode furNode(upstream, &bound);
        if (bound == MStatus::kSuccess && furNode.typeName() == kFurNodeType) {
            copyFurSettings(furNode);
            copyRegionOfInterest();
        }
    }

    data.inputValue(m_time).asFloat();
    void* request = data.inputValue(m_vrayGeom).asAddr();
    if (request) createVRayPlugin(static_cast<VUtils::VRayGeomInfo*>(request));

    MDataHandle result = data.outputValue(m_vrayGeomResult);
    result.setInt(0);
    result.setClean();
    return MStatus::kSuccess;
}

// Time and the fur connection drive the result whatever else the host knows of them.
MStatus xrVellMayaVRay::setDependentsDirty(const MPlug& plug, MPlugArray& affected) {
    if (plug == m_inputData || plug == m_time)
        affected.append(MPlug(thisMObject(), m_vrayGeomResult));
    return MStatus::kSuccess;
}

// An attribute the fur node lacks leaves its parameter as it was.
void xrVellMayaVRay::copyFurSettings(MFnDependencyNode& furNode) {
    MPlug plug = furNode.findPlug("verbosity", false);
    if (!plug.isNull()) parameters.verbosity.setInt(plug.asShort(), -1, 0.0);
    plug = furNode.findPlug("renderDensity", false);
    if (!plug.isNull()) parameters.density.setFloat(plug.asFloat(), -1, 0.0);
    plug = furNode.findPlug("renderWidth", false);
    if (!plug.isNull()) parameters.width.setFloat(plug.asFloat(), -1, 0.0);
    plug = furNode.findPlug("renderLength", false);
    if (!plug.isNull()) parameters.length.setFloat(plug.asFloat(), -1, 0.0);
    plug = furNode.findPlug("imageSearchPath", false);
    if (!plug.isNull()) parameters.imageSearchPath.setString(plug.asString().asChar(), -1, 0.0);
    plug = furNode.findPlug("vrayDynamicHairTesselation", false);
    if (!plug.isNull()) parameters.dynamicHairTesselation.setInt(plug.asBool() ? 1 : 0, -1, 0.0);
    plug = furNode.findPlug("vraySegmentLength", false);
    if (!plug.isNull()) parameters.segmentLength.setFloat(plug.asFloat(), -1, 0.0);
}

void xrVellMayaVRay::copyRegionOfInterest() {
    VellFurNode* furNode = getConnectedVellNode();
    if (!furNode) return;
    parameters.obeyROI.setInt(furNode->getObeyROI() ? 1 : 0, -1, 0.0);
    const MBoundingBox region = furNode->getROIBoundingBox();
    parameters.minROI.setVector(narrowed(region.min()), -1, 0.0);
    parameters.maxROI.setVector(narrowed(region.max()), -1, 0.0);
}

void xrVellMayaVRay::createVRayPlugin(VUtils::VRayGeomInfo* geomInfo) {
    parameters.createPlugin(geomInfo);
}

bool xrVellMayaVRay::isBounded() const { return true; }

MBoundingBox xrVellMayaVRay::boundingBox() const {
    return const_cast<xrVellMayaVRay*>(this)->getConnectedBoundingBox();
}

// Only what feeds inputData counts; what inputData feeds elsewhere does not.
bool xrVellMayaVRay::findConnectedInput(MObject& upstream) {
    MPlug input(thisMObject(), m_inputData);
    MPlugArray sources;
    MStatus status;
    if (!input.connectedTo(sources, true, false, &status)) return false;
    upstream = sources[0].node();
    return true;
}

VellFurNode* xrVellMayaVRay::getConnectedVellNode() {
    MObject upstream;
    if (!findConnectedInput(upstream)) return nullptr;
    MFnDependencyNode furNode(upstream);
    if (furNode.typeName() != kFurNodeType) return nullptr;
    return static_cast<VellFurNode*>(furNode.userNode());
}

MBoundingBox xrVellMayaVRay::getConnectedBoundingBox() {
    MObject upstream;
    if (!findConnectedInput(upstream)) return MBoundingBox();
    MFnDagNode furNode(upstream);
    if (furNode.typeName() != kFurNodeType) {
        MGlobal::displayError("xrVellMayaVRay accessing invalid node - getConnectedBoundingBox!");
        return MBoundingBox();
    }
    return furNode.boundingBox();
}

MString xrVellMayaVRay::getConnectedShapeName() {
    MObject upstream;
    if (!findConnectedInput(upstream)) return MString();
    MFnDependencyNode furNode(upstream);
    if (furNode.typeName() != kFurNodeType) {
        MGlobal::displayError("xrVellMayaVRay accessing invalid node - getConnectedShapeName!");
        return MString();
    }
    return furNode.name();
}

float xrVellMayaVRay::getTime() {
    MPlug time(thisMObject(), m_time);
    return static_cast<float>(time.asMTime().value());
}

// The time reaches the fur node through single precision, as it always has.
void xrVellMayaVRay::updateSample() {
    const float time = getTime();
    VellFurNode* furNode = getConnectedVellNode();
    if (!furNode) return;
    furNode->updateRenderSample(static_cast<double>(time));
}

void xrVellMayaVRay::remove() {
    VellFurNode* furNode = getConnectedVellNode();
    if (!furNode) return;
    furNode->removeRenderSamples();
}

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
