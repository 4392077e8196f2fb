#include "ParameterReader.h"

#include "params/VRayPluginParameter.h"

namespace vrayrender {

bool RecordedValue::operator==(const RecordedValue& o) const {
    if (kind != o.kind) return false;
    switch (kind) {
        case Kind::Int:
            return intValue == o.intValue;
        case Kind::Float:
        case Kind::Double:
            return number == o.number;
        case Kind::Vector:
        case Kind::Color:
            return vector[0] == o.vector[0] && vector[1] == o.vector[1] && vector[2] == o.vector[2];
        case Kind::String:
            return isNull == o.isNull && text == o.text;
        case Kind::FloatList:
            return list == o.list;
        case Kind::None:
            break;
    }
    return true;
}

RecordedValue readParameter(VUtils::VRayPluginParameter& parameter, double time) {
    RecordedValue value;
    readParameter(parameter, time, value);
    return value;
}

void readParameter(VUtils::VRayPluginParameter& parameter, double time, RecordedValue& value) {
    value.kind = RecordedValue::Kind::None;
    value.intValue = 0;
    value.number = 0.0;
    value.vector[0] = value.vector[1] = value.vector[2] = 0.0f;
    value.isNull = false;
    value.text.clear();
    value.list.clear();
    switch (parameter.getType(0, time)) {
        case VUtils::paramTypeInt:
            value.kind = RecordedValue::Kind::Int;
            value.intValue = parameter.getInt(0, time);
            break;
        case VUtils::paramTypeFloat:
            if (parameter.getCount(time) >= 0) {
                value.kind = RecordedValue::Kind::FloatList;
                const VUtils::PtrArray<float> list = parameter.getFloatList(time);
                if (list.length > 0) value.list.assign(list.ptr, list.ptr + list.length);
            } else {
                value.kind = RecordedValue::Kind::Float;
                value.number = parameter.getFloat(0, time);
            }
            break;
        case VUtils::paramTypeDouble:
            value.kind = RecordedValue::Kind::Double;
            value.number = parameter.getDouble(0, time);
            break;
        case VUtils::paramTypeVector: {
            value.kind = RecordedValue::Kind::Vector;
            const VUtils::Vector v = parameter.getVector(0, time);
            value.vector[0] = v.x;
            value.vector[1] = v.y;
            value.vector[2] = v.z;
            break;
        }
        case VUtils::paramTypeColor: {
            value.kind = RecordedValue::Kind::Color;
            const VUtils::Color c = parameter.getColor(0, time);
            value.vector[0] = c.r;
            value.vector[1] = c.g;
            value.vector[2] = c.b;
            break;
        }
        case VUtils::paramTypeString: {
            value.kind = RecordedValue::Kind::String;
            const char* text = parameter.getString(0, time);
            value.isNull = text == nullptr;
            if (text) value.text = text;
            break;
        }
        default:
            break;
    }
}

}  // namespace vrayrender
