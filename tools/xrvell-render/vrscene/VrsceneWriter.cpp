#include "VrsceneWriter.h"

#include <utility>

#include "VisibleText.h"
#include "VrsceneValue.h"

namespace xrvell {
namespace {

using vrayrender::RecordedFrame;
using vrayrender::RecordedInstance;
using vrayrender::RecordedParameter;
using vrayrender::RecordedValue;

std::string doubleText(double value) {
    std::string text;
    VrsceneValue::appendDouble(value, text);
    return text;
}

bool changesWithinFrame(const RecordedParameter& parameter, size_t samples) {
    if (parameter.heldThroughFrame()) return false;
    for (size_t i = 1; i < samples; ++i)
        if (parameter.valueAt(i) != parameter.first) return true;
    return false;
}

}  // namespace

// The plugin type the bridge nodes create.
const char* const VrsceneWriter::kPluginType = "xrVellVRay";

VrsceneWriter::VrsceneWriter(std::string sceneName, const vrayrender::RenderSettings& render)
    : scene(std::move(sceneName)), settings(render) {}

std::string VrsceneWriter::write(const vrayrender::RenderRecord& record) const {
    std::string out;
    writeHeader(out);
    for (const RecordedFrame& frame : record.frames) writeFrame(frame, out);
    return out;
}

void VrsceneWriter::writeHeader(std::string& out) const {
    out += "// V-Ray scene: what the ";
    out += kPluginType;
    out += " plugin received, written by xrvell-render\n// Scene: ";
    VisibleText::append(scene, out);  // a newline in the path must not end the comment
    out += '\n';
    out += "// Frames " + doubleText(settings.startFrame) + " to " + doubleText(settings.endFrame) +
           ", step " + doubleText(settings.byFrame) + "; motion blur ";
    const vrayrender::MotionBlur& blur = settings.motionBlur;
    if (blur.enabled)
        out += "on: duration " + doubleText(blur.duration) + ", interval centre " +
               doubleText(blur.intervalCenter) + ", " + std::to_string(blur.geometrySamples) +
               " geometry samples\n";
    else
        out += "off\n";
}

void VrsceneWriter::writeFrame(const RecordedFrame& frame, std::string& out) const {
    writeFrameStart(frame, out);
    for (const RecordedInstance& instance : frame.instances)
        writeInstance(instance, frame.sampleTimes, out);
}

void VrsceneWriter::writeFrameStart(const RecordedFrame& frame, std::string& out) const {
    out += "\n// Frame " + doubleText(frame.frame) + ": geometry samples at ";
    for (size_t i = 0; i < frame.sampleTimes.size(); ++i)
        out += (i ? ", " : "") + doubleText(frame.sampleTimes[i]);
    out += '\n';
}

void VrsceneWriter::writeInstance(const RecordedInstance& instance,
                                  const std::vector<double>& times, std::string& out) const {
    out += kPluginType;
    out += ' ';
    out += instance.node;
    out += " {\n";
    for (const RecordedParameter& parameter : instance.parameters)
        writeParameter(parameter, times, out);
    out += "}\n";
}

// Appends piece by piece: a large scene writes millions of these.
void VrsceneWriter::writeParameter(const RecordedParameter& parameter,
                                   const std::vector<double>& times, std::string& out) const {
    if (parameter.first.kind == RecordedValue::Kind::None) {
        out += "  // ";
        out += parameter.name;
        out += ": no value the renderer can read\n";
        return;
    }
    out += "  ";
    out += parameter.name;
    out += '=';
    if (!changesWithinFrame(parameter, times.size())) {
        VrsceneValue::append(parameter.first, out);
    } else {
        out += "interpolate(";
        for (size_t i = 0; i < times.size(); ++i) {
            out += i ? ", (" : "(";
            VrsceneValue::appendDouble(times[i], out);
            out += ", ";
            VrsceneValue::append(parameter.valueAt(i), out);
            out += ')';
        }
        out += ')';
    }
    out += ";\n";
}

}  // namespace xrvell
