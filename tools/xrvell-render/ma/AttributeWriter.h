#pragma once
#include <maya/MPlug.h>
#include <mayahost/Host.h>

#include <string>
#include <vector>

#include "MaTokenizer.h"

namespace xrvell {

// The value part of one setAttr: its -type, if any, and the value words.
struct SetAttrValue {
    std::string type;
    std::vector<MaWord> words;
};

// Converts a setAttr value to the kind of one attribute and stores it in the plug.
class AttributeWriter {
public:
    // plugName names the plug in messages ("node.attribute").
    AttributeWriter(const MPlug& plug, const mayahost::AttributeInfo& info, std::string plugName);

    // Empty when the value was stored; otherwise why it does not fit the attribute.
    std::string write(const SetAttrValue& value);

private:
    std::string writeNumeric(const SetAttrValue& value);
    std::string writeBoolean(const std::string& word);
    std::string writeInteger(const std::string& word);
    std::string writeNumber(const std::string& word);
    std::string writeString(const SetAttrValue& value);
    std::string writeUnit(const SetAttrValue& value);
    std::string stored(MStatus status) const;
    std::string mismatch(const std::string& expected, const SetAttrValue& value) const;

    MPlug plug;
    mayahost::AttributeInfo info;
    std::string plugName;
};

}  // namespace xrvell
