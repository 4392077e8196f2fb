#include "ViewFactory.h"

#include "params/DefFloatListParam.h"
#include "params/DefFloatParam.h"
#include "params/DefIntParam.h"
#include "params/DefStringParam.h"
#include "params/DefVectorParam.h"

namespace viewfactory {

namespace {

void* asRendererSees(VUtils::VRayPluginParameter* param) { return param; }

}  // namespace

void* newIntParam(const char* name, int value) {
    return asRendererSees(new VUtils::DefIntParam(name, value));
}

void* newFloatParam(const char* name, float value) {
    return asRendererSees(new VUtils::DefFloatParam(name, value));
}

void* newVectorParam(const char* name) { return asRendererSees(new VUtils::DefVectorParam(name)); }

void* newStringParam(const char* name) { return asRendererSees(new VUtils::DefStringParam(name)); }

void* newFloatListParam(const char* name) {
    return asRendererSees(new VUtils::DefFloatListParam(name));
}

}  // namespace viewfactory
