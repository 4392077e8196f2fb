#include <maya/MFnStringData.h>

#include "../DataObj.h"

using namespace mayahost::detail;

OPENMAYA_NAMESPACE_OPEN

MFnStringData::MFnStringData() = default;

MFnStringData::MFnStringData(MObject& object, MStatus* ReturnStatus) {
    *fObject = object;
    if (ReturnStatus)
        *ReturnStatus =
            Access::as<StringDataObj>(object) ? MStatus::kSuccess : MStatus::kInvalidParameter;
}

MFnStringData::~MFnStringData() = default;

MObject MFnStringData::create(const MString& str, MStatus* ReturnStatus) {
    auto* data = new StringDataObj;
    data->value = str;
    *fObject = Access::handle(data);
    if (ReturnStatus) *ReturnStatus = MStatus::kSuccess;
    return *fObject;
}

MObject MFnStringData::create(MStatus* ReturnStatus) { return create(MString(), ReturnStatus); }

MString MFnStringData::string(MStatus* ReturnStatus) const {
    auto* data = Access::as<StringDataObj>(*fObject);
    if (ReturnStatus) *ReturnStatus = data ? MStatus::kSuccess : MStatus::kInvalidParameter;
    return data ? data->value : MString();
}

MStatus MFnStringData::set(const MString& newString) {
    auto* data = Access::as<StringDataObj>(*fObject);
    if (!data) return MStatus::kInvalidParameter;
    data->value = newString;
    return MStatus::kSuccess;
}

OPENMAYA_NAMESPACE_CLOSE
