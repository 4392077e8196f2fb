#include "ExportScene.h"

#include <mayahost/Renderer.h>

#include "vray/VRayParameterList.h"

void vrayrender::PrintTo(const RecordedValue& value, std::ostream* out) {
    *out << "kind " << static_cast<int>(value.kind) << " int " << value.intValue << " number "
         << value.number << " vector (" << value.vector[0] << ", " << value.vector[1] << ", "
         << value.vector[2] << ") text \"" << value.text << "\"" << (value.isNull ? " null" : "")
         << " list of " << value.list.size();
}

const std::vector<std::string> kAttachOrder = {
    "sampleGenerator", "density",         "length", "width",
    "verbosity",       "imageSearchPath", "file",   "dynamicHairTesselation",
    "segmentLength",   "obeyROI",         "minROI", "maxROI"};

using vrayrender::RecordedValue;

RecordedValue intValue(int v) {
    RecordedValue value;
    value.kind = RecordedValue::Kind::Int;
    value.intValue = v;
    return value;
}

RecordedValue floatValue(float v) {
    RecordedValue value;
    value.kind = RecordedValue::Kind::Float;
    value.number = v;
    return value;
}

RecordedValue vectorValue(float x, float y, float z) {
    RecordedValue value;
    value.kind = RecordedValue::Kind::Vector;
    value.vector[0] = x;
    value.vector[1] = y;
    value.vector[2] = z;
    return value;
}

RecordedValue textValue(const std::string& text) {
    RecordedValue value;
    value.kind = RecordedValue::Kind::String;
    value.text = text;
    return value;
}

RecordedValue emptyList() {
    RecordedValue value;
    value.kind = RecordedValue::Kind::FloatList;
    return value;
}

void ExportScene::SetUp() {
    FurScene::SetUp();
    registry.loadDirectories({FUR_VRAY_DIR});
    fur = createFur("furShape");
    bridge = addBridgeFor(fur, "bridgeShape");
}

MObject ExportScene::addBridgeFor(const MObject& furNode, const std::string& name) {
    MObject node = createBridge(name);
    connectFur(furNode, node);
    std::string error;
    EXPECT_EQ(mayahost::connect(mayahost::findPlug(mayahost::findNode("time1"), "outTime"),
                                mayahost::findPlug(node, "currentTime"), &error),
              MStatus::kSuccess)
        << error;
    return node;
}

int ExportScene::translate(const MObject& node, vrayrender::GeomRequest& request) {
    request.startTranslation();
    mayahost::setAddress(mayahost::findPlug(node, "vrayGeomInfo"), &request);
    const int result = mayahost::findPlug(node, "vrayGeomResult").asInt();
    mayahost::setAddress(mayahost::findPlug(node, "vrayGeomInfo"), nullptr);
    return result;
}

std::unique_ptr<vrayrender::GeomRequest> ExportScene::newRequest(bool reuse) {
    return std::make_unique<vrayrender::GeomRequest>(&registry, reuse, &instanceCounter);
}

VUtils::VRayPluginParameter* ExportScene::parameter(vrayrender::GeomRequest& request,
                                                    const char* name) {
    if (!request.current() || !request.current()->getParameterList()) return nullptr;
    return request.current()->getParameterList()->getParam(name);
}

VUtils::AnimatedParameterInterface* ExportScene::keyframes(vrayrender::GeomRequest& request,
                                                           const char* name) {
    VUtils::VRayPluginParameter* found = parameter(request, name);
    return found ? static_cast<VUtils::AnimatedParameterInterface*>(
                       found->newInterface(EXT_ANIMATEDPARAM))
                 : nullptr;
}

std::vector<std::string> ExportScene::parameterNames(vrayrender::GeomRequest& request) {
    std::vector<std::string> names;
    for (VUtils::VRayPluginParameter* entry : entries(request.current()))
        names.push_back(entry->getName());
    return names;
}

std::vector<VUtils::VRayPluginParameter*> ExportScene::entries(VUtils::VRayPlugin* instance) {
    std::vector<VUtils::VRayPluginParameter*> found;
    VUtils::VRayParameterList* list = instance ? instance->getParameterList() : nullptr;
    for (int i = 0; list && i < list->getNumParams(); ++i) found.push_back(list->getParam(i));
    return found;
}

vrayrender::RecordedValue ExportScene::value(vrayrender::GeomRequest& request, const char* name) {
    VUtils::VRayPluginParameter* found = parameter(request, name);
    return found ? vrayrender::readParameter(*found, 0.0) : vrayrender::RecordedValue();
}

std::map<std::string, vrayrender::RecordedValue> ExportScene::values(
    vrayrender::GeomRequest& request) {
    std::map<std::string, vrayrender::RecordedValue> all;
    for (VUtils::VRayPluginParameter* entry : entries(request.current()))
        all[entry->getName()] = vrayrender::readParameter(*entry, 0.0);
    return all;
}

std::vector<float> ExportScene::samples(vrayrender::GeomRequest& request) {
    const VUtils::PtrArray<float> view = parameter(request, "sampleGenerator")->getFloatList(0.0);
    return std::vector<float>(view.ptr, view.ptr + view.length);
}

std::vector<xrvellfur::FurCall> ExportScene::callsOf(xrvellfur::FurOperation operation) {
    std::vector<xrvellfur::FurCall> found;
    for (const xrvellfur::FurCall& call : furCalls())
        if (call.operation == operation) found.push_back(call);
    return found;
}
