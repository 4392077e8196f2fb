#pragma once
#include <xrvellfur/FurCalls.h>

namespace xrvellfur {

void recordCall(const FurCall& call);
void clearCalls();

}  // namespace xrvellfur

// Looked up by tests with dlsym; see FurCalls.h.
extern "C" __attribute__((visibility("default"))) xrvellfur::FurCallLog* xrVellMayaCallLog();
extern "C" __attribute__((visibility("default"))) void xrVellMayaRecordCalls(int on);
