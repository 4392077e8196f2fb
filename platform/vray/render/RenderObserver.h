#pragma once
#include "RenderRecord.h"

namespace vrayrender {

// Follows a render as it happens, so that a long one can be written out piece by piece instead
// of being held whole.
class RenderObserver {
public:
    virtual ~RenderObserver() = default;
    // The frame's number and sample times are set; its instances are about to be sampled.
    virtual void frameStarted(const RecordedFrame& frame) = 0;
    // The frame's last sample of this instance has been read, so its record is complete. It is
    // handed on at once, while it is still in the caches: a large scene's records are not.
    virtual void instanceDone(const RecordedFrame& frame, const RecordedInstance& instance) = 0;
    // Every instance of the frame is done. Returning false stops the render after this frame.
    virtual bool frameDone(const RecordedFrame& frame) = 0;
};

}  // namespace vrayrender
