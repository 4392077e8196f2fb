#include "FurCallLog.h"

namespace xrvellfur {
namespace {

FurCallLog& log() {
    static FurCallLog calls;
    return calls;
}

bool recording = true;

}  // namespace

void recordCall(const FurCall& call) {
    if (recording) log().push_back(call);
}
void clearCalls() { log().clear(); }

}  // namespace xrvellfur

xrvellfur::FurCallLog* xrVellMayaCallLog() { return &xrvellfur::log(); }

void xrVellMayaRecordCalls(int on) { xrvellfur::recording = on != 0; }
