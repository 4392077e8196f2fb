#include <xrvellfur/xrVellMaya.h>

#include <maya/MFnNumericAttribute.h>
#include <maya/MFnStringData.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MPlug.h>

#include <algorithm>
#include <cstring>

#include "CacheFileName.h"
#include "FurCallLog.h"
#include "xrVellMayaData.h"

using xrvellfur::FurCall;
using xrvellfur::FurOperation;

namespace {

// Attribute handles, set once by initialize.
MObject outputData;
MObject cacheFilePattern;
MObject obeyROI;
MObject boxCorners[6];  // min x y z, max x y z, in object space
MObject roiCorners[6];

struct NumericDefinition {
    const char* longName;
    const char* shortName;
    MFnNumericData::Type type;
    double value;
};

// The render settings the bridge reads by name.
const NumericDefinition kRenderSettings[] = {
    {"verbosity", "vb", MFnNumericData::kShort, 0.0},
    {"renderDensity", "rd", MFnNumericData::kFloat, 1.0},
    {"renderWidth", "rw", MFnNumericData::kFloat, 1.0},
    {"renderLength", "rl", MFnNumericData::kFloat, 1.0},
    {"vraySegmentLength", "vsl", MFnNumericData::kFloat, 0.5},
    {"vrayDynamicHairTesselation", "vdht", MFnNumericData::kBoolean, 0.0},
};

const NumericDefinition kBoxCorners[] = {
    {"boxMinX", "bnx", MFnNumericData::kDouble, -1.0},
    {"boxMinY", "bny", MFnNumericData::kDouble, -1.0},
    {"boxMinZ", "bnz", MFnNumericData::kDouble, -1.0},
    {"boxMaxX", "bxx", MFnNumericData::kDouble, 1.0},
    {"boxMaxY", "bxy", MFnNumericData::kDouble, 1.0},
    {"boxMaxZ", "bxz", MFnNumericData::kDouble, 1.0},
};

const NumericDefinition kRoiCorners[] = {
    {"roiMinX", "rnx", MFnNumericData::kDouble, -1.0},
    {"roiMinY", "rny", MFnNumericData::kDouble, -1.0},
    {"roiMinZ", "rnz", MFnNumericData::kDouble, -1.0},
    {"roiMaxX", "rxx", MFnNumericData::kDouble, 1.0},
    {"roiMaxY", "rxy", MFnNumericData::kDouble, 1.0},
    {"roiMaxZ", "rxz", MFnNumericData::kDouble, 1.0},
};

#ifdef XRVELL_FUR_OMITTED_SETTING
// A test build of the node without one of its render settings, to show what a reader of the
// settings does with a fur node that lacks one.
const char* const kOmittedSetting = XRVELL_FUR_OMITTED_SETTING;
#else
const char* const kOmittedSetting = "";
#endif

bool isOmitted(const char* longName) { return std::strcmp(longName, kOmittedSetting) == 0; }

MStatus addNumeric(const NumericDefinition& definition, MObject* handle) {
    MFnNumericAttribute numeric;
    MObject attribute = numeric.create(definition.longName, definition.shortName, definition.type,
                                       definition.value);
    numeric.setKeyable(true);
    if (handle) *handle = attribute;
    return MPxNode::addAttribute(attribute);
}

MStatus addString(const char* longName, const char* shortName, MObject* handle) {
    MFnStringData text;
    MObject empty = text.create("");
    MFnTypedAttribute typed;
    MObject attribute = typed.create(longName, shortName, MFnData::kString, empty);
    if (handle) *handle = attribute;
    return MPxNode::addAttribute(attribute);
}

MStatus addOutput() {
    MFnTypedAttribute typed;
    outputData = typed.create("outputData", "od", xrVellMayaData::id, MObject::kNullObj);
    typed.setWritable(false);
    typed.setStorable(false);
    return MPxNode::addAttribute(outputData);
}

MStatus addCorners(const NumericDefinition (&definitions)[6], MObject (&handles)[6]) {
    for (int i = 0; i < 6; ++i) {
        const MStatus status = addNumeric(definitions[i], &handles[i]);
        if (status != MStatus::kSuccess) return status;
    }
    return MStatus::kSuccess;
}

}  // namespace

#ifdef XRVELL_FUR_NODE_TYPE
// A test build whose node differs from the fur node in its type name alone, to show that the
// bridge goes by that name.
const char* const xrVellMaya::typeName = XRVELL_FUR_NODE_TYPE;
#else
const char* const xrVellMaya::typeName = "xrVellMaya";
#endif
const MTypeId xrVellMaya::id(0x1158C5);

xrVellMaya::xrVellMaya() = default;
xrVellMaya::~xrVellMaya() = default;

void* xrVellMaya::creator() { return new xrVellMaya; }

MStatus xrVellMaya::initialize() {
    MStatus status = addOutput();
    for (const NumericDefinition& setting : kRenderSettings)
        if (status == MStatus::kSuccess && !isOmitted(setting.longName))
            status = addNumeric(setting, nullptr);
    if (status == MStatus::kSuccess && !isOmitted("imageSearchPath"))
        status = addString("imageSearchPath", "isp", nullptr);
    if (status == MStatus::kSuccess)
        status = addString("cacheFilePattern", "cfp", &cacheFilePattern);
    if (status == MStatus::kSuccess)
        status = addNumeric({"obeyROI", "oroi", MFnNumericData::kBoolean, 0.0}, &obeyROI);
    if (status == MStatus::kSuccess) status = addCorners(kBoxCorners, boxCorners);
    if (status == MStatus::kSuccess) status = addCorners(kRoiCorners, roiCorners);
    return status;
}

bool xrVellMaya::isBounded() const { return true; }

MBoundingBox xrVellMaya::boundingBox() const {
    xrvellfur::recordCall(FurCall{name().asChar(), FurOperation::BoundingBox});
    return boxFrom(boxCorners);
}

int xrVellMaya::renderSampleCount() {
    xrvellfur::recordCall(FurCall{name().asChar(), FurOperation::RenderSampleCount});
    return static_cast<int>(fSamples.size());
}

void xrVellMaya::updateRenderSample(double time) {
    FurCall call{name().asChar(), FurOperation::UpdateRenderSample};
    call.time = time;
    xrvellfur::recordCall(call);
    const auto at = std::lower_bound(fSamples.begin(), fSamples.end(), time);
    if (at == fSamples.end() || *at != time) fSamples.insert(at, time);
}

void xrVellMaya::removeRenderSamples() {
    xrvellfur::recordCall(FurCall{name().asChar(), FurOperation::RemoveRenderSamples});
    fSamples.clear();
}

void xrVellMaya::removeRenderSamplesBefore(double time) {
    FurCall call{name().asChar(), FurOperation::RemoveRenderSamplesBefore};
    call.time = time;
    xrvellfur::recordCall(call);
    fSamples.erase(fSamples.begin(), std::lower_bound(fSamples.begin(), fSamples.end(), time));
}

double xrVellMaya::renderSampleTime(int index) {
    FurCall call{name().asChar(), FurOperation::RenderSampleTime};
    call.index = index;
    xrvellfur::recordCall(call);
    const bool inRange = index >= 0 && static_cast<std::size_t>(index) < fSamples.size();
    return inRange ? fSamples[static_cast<std::size_t>(index)] : 0.0;
}

std::string xrVellMaya::getCacheFileName(int frame, int second) {
    FurCall call{name().asChar(), FurOperation::GetCacheFileName};
    call.frame = frame;
    call.second = second;
    xrvellfur::recordCall(call);
    const MString pattern = MPlug(thisMObject(), cacheFilePattern).asString();
    return xrvellfur::cacheFileName(pattern.asChar(), frame);
}

std::string xrVellMaya::getCacheFilePattern() {
    xrvellfur::recordCall(FurCall{name().asChar(), FurOperation::GetCacheFilePattern});
    return MPlug(thisMObject(), cacheFilePattern).asString().asChar();
}

bool xrVellMaya::getObeyROI() {
    xrvellfur::recordCall(FurCall{name().asChar(), FurOperation::GetObeyROI});
    return MPlug(thisMObject(), obeyROI).asBool();
}

MBoundingBox xrVellMaya::getROIBoundingBox() {
    xrvellfur::recordCall(FurCall{name().asChar(), FurOperation::GetROIBoundingBox});
    return boxFrom(roiCorners);
}

MBoundingBox xrVellMaya::boxFrom(const MObject* corners) const {
    return MBoundingBox(MPoint(number(corners[0]), number(corners[1]), number(corners[2])),
                        MPoint(number(corners[3]), number(corners[4]), number(corners[5])));
}

double xrVellMaya::number(const MObject& attribute) const {
    return MPlug(thisMObject(), attribute).asDouble();
}
