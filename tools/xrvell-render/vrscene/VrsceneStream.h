#pragma once
#include <functional>
#include <string>

#include "RenderObserver.h"
#include "VrsceneWriter.h"

namespace xrvell {

class OutputFile;

// Writes the frames to the output as the renderer finishes them: each instance as soon as its
// record is complete, gathered into pieces of about `chunk` bytes. After a failed write the rest
// is dropped and the render stops at the end of the frame.
class VrsceneStream : public vrayrender::RenderObserver {
public:
    using FrameCallback = std::function<void(const vrayrender::RecordedFrame&)>;

    // `frameWritten` is called as each frame is done; `outputStarted` is set once text has
    // reached an output that is written in place, which a failure can no longer take back.
    VrsceneStream(const VrsceneWriter& writer, OutputFile& output, size_t chunk,
                  FrameCallback frameWritten, bool& outputStarted);

    void frameStarted(const vrayrender::RecordedFrame& frame) override;
    void instanceDone(const vrayrender::RecordedFrame& frame,
                      const vrayrender::RecordedInstance& instance) override;
    bool frameDone(const vrayrender::RecordedFrame& frame) override;

    // Writes the file's header comment; it goes out with the first piece.
    void start();
    // Keeps the text back until flush(), for a render whose output may turn out to be unwanted.
    void hold() { holding = true; }
    // Writes what is gathered; false when this or an earlier write failed, with why in failure().
    bool flush();
    const std::string& failure() const { return reason; }

private:
    bool flushWhenFull();

    const VrsceneWriter& writer;
    OutputFile& output;
    size_t chunk;
    FrameCallback frameWritten;
    bool& outputStarted;
    std::string pending;
    bool holding = false;
    bool writable = true;
    std::string reason;
};

}  // namespace xrvell
