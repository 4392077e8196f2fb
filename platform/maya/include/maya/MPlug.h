#pragma once
#include <maya/MObject.h>
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MPlug {
public:
    MPlug();
    MPlug(const MObject& node, const MObject& attribute);
    MPlug(const MPlug& other);
    ~MPlug();
    MPlug& operator=(const MPlug& other);

    MObject node(MStatus* ReturnStatus = NULL) const;
    MObject attribute(MStatus* ReturnStatus = NULL) const;
    bool isNull(MStatus* ReturnStatus = NULL) const;
    MString name(MStatus* ReturnStatus = NULL) const;
    MString partialName(bool includeNodeName = false, bool includeNonMandatoryIndices = false,
                        bool includeInstancedIndices = false, bool useAlias = false,
                        bool useFullAttributePath = false, bool useLongNames = false,
                        MStatus* ReturnStatus = NULL) const;
    bool connectedTo(MPlugArray& array, bool asDst, bool asSrc, MStatus* ReturnStatus = NULL) const;
    bool isConnected(MStatus* ReturnStatus = NULL) const;

    bool asBool(MStatus* ReturnStatus = NULL) const;
    short asShort(MStatus* ReturnStatus = NULL) const;
    int asInt(MStatus* ReturnStatus = NULL) const;
    float asFloat(MStatus* ReturnStatus = NULL) const;
    double asDouble(MStatus* ReturnStatus = NULL) const;
    MString asString(MStatus* ReturnStatus = NULL) const;
    MTime asMTime(MStatus* ReturnStatus = NULL) const;
    MObject asMObject(MStatus* ReturnStatus = NULL) const;

    MStatus setBool(bool value) const;
    MStatus setShort(short value) const;
    MStatus setInt(int value) const;
    MStatus setFloat(float value) const;
    MStatus setDouble(double value) const;
    MStatus setString(const MString& value) const;
    MStatus setMTime(const MTime& value) const;

    bool operator==(const MPlug& other) const;
    bool operator==(const MObject& attribute) const;
    bool operator!=(const MPlug& other) const;
    bool operator!=(const MObject& attribute) const;

private:
    MObject fNode;
    MObject fAttribute;
};

OPENMAYA_NAMESPACE_CLOSE
