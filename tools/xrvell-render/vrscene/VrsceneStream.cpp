#include "VrsceneStream.h"

#include <utility>

#include "OutputFile.h"

namespace xrvell {

VrsceneStream::VrsceneStream(const VrsceneWriter& sceneWriter, OutputFile& file, size_t size,
                             FrameCallback written, bool& started)
    : writer(sceneWriter),
      output(file),
      chunk(size),
      frameWritten(std::move(written)),
      outputStarted(started) {}

void VrsceneStream::start() { writer.writeHeader(pending); }

void VrsceneStream::frameStarted(const vrayrender::RecordedFrame& frame) {
    if (writable) writer.writeFrameStart(frame, pending);
}

void VrsceneStream::instanceDone(const vrayrender::RecordedFrame& frame,
                                 const vrayrender::RecordedInstance& instance) {
    if (!writable) return;
    writer.writeInstance(instance, frame.sampleTimes, pending);
    flushWhenFull();
}

bool VrsceneStream::frameDone(const vrayrender::RecordedFrame& frame) {
    if (frameWritten) frameWritten(frame);
    return flushWhenFull();
}

bool VrsceneStream::flushWhenFull() {
    return writable && (holding || pending.size() < chunk || flush());
}

bool VrsceneStream::flush() {
    if (!writable || pending.empty()) return writable;
    outputStarted = outputStarted || output.writesInPlace();
    writable = output.write(pending, &reason);
    pending.clear();
    return writable;
}

}  // namespace xrvell
