#pragma once
#include <maya/MDrawInfo.h>

OPENMAYA_NAMESPACE_OPEN

// The state in which the legacy viewport asks a shape's UI whether it is selected.
class OPENMAYA_EXPORT MSelectInfo : public MDrawInfo {
public:
    MSelectInfo();
    MSelectInfo(const MSelectInfo& in);
    ~MSelectInfo() override;

    bool singleSelection() const;
    MDagPath selectPath() const;
    // Merges the item into the list and its point into the points, as Maya does; the host also
    // keeps a record of the call.
    void addSelection(const MSelectionList& item, const MPoint& point, MSelectionList& list,
                      MPointArray& points, const MSelectionMask& mask, bool isComponent);

private:
    friend struct mayahost::detail::Access;
    bool fSingleSelection;
    mayahost::detail::SelectionRecord* fRecord;  // shared by copies
};

OPENMAYA_NAMESPACE_CLOSE
