#pragma once
#include <string>

#include "vray/VRayParameterList.h"
#include "vray/VRayPlugin.h"

// The fur product's renderer plugin "xrVellVRay" as far as the renderer sees it: an instance
// that keeps the parameters it is given and reads them by name when a frame begins.
class FurGeneratorPlugin : public VUtils::VRayPlugin {
public:
    VUtils::VRayParameterList* getParameterList() override;
    void frameBegin(double time) override;

private:
    bool readInputs(double time);

    VUtils::VRayParameterList parameters;
};
