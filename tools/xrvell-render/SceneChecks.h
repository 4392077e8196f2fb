#pragma once
#include <maya/MObject.h>

#include <string>

#include "Diagnostics.h"

namespace xrvell {

// What a scene that reads without an error can still get wrong without a word: no bridge node,
// so nothing is rendered, or a bridge whose inputData no fur node feeds, so the renderer gets
// the defaults. Looks at the host's scene once it is read; each finding is a warning on the
// scene file as a whole.
class SceneChecks {
public:
    explicit SceneChecks(Diagnostics& diagnostics);

    void run();

private:
    void checkInput(const MObject& bridge);
    // The plug that feeds the bridge's inputData as "node.attribute (type)"; empty for none.
    static std::string feederOf(const MObject& bridge, bool* isFur);

    Diagnostics& diagnostics;
};

}  // namespace xrvell
