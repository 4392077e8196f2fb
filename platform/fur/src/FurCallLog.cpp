#include "FurCallLog.h"

namespace xrvellfur {
namespace {

FurCallLog& log() {
    static FurCallLog calls;
    return calls;
}

}  // namespace

void recordCall(const FurCall& call) { log().push_back(call); }
void clearCalls() { log().clear(); }

}  // namespace xrvellfur

xrvellfur::FurCallLog* xrVellMayaCallLog() { return &xrvellfur::log(); }
