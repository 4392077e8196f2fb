#pragma once
#include <maya/MPxData.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

// What the fur node's output carries downstream. The stand-in's data has no content: only its
// type matters to the nodes it is connected to.
class xrVellMayaData : public MPxData {
public:
    static void* creator();

    void copy(const MPxData& src) override;
    MTypeId typeId() const override;
    MString name() const override;

    static const char* const typeName;
    static const MTypeId id;
};
