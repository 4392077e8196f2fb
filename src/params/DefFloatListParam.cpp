#include "params/DefFloatListParam.h"

#include "params/NumericConversions.h"

namespace VUtils {

DefFloatListParam::DefFloatListParam(const char* name, bool copyName)
    : DefListParamBaseTyped<float>(name, copyName) {}

DefFloatListParam::~DefFloatListParam() { table.freeMem(); }

int DefFloatListParam::getInt(int index, double) { return truncateToInt(table[index]); }

float DefFloatListParam::getFloat(int index, double) { return table[index]; }

double DefFloatListParam::getDouble(int index, double) { return static_cast<double>(table[index]); }

int DefFloatListParam::getBool(int index, double) { return floatToBool(table[index]); }

// A view of the storage, not a copy: valid until the list next reallocates.
PtrArray<float> DefFloatListParam::getFloatList(double) {
    PtrArray<float> view;
    view.ptr = table.data();
    view.length = table.count();
    return view;
}

int DefFloatListParam::getType(int, double) { return paramTypeFloat; }

PluginBase* DefFloatListParam::getPlugin() { return asPlugin(); }

// Writes outside the list always append: the renderer fills lists with index -1
// and must never leave gaps of undefined values.
void DefFloatListParam::setFloat(float value, int index, double) {
    if (index >= 0 && index < table.count()) {
        table[index] = value;
    } else {
        table.append(value);
    }
}

void DefFloatListParam::setInt(int value, int index, double time) {
    setFloat(static_cast<float>(value), index, time);
}

void DefFloatListParam::setBool(int value, int index, double time) {
    setFloat(static_cast<float>(value), index, time);
}

void DefFloatListParam::setDouble(double value, int index, double time) {
    setFloat(static_cast<float>(value), index, time);
}

void DefFloatListParam::setFloatList(const PtrArray<float>& list, double) {
    table.assign(list.ptr, list.length);
}

VRayPluginParameter* DefFloatListParam::clone() {
    DefFloatListParam* copy = new DefFloatListParam(getName(), ownsNameCopy());
    copy->listLevel = listLevel;
    copy->table.copyFrom(table);
    return copy;
}

}  // namespace VUtils
