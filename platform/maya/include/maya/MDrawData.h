#pragma once
#include <maya/MTypes.h>

OPENMAYA_NAMESPACE_OPEN

// Shape-specific data handed from getDrawRequests to draw through a request. Copies are handles
// to the same data.
class OPENMAYA_EXPORT MDrawData {
public:
    MDrawData();
    MDrawData(const MDrawData& in);
    ~MDrawData();
    void* geometry();

protected:
    MDrawData& operator=(const MDrawData& in);

private:
    friend struct mayahost::detail::Access;
    mayahost::detail::Object* fData;
};

OPENMAYA_NAMESPACE_CLOSE
