#pragma once
#include <string>
#include <vector>

#include "RenderRecord.h"
#include "RenderSettings.h"

namespace xrvell {

// Writes what each xrVellVRay plugin instance received, frame by frame, as a V-Ray text scene.
// Depends on nothing but its inputs.
class VrsceneWriter {
public:
    // The renderer plugin type of every block.
    static const char* const kPluginType;

    // The scene name and settings go into the header comment.
    VrsceneWriter(std::string sceneName, const vrayrender::RenderSettings& settings);

    std::string write(const vrayrender::RenderRecord& record) const;
    // The same in parts, for frames written as they are rendered: the header, then each frame,
    // whole or as its comment line followed by its instances.
    void writeHeader(std::string& out) const;
    void writeFrame(const vrayrender::RecordedFrame& frame, std::string& out) const;
    void writeFrameStart(const vrayrender::RecordedFrame& frame, std::string& out) const;
    void writeInstance(const vrayrender::RecordedInstance& instance,
                       const std::vector<double>& times, std::string& out) const;

private:
    void writeParameter(const vrayrender::RecordedParameter& parameter,
                        const std::vector<double>& times, std::string& out) const;

    std::string scene;
    vrayrender::RenderSettings settings;
};

}  // namespace xrvell
