#include "AttributeWriter.h"

#include <maya/MFnData.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnUnitAttribute.h>
#include <maya/MString.h>
#include <maya/MTime.h>

#include <limits>
#include <utility>

#include "MaValueParser.h"

namespace xrvell {
namespace {

struct IntegerRange {
    long long low;
    long long high;
};

IntegerRange rangeOf(int numericType) {
    switch (numericType) {
        case MFnNumericData::kByte:
            return {0, 255};
        case MFnNumericData::kChar:
            return {-128, 127};
        case MFnNumericData::kShort:
            return {-32768, 32767};
        case MFnNumericData::kInt64:
            return {std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max()};
        default:
            return {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    }
}

bool isInteger(int numericType) {
    return numericType == MFnNumericData::kByte || numericType == MFnNumericData::kChar ||
           numericType == MFnNumericData::kShort || numericType == MFnNumericData::kInt ||
           numericType == MFnNumericData::kInt64;
}

bool isReal(int numericType) {
    return numericType == MFnNumericData::kFloat || numericType == MFnNumericData::kDouble;
}

// A number, or a boolean word standing for 1 or 0 as MEL allows.
bool numberOrBool(const std::string& word, double* value) {
    bool flag = false;
    if (MaValueParser::parseBoolWord(word, &flag)) {
        *value = flag ? 1.0 : 0.0;
        return true;
    }
    return MaValueParser::parseNumber(word, value);
}

// A string value: one quoted word, or quoted pieces joined as ( "a" + "b" ), as Maya writes
// long strings.
bool joinedString(const std::vector<MaWord>& words, std::string* text) {
    if (words.size() == 1) {
        *text = words[0].text;
        return words[0].quoted;
    }
    if (words.size() < 3 || words.front().quoted || words.front().text != "(" ||
        words.back().quoted || words.back().text != ")")
        return false;
    text->clear();
    for (size_t i = 1; i + 1 < words.size(); ++i) {
        const bool piece = i % 2 == 1;
        if (piece != words[i].quoted || (!piece && words[i].text != "+")) return false;
        if (piece) *text += words[i].text;
    }
    return words.size() % 2 == 1;
}

}  // namespace

AttributeWriter::AttributeWriter(const MPlug& target, const mayahost::AttributeInfo& attribute,
                                 std::string name)
    : plug(target), info(attribute), plugName(std::move(name)) {}

std::string AttributeWriter::mismatch(const std::string& expected,
                                      const SetAttrValue& value) const {
    std::string given;
    if (!value.type.empty() && expected.find("-type \"" + value.type + "\"") == std::string::npos)
        given = "-type \"" + value.type + "\"";
    else if (value.words.size() == 1)
        given = "\"" + value.words[0].text + "\"";
    else
        given = std::to_string(value.words.size()) + " values";
    return "\"" + plugName + "\" expects " + expected + ", not " + given;
}

std::string AttributeWriter::stored(MStatus status) const {
    if (status == MStatus::kSuccess) return "";
    if (plug.isConnected()) return "\"" + plugName + "\" is connected; its value cannot be set";
    return "\"" + plugName + "\" cannot be set";
}

std::string AttributeWriter::write(const SetAttrValue& value) {
    switch (info.kind) {
        case mayahost::AttributeKind::Numeric:
            return writeNumeric(value);
        case mayahost::AttributeKind::Typed:
            return writeString(value);
        case mayahost::AttributeKind::Unit:
            return writeUnit(value);
    }
    return "\"" + plugName + "\" cannot be set from a scene file";
}

std::string AttributeWriter::writeNumeric(const SetAttrValue& value) {
    const int type = info.numericType;
    const bool known = type == MFnNumericData::kBoolean || isInteger(type) || isReal(type);
    if (!known) return "\"" + plugName + "\" cannot be set from a scene file";
    const char* expected = type == MFnNumericData::kBoolean ? "a boolean"
                           : isInteger(type)                ? "an integer"
                                                            : "a number";
    if (!value.type.empty() || value.words.size() != 1 || value.words[0].quoted)
        return mismatch(expected, value);
    const std::string& word = value.words[0].text;
    if (type == MFnNumericData::kBoolean) return writeBoolean(word);
    if (isInteger(type)) return writeInteger(word);
    return writeNumber(word);
}

std::string AttributeWriter::writeBoolean(const std::string& word) {
    double number = 0.0;
    if (!numberOrBool(word, &number)) return mismatch("a boolean", {"", {{word, false}}});
    return stored(plug.setBool(number != 0.0));
}

std::string AttributeWriter::writeInteger(const std::string& word) {
    const IntegerRange range = rangeOf(info.numericType);
    const std::string inRange =
        "an integer from " + std::to_string(range.low) + " to " + std::to_string(range.high);
    long long number = 0;
    bool flag = false;
    if (MaValueParser::parseBoolWord(word, &flag))
        number = flag ? 1 : 0;
    else if (!MaValueParser::parseInteger(word, &number))
        return mismatch(MaValueParser::integerOutOfRange(word) ? inRange : "an integer",
                        {"", {{word, false}}});
    if (number < range.low || number > range.high) return mismatch(inRange, {"", {{word, false}}});
    if (info.numericType == MFnNumericData::kShort)
        return stored(plug.setShort(static_cast<short>(number)));
    if (info.numericType == MFnNumericData::kInt64)
        return stored(plug.setDouble(static_cast<double>(number)));
    return stored(plug.setInt(static_cast<int>(number)));
}

std::string AttributeWriter::writeNumber(const std::string& word) {
    const bool isFloat = info.numericType == MFnNumericData::kFloat;
    const char* inRange = isFloat ? "a number within float range" : "a number within double range";
    double number = 0.0;
    if (!numberOrBool(word, &number))
        return mismatch(MaValueParser::numberOutOfRange(word) ? inRange : "a number",
                        {"", {{word, false}}});
    if (!isFloat) return stored(plug.setDouble(number));
    if (number > std::numeric_limits<float>::max() || number < -std::numeric_limits<float>::max())
        return mismatch(inRange, {"", {{word, false}}});
    return stored(plug.setFloat(static_cast<float>(number)));
}

std::string AttributeWriter::writeString(const SetAttrValue& value) {
    if (info.dataType != MFnData::kString)
        return "\"" + plugName + "\" cannot be set from a scene file";
    std::string text;
    if (value.type != "string" || !joinedString(value.words, &text))
        return mismatch("a string (-type \"string\")", value);
    return stored(plug.setString(MString(text.c_str())));
}

std::string AttributeWriter::writeUnit(const SetAttrValue& value) {
    const char* expected = info.unitType == MFnUnitAttribute::kTime ? "a time" : "a number";
    double number = 0.0;
    if (!value.type.empty() || value.words.size() != 1 || value.words[0].quoted)
        return mismatch(expected, value);
    const std::string& word = value.words[0].text;
    if (!MaValueParser::parseNumber(word, &number))
        return mismatch(MaValueParser::numberOutOfRange(word)
                            ? std::string(expected) + " within double range"
                            : std::string(expected),
                        value);
    if (info.unitType == MFnUnitAttribute::kTime)
        return stored(plug.setMTime(MTime(number, MTime::uiUnit())));
    return stored(plug.setDouble(number));
}

}  // namespace xrvell
