#include <maya/MStatus.h>
#include <maya/MString.h>

#include <string>

#include "../HostState.h"

namespace {

const char* describe(MStatus::MStatusCode code) {
    switch (code) {
        case MStatus::kSuccess:
            return "(kSuccess): No error";
        case MStatus::kFailure:
            return "(kFailure): Unexpected Internal Failure";
        case MStatus::kInsufficientMemory:
            return "(kInsufficientMemory): Insufficient memory";
        case MStatus::kInvalidParameter:
            return "(kInvalidParameter): Object is incompatible with this method";
        case MStatus::kLicenseFailure:
            return "(kLicenseFailure): License failure";
        case MStatus::kUnknownParameter:
            return "(kUnknownParameter): Unknown parameter";
        case MStatus::kNotImplemented:
            return "(kNotImplemented): Not implemented";
        case MStatus::kNotFound:
            return "(kNotFound): Not found";
        case MStatus::kEndOfFile:
            return "(kEndOfFile): End of file";
    }
    return "(unknown status)";
}

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MString MStatus::errorString() const { return MString(describe(fStatus)); }

void MStatus::perror(const char* text) const {
    const std::string line = std::string(text ? text : "") + ": " + describe(fStatus);
    mayahost::detail::showMessage(mayahost::Message::Channel::Perror, text ? text : "", line);
}

void MStatus::perror(const MString& text) const { perror(text.asChar()); }

OPENMAYA_NAMESPACE_CLOSE
