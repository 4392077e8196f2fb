#pragma once
#include <maya/MTypes.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MStatus {
public:
    enum MStatusCode {
        kSuccess = 0,
        kFailure,
        kInsufficientMemory,
        kInvalidParameter,
        kLicenseFailure,
        kUnknownParameter,
        kNotImplemented,
        kNotFound,
        kEndOfFile
    };

    MStatus() : fStatus(kSuccess) {}
    MStatus(MStatusCode code) : fStatus(code) {}
    MStatus(const MStatus& other) = default;
    MStatus& operator=(const MStatus& other) = default;

    bool operator==(const MStatus& other) const { return fStatus == other.fStatus; }
    bool operator==(MStatusCode code) const { return fStatus == code; }
    bool operator!=(const MStatus& other) const { return fStatus != other.fStatus; }
    bool operator!=(MStatusCode code) const { return fStatus != code; }
    operator bool() const { return fStatus == kSuccess; }

    bool error() const { return fStatus != kSuccess; }
    void clear() { fStatus = kSuccess; }
    MStatusCode statusCode() const { return fStatus; }
    MString errorString() const;
    void perror(const char* text) const;
    void perror(const MString& text) const;

private:
    MStatusCode fStatus;
};

typedef MStatus MS;

OPENMAYA_NAMESPACE_CLOSE
