#include <maya/MSelectionList.h>
#include <maya/MSelectionMask.h>

#include "../Viewport.h"

using namespace mayahost::detail;

namespace mayahost {
namespace detail {

SelectionItems& Access::items(const MSelectionList& list) { return *list.fItems; }
unsigned long long Access::types(const MSelectionMask& mask) { return mask.fTypes; }

}  // namespace detail
}  // namespace mayahost

namespace {

unsigned long long bitOf(MSelectionMask::SelectionType type) { return 1ULL << type; }

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MSelectionList::MSelectionList() : fItems(new SelectionItems) {}
MSelectionList::MSelectionList(const MSelectionList& src)
    : fItems(new SelectionItems(*src.fItems)) {}
MSelectionList::~MSelectionList() { delete fItems; }

MSelectionList& MSelectionList::operator=(const MSelectionList& other) {
    if (this != &other) *fItems = *other.fItems;
    return *this;
}

MStatus MSelectionList::clear() {
    fItems->items.clear();
    return MStatus::kSuccess;
}

bool MSelectionList::isEmpty(MStatus* ReturnStatus) const { return length(ReturnStatus) == 0; }

unsigned int MSelectionList::length(MStatus* ReturnStatus) const {
    if (ReturnStatus) *ReturnStatus = MStatus::kSuccess;
    return static_cast<unsigned int>(fItems->items.size());
}

MStatus MSelectionList::add(const MDagPath& object, const MObject& component,
                            bool mergeWithExisting) {
    if (!object.isValid()) return MStatus::kInvalidParameter;
    if (mergeWithExisting) {
        for (const SelectionItem& item : fItems->items)
            if (item.path == object && item.component == component) return MStatus::kSuccess;
    }
    fItems->items.push_back(SelectionItem{object, component});
    return MStatus::kSuccess;
}

MStatus MSelectionList::getDagPath(unsigned int index, MDagPath& dagPath) const {
    if (index >= fItems->items.size()) return MStatus::kInvalidParameter;
    dagPath = fItems->items[index].path;
    return MStatus::kSuccess;
}

MSelectionMask::MSelectionMask() : fTypes(0) {}
MSelectionMask::MSelectionMask(SelectionType selType) : fTypes(bitOf(selType)) {}
MSelectionMask::MSelectionMask(const MSelectionMask& in) = default;
MSelectionMask::~MSelectionMask() = default;
MSelectionMask& MSelectionMask::operator=(const MSelectionMask& other) = default;

MStatus MSelectionMask::setMask(SelectionType selType) {
    fTypes = bitOf(selType);
    return MStatus::kSuccess;
}

MStatus MSelectionMask::addMask(SelectionType selType) {
    fTypes |= bitOf(selType);
    return MStatus::kSuccess;
}

bool MSelectionMask::intersects(SelectionType selType, MStatus* ReturnStatus) const {
    if (ReturnStatus) *ReturnStatus = MStatus::kSuccess;
    return (fTypes & bitOf(selType)) != 0;
}

OPENMAYA_NAMESPACE_CLOSE
