#pragma once
#include <maya/MDrawRequest.h>

OPENMAYA_NAMESPACE_OPEN

// First in, first out.
class OPENMAYA_EXPORT MDrawRequestQueue {
public:
    MDrawRequestQueue();
    MDrawRequestQueue(const MDrawRequestQueue& in);
    ~MDrawRequestQueue();
    MDrawRequestQueue& operator=(const MDrawRequestQueue& in);

    bool isEmpty() const;
    void add(MDrawRequest& request);
    // The oldest request; a default request when the queue is empty.
    MDrawRequest remove();

private:
    mayahost::detail::DrawQueue* fQueue;
};

OPENMAYA_NAMESPACE_CLOSE
