#pragma once
#include "RenderRecord.h"

namespace VUtils {
class VRayPluginParameter;
}

namespace vrayrender {

// Reads a parameter at index 0 the way the renderer does: by its type code, with the typed getter
// of that kind; a float parameter that reports a count is a float list.
RecordedValue readParameter(VUtils::VRayPluginParameter& parameter, double time);
// The same into a value read before, reusing its text and list storage.
void readParameter(VUtils::VRayPluginParameter& parameter, double time, RecordedValue& into);

}  // namespace vrayrender
