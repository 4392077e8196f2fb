#include "BenchObjects.h"

#include "params/DefFloatListParam.h"
#include "params/DefFloatParam.h"
#include "params/DefIntParam.h"
#include "params/DefStringParam.h"
#include "params/DefVectorParam.h"

namespace benchobjects {

namespace {

class FieldBaseline : public Baseline {
public:
    explicit FieldBaseline(float field) : field(field) {}
    float value() const override { return field; }

private:
    float field;
};

}  // namespace

Baseline* newBaseline(float value) { return new FieldBaseline(value); }

VUtils::DefParamBase* newIntParam(int value) { return new VUtils::DefIntParam("i", value); }

VUtils::DefParamBase* newFloatParam(float value) { return new VUtils::DefFloatParam("f", value); }

VUtils::DefParamBase* newVectorParam() {
    VUtils::DefVectorParam* param = new VUtils::DefVectorParam("v");
    param->setVector(VUtils::Vector{1.0f, 2.0f, 3.0f}, 0, 0.0);
    return param;
}

VUtils::DefParamBase* newStringParam(const char* text) {
    VUtils::DefStringParam* param = new VUtils::DefStringParam("s");
    param->setString(text, 0, 0.0);
    return param;
}

VUtils::DefParamBase* newFloatListParam(int count) {
    VUtils::DefFloatListParam* param = new VUtils::DefFloatListParam("l");
    for (int i = 0; i < count; ++i) {
        param->setFloat(static_cast<float>(i), -1, 0.0);
    }
    return param;
}

}  // namespace benchobjects
