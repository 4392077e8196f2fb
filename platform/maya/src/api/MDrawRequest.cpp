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

MDrawRequest::MDrawRequest()
    : fStatus(M3dView::kNoStatus),
      fStyle(M3dView::kBoundingBox),
      fColorIndex(0),
      fColorTable(-1),
      fTransparent(false),
      fToken(0) {}

MDrawRequest::MDrawRequest(const MDrawRequest& in)
    : fView(in.fView),
      fPath(in.fPath),
      fData(in.fData),
      fMaterial(in.fMaterial),
      fStatus(in.fStatus),
      fStyle(in.fStyle),
      fColorIndex(in.fColorIndex),
      fColorTable(in.fColorTable),
      fTransparent(in.fTransparent),
      fToken(in.fToken) {}

MDrawRequest::~MDrawRequest() = default;

MDrawRequest& MDrawRequest::operator=(const MDrawRequest& other) {
    fView = other.fView;
    fPath = other.fPath;
    Access::assign(fData, other.fData);
    fMaterial = other.fMaterial;
    fStatus = other.fStatus;
    fStyle = other.fStyle;
    fColorIndex = other.fColorIndex;
    fColorTable = other.fColorTable;
    fTransparent = other.fTransparent;
    fToken = other.fToken;
    return *this;
}

M3dView MDrawRequest::view() const { return fView; }
void MDrawRequest::setView(M3dView& view) { fView = view; }
const MDagPath MDrawRequest::multiPath() const { return fPath; }
void MDrawRequest::setMultiPath(const MDagPath& path) { fPath = path; }
MDrawData MDrawRequest::drawData() const { return fData; }
void MDrawRequest::setDrawData(MDrawData& data) { Access::assign(fData, data); }
M3dView::DisplayStatus MDrawRequest::displayStatus() const { return fStatus; }
void MDrawRequest::setDisplayStatus(M3dView::DisplayStatus status) { fStatus = status; }
M3dView::DisplayStyle MDrawRequest::displayStyle() const { return fStyle; }
void MDrawRequest::setDisplayStyle(M3dView::DisplayStyle style) { fStyle = style; }

int MDrawRequest::color(M3dView::ColorTable table) const {
    return fColorTable == table ? fColorIndex : -1;
}

void MDrawRequest::setColor(int colorIndex, M3dView::ColorTable table) {
    fColorIndex = colorIndex;
    fColorTable = table;
}

MMaterial MDrawRequest::material() const { return fMaterial; }
void MDrawRequest::setMaterial(MMaterial& material) { fMaterial = material; }
bool MDrawRequest::isTransparent() const { return fTransparent; }
void MDrawRequest::setIsTransparent(bool transparent) { fTransparent = transparent; }
int MDrawRequest::token() const { return fToken; }
void MDrawRequest::setToken(int token) { fToken = token; }

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
