#include <maya/MDrawInfo.h>
#include <maya/MPointArray.h>
#include <maya/MSelectInfo.h>
#include <maya/MSelectionList.h>

#include "../Dag.h"
#include "../HostState.h"
#include "../Viewport.h"

using namespace mayahost::detail;

namespace {

std::vector<int> typesIn(const MSelectionMask& mask) {
    std::vector<int> types;
    const unsigned long long bits = Access::types(mask);
    for (int type = 0; type < 64; ++type)
        if (bits & (1ULL << type)) types.push_back(type);
    return types;
}

std::vector<std::string> pathNames(const MSelectionList& list) {
    std::vector<std::string> names;
    for (const SelectionItem& item : Access::items(list).items)
        names.push_back(item.path.fullPathName().asChar());
    return names;
}

}  // namespace

namespace mayahost {
namespace detail {

M3dView Access::view(unsigned int id) {
    M3dView view;
    view.fViewId = id;
    return view;
}

void Access::setUp(MDrawInfo& info, const MDagPath& path, const M3dView& view, int style,
                   int status, unsigned int shownObjects) {
    info.fPathNode = handle(node(path));
    info.fView = view;
    info.fStyle = static_cast<M3dView::DisplayStyle>(style);
    info.fStatus = static_cast<M3dView::DisplayStatus>(status);
    info.fShownObjects = shownObjects;
}

void Access::setUp(MSelectInfo& info, const MDagPath& path, bool singleSelection) {
    info.fPathNode = handle(node(path));
    info.fSingleSelection = singleSelection;
}

SelectionRecord& Access::record(const MSelectInfo& info) { return *info.fRecord; }

}  // namespace detail
}  // namespace mayahost

OPENMAYA_NAMESPACE_OPEN

M3dView::M3dView() : fViewId(0) {}
M3dView::~M3dView() = default;

MDrawInfo::MDrawInfo()
    : fStyle(M3dView::kBoundingBox),
      fStatus(M3dView::kNoStatus),
      fShownObjects(static_cast<unsigned int>(M3dView::kDisplayEverything)) {}
MDrawInfo::MDrawInfo(const MDrawInfo& in) = default;
MDrawInfo::~MDrawInfo() = default;

MDrawRequest MDrawInfo::getPrototype(const MPxSurfaceShapeUI&) const {
    MDrawRequest request;
    M3dView view = fView;
    request.setView(view);
    request.setMultiPath(multiPath());
    request.setDisplayStyle(fStyle);
    request.setDisplayStatus(fStatus);
    return request;
}

M3dView MDrawInfo::view() const { return fView; }
const MDagPath MDrawInfo::multiPath() const { return Access::dagPath(Access::object(fPathNode)); }
const MMatrix MDrawInfo::inclusiveMatrix() const { return multiPath().inclusiveMatrix(); }
M3dView::DisplayStyle MDrawInfo::displayStyle() const { return fStyle; }
M3dView::DisplayStatus MDrawInfo::displayStatus() const { return fStatus; }

bool MDrawInfo::objectDisplayStatus(M3dView::DisplayObjects objects) const {
    return (fShownObjects & static_cast<unsigned int>(objects)) != 0;
}

MSelectInfo::MSelectInfo() : fSingleSelection(true), fRecord(new SelectionRecord) {
    retain(fRecord);
}

MSelectInfo::MSelectInfo(const MSelectInfo& in)
    : MDrawInfo(in), fSingleSelection(in.fSingleSelection), fRecord(in.fRecord) {
    retain(fRecord);
}

MSelectInfo::~MSelectInfo() { release(fRecord); }

bool MSelectInfo::singleSelection() const { return fSingleSelection; }
MDagPath MSelectInfo::selectPath() const { return multiPath(); }

void MSelectInfo::addSelection(const MSelectionList& item, const MPoint& point,
                               MSelectionList& list, MPointArray& points,
                               const MSelectionMask& mask, bool isComponent) {
    fRecord->calls.push_back(
        mayahost::SelectionCall{pathNames(item), point, typesIn(mask), isComponent});
    for (const SelectionItem& selected : Access::items(item).items)
        list.add(selected.path, selected.component, true);
    points.append(point);
}

OPENMAYA_NAMESPACE_CLOSE
