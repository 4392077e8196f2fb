#pragma once

#include "params/DefParamBase.h"

namespace VUtils {

// Tracks how deep the renderer has opened nested lists; only getCount looks at it.
class DefListParamBase : public DefParamBase {
public:
    explicit DefListParamBase(const char* name, bool copyName = false);
    ~DefListParamBase() override;

    using VRayPluginParameter::openList;
    void* openList(int index) override;
    void closeList(void* handle) override;

    int getListLevel() const { return listLevel; }

protected:
    int listLevel;
};

}  // namespace VUtils
