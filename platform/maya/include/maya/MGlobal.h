#pragma once
#include <maya/MString.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MGlobal {
public:
    static void displayError(const MString& theError);
    static void displayWarning(const MString& theWarning);
    static void displayInfo(const MString& theMessage);
};

OPENMAYA_NAMESPACE_CLOSE
