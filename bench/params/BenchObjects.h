#pragma once

#include "params/DefParamBase.h"

// Built in a separate file so the compiler cannot see the dynamic types at the
// call sites and must dispatch through the virtual tables, as the renderer does.
namespace benchobjects {

// The reference point: one virtual call that returns a member field.
class Baseline {
public:
    virtual ~Baseline() = default;
    virtual float value() const = 0;
};

Baseline* newBaseline(float value);
VUtils::DefParamBase* newIntParam(int value);
VUtils::DefParamBase* newFloatParam(float value);
VUtils::DefParamBase* newVectorParam();
VUtils::DefParamBase* newStringParam(const char* text);
VUtils::DefParamBase* newFloatListParam(int count);

}  // namespace benchobjects
