#include <maya/MDrawRequest.h>
#include <maya/MDrawRequestQueue.h>

#include "../Viewport.h"

using namespace mayahost::detail;

namespace mayahost {
namespace detail {

void Access::assign(MDrawData& to, const MDrawData& from) { to = from; }
void Access::setGeometry(MDrawData& data, const void* geometry) {
    static_cast<DrawDataObj*>(data.fData)->geometry = geometry;
}
void Access::markTextureEvaluated(MDrawData& data) {
    static_cast<DrawDataObj*>(data.fData)->textureEvaluated = true;
}
const DrawDataObj& Access::contents(const MDrawData& data) {
    return *static_cast<const DrawDataObj*>(data.fData);
}

}  // namespace detail
}  // namespace mayahost

OPENMAYA_NAMESPACE_OPEN

MDrawData::MDrawData() : fData(new DrawDataObj) { retain(fData); }
MDrawData::MDrawData(const MDrawData& in) : fData(in.fData) { retain(fData); }
MDrawData::~MDrawData() { release(fData); }

MDrawData& MDrawData::operator=(const MDrawData& in) {
    retain(in.fData);
    release(fData);
    fData = in.fData;
    return *this;
}

void* MDrawData::geometry() {
    return const_cast<void*>(static_cast<DrawDataObj*>(fData)->geometry);
}

MDrawRequest::MDrawRequest() : fState(new DrawRequestState) {}
MDrawRequest::MDrawRequest(const MDrawRequest& in) : fState(new DrawRequestState(*in.fState)) {}
MDrawRequest::~MDrawRequest() { delete fState; }

MDrawRequest& MDrawRequest::operator=(const MDrawRequest& other) {
    const DrawRequestState& from = *other.fState;
    fState->view = from.view;
    fState->path = from.path;
    Access::assign(fState->data, from.data);
    fState->material = from.material;
    fState->status = from.status;
    fState->style = from.style;
    fState->colorIndex = from.colorIndex;
    fState->colorTable = from.colorTable;
    fState->transparent = from.transparent;
    fState->token = from.token;
    return *this;
}

M3dView MDrawRequest::view() const { return fState->view; }
void MDrawRequest::setView(M3dView& view) { fState->view = view; }
const MDagPath MDrawRequest::multiPath() const { return fState->path; }
void MDrawRequest::setMultiPath(const MDagPath& path) { fState->path = path; }
MDrawData MDrawRequest::drawData() const { return fState->data; }
void MDrawRequest::setDrawData(MDrawData& data) { Access::assign(fState->data, data); }
M3dView::DisplayStatus MDrawRequest::displayStatus() const { return fState->status; }
void MDrawRequest::setDisplayStatus(M3dView::DisplayStatus status) { fState->status = status; }
M3dView::DisplayStyle MDrawRequest::displayStyle() const { return fState->style; }
void MDrawRequest::setDisplayStyle(M3dView::DisplayStyle style) { fState->style = style; }

int MDrawRequest::color(M3dView::ColorTable table) const {
    return fState->colorTable == table ? fState->colorIndex : -1;
}

void MDrawRequest::setColor(int colorIndex, M3dView::ColorTable table) {
    fState->colorIndex = colorIndex;
    fState->colorTable = table;
}

MMaterial MDrawRequest::material() const { return fState->material; }
void MDrawRequest::setMaterial(MMaterial& material) { fState->material = material; }
bool MDrawRequest::isTransparent() const { return fState->transparent; }
void MDrawRequest::setIsTransparent(bool transparent) { fState->transparent = transparent; }
int MDrawRequest::token() const { return fState->token; }
void MDrawRequest::setToken(int token) { fState->token = token; }

MDrawRequestQueue::MDrawRequestQueue() : fQueue(new DrawQueue) {}
MDrawRequestQueue::MDrawRequestQueue(const MDrawRequestQueue& in)
    : fQueue(new DrawQueue(*in.fQueue)) {}
MDrawRequestQueue::~MDrawRequestQueue() { delete fQueue; }

MDrawRequestQueue& MDrawRequestQueue::operator=(const MDrawRequestQueue& in) {
    if (this != &in) *fQueue = *in.fQueue;
    return *this;
}

bool MDrawRequestQueue::isEmpty() const { return fQueue->requests.empty(); }
void MDrawRequestQueue::add(MDrawRequest& request) { fQueue->requests.push_back(request); }

MDrawRequest MDrawRequestQueue::remove() {
    if (fQueue->requests.empty()) return MDrawRequest();
    MDrawRequest oldest = fQueue->requests.front();
    fQueue->requests.pop_front();
    return oldest;
}

OPENMAYA_NAMESPACE_CLOSE
