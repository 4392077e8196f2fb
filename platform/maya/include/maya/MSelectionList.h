#pragma once
#include <maya/MObject.h>
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

// A list of selected DAG paths, each with an optional component.
class OPENMAYA_EXPORT MSelectionList {
public:
    MSelectionList();
    MSelectionList(const MSelectionList& src);
    virtual ~MSelectionList();
    MSelectionList& operator=(const MSelectionList& other);

    MStatus clear();
    bool isEmpty(MStatus* ReturnStatus = NULL) const;
    unsigned int length(MStatus* ReturnStatus = NULL) const;
    // Without merging the path is appended even if the list already holds it.
    MStatus add(const MDagPath& object, const MObject& component = MObject::kNullObj,
                bool mergeWithExisting = false);
    MStatus getDagPath(unsigned int index, MDagPath& dagPath) const;

private:
    friend struct mayahost::detail::Access;
    mayahost::detail::SelectionItems* fItems;
};

OPENMAYA_NAMESPACE_CLOSE
