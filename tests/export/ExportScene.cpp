#include "ExportScene.h"

#include <mayahost/Renderer.h>

#include "vray/VRayParameterList.h"

void vrayrender::PrintTo(const RecordedValue& value, std::ostream* out) {
    *out << "kind " << static_cast<int>(value.kind) << " int " << value.intValue << " number "
         << value.number << " vector (" << value.vector[0] << ", " << value.vector[1] << ", "
         << value.vector[2] << ") text \"" << value.text << "\"" << (value.isNull ? " null" : "")
         << " list of " << value.list.size();
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
    VUtils::VRayParameterList* list =
        request.current() ? request.current()->getParameterList() : nullptr;
    for (int i = 0; list && i < list->getNumParams(); ++i)
        names.push_back(list->getParam(i)->getName());
    return names;
}

vrayrender::RecordedValue ExportScene::value(vrayrender::GeomRequest& request, const char* name) {
    VUtils::VRayPluginParameter* found = parameter(request, name);
    return found ? vrayrender::readParameter(*found, 0.0) : vrayrender::RecordedValue();
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
