#pragma once

#include "params/DefListParamBase.h"
#include "params/Table.h"
#include "params/VRayCloneableParamInterface.h"
#include "params/VRaySettableParamInterface.h"

namespace VUtils {

// Element storage and counting shared by the typed list parameters. Cloning and
// the settable interface's owner are left to the element class.
template <class T>
class DefListParamBaseTyped : public DefListParamBase,
                              public VRaySettableParamInterface,
                              public VRayCloneableParamInterface {
public:
    explicit DefListParamBaseTyped(const char* name, bool copyName = false)
        : DefListParamBase(name, copyName) {}

    PluginInterface* newInterface(unsigned long interfaceID) override {
        switch (interfaceID) {
            case EXT_SETTABLE_PARAM:
                return static_cast<VRaySettableParamInterface*>(this);
            case EXT_CLONEABLE_PARAM:
                return static_cast<VRayCloneableParamInterface*>(this);
            default:
                return DefParamBase::newInterface(interfaceID);
        }
    }

    // A list being opened reports no count until it is closed again.
    int getCount(double) override { return listLevel != 0 ? -1 : table.count(); }

    // Appended in this order.
    void setCount(int count, double) override {
        table.ensureExactCapacity(count);
        table.setCount(count);
    }

    // Empties the list on purpose: callers reserve, then append at index -1.
    void reserve(int count, double) override {
        table.ensureExactCapacity(count);
        table.setCount(0);
    }

    const Table<T>& getTable() const { return table; }
    Table<T>& getTable() { return table; }

protected:
    Table<T> table;
};

}  // namespace VUtils
