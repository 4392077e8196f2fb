#include "params/DefListParamBase.h"

namespace VUtils {

DefListParamBase::DefListParamBase(const char* name, bool copyName)
    : DefParamBase(name, copyName), listLevel(0) {}

DefListParamBase::~DefListParamBase() = default;

void* DefListParamBase::openList(int) {
    ++listLevel;
    return nullptr;
}

void DefListParamBase::closeList(void*) { --listLevel; }

}  // namespace VUtils
