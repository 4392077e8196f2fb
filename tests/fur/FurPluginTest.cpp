// The fur product stand-in as a Maya plug-in: what it registers and what it exports.
#include <maya/MFnData.h>
#include <maya/MFnNumericData.h>
#include <maya/MPxSurfaceShape.h>

#include <algorithm>
#include <cstdio>
#include <sstream>

#include "FurScene.h"

using mayahost::AttributeInfo;
using mayahost::AttributeKind;

namespace {

const unsigned int kFurDataId = 0x1158C6;

// Starts with nothing loaded.
class FurPlugin : public FurScene {
protected:
    void SetUp() override { HostTest::SetUp(); }
};

struct ExpectedSetting {
    const char* name;
    AttributeKind kind;
    int type;  // numeric or data type
    double defaultNumber;
};

// The attributes the bridge reads by name.
const ExpectedSetting kSettings[] = {
    {"verbosity", AttributeKind::Numeric, MFnNumericData::kShort, 0.0},
    {"renderDensity", AttributeKind::Numeric, MFnNumericData::kFloat, 1.0},
    {"renderWidth", AttributeKind::Numeric, MFnNumericData::kFloat, 1.0},
    {"renderLength", AttributeKind::Numeric, MFnNumericData::kFloat, 1.0},
    {"vraySegmentLength", AttributeKind::Numeric, MFnNumericData::kFloat, 0.5},
    {"vrayDynamicHairTesselation", AttributeKind::Numeric, MFnNumericData::kBoolean, 0.0},
    {"imageSearchPath", AttributeKind::Typed, MFnData::kString, 0.0},
};

}  // namespace

TEST_F(FurPlugin, RegistersItsDataTypeAndAShapeWithAnOutputOfThatType) {
    ASSERT_FALSE(mayahost::findDataTypeById(kFurDataId));
    loadFur();
    mayahost::DataTypeInfo data;
    ASSERT_TRUE(mayahost::findDataTypeById(kFurDataId, &data));
    EXPECT_EQ(data.name, "xrVellMayaData");
    EXPECT_EQ(data.pluginPath, kFurPluginPath);

    mayahost::NodeTypeInfo type;
    ASSERT_TRUE(mayahost::findNodeType("xrVellMaya", &type));
    EXPECT_TRUE(type.isShape);
    AttributeInfo output;
    ASSERT_TRUE(mayahost::findAttribute("xrVellMaya", "outputData", &output));
    EXPECT_EQ(output.kind, AttributeKind::Typed);
    EXPECT_EQ(output.dataType, MFnData::kPlugin);
    EXPECT_EQ(output.typeId, kFurDataId);
    EXPECT_FALSE(output.writable);
}

TEST_F(FurPlugin, HasTheSettingsTheBridgeReadsWithTheirTypesAndDefaults) {
    loadFur();
    for (const ExpectedSetting& expected : kSettings) {
        SCOPED_TRACE(expected.name);
        AttributeInfo info;
        ASSERT_TRUE(mayahost::findAttribute("xrVellMaya", expected.name, &info));
        EXPECT_EQ(info.kind, expected.kind);
        EXPECT_EQ(info.kind == AttributeKind::Typed ? info.dataType : info.numericType,
                  expected.type);
        EXPECT_EQ(info.defaultNumber, expected.defaultNumber);
    }
    MObject fur = createFur();
    EXPECT_STREQ(mayahost::findPlug(fur, "imageSearchPath").asString().asChar(), "");
}

TEST_F(FurPlugin, TheBridgeRegistersNoDataType) {
    loadBridge();
    EXPECT_FALSE(mayahost::findDataTypeById(kFurDataId));
}

TEST_F(FurPlugin, UnloadingTakesItsRegistrationsAndAReloadStartsAnEmptyRecordingCallLog) {
    loadFur();
    MObject fur = createFur("fur");
    auto* shape = static_cast<MPxSurfaceShape*>(mayahost::userNode(fur));
    shape->boundingBox();
    EXPECT_EQ(furCalls().size(), 1u);
    ASSERT_TRUE(xrvellfur::setFurCallRecording(kFurPluginPath, false));
    shape->boundingBox();
    EXPECT_EQ(furCalls().size(), 1u);
    ASSERT_EQ(mayahost::deleteNode(fur), MStatus::kSuccess);

    ASSERT_EQ(mayahost::unloadPlugin(kFurPluginPath), MStatus::kSuccess);
    EXPECT_FALSE(mayahost::findNodeType("xrVellMaya"));
    EXPECT_FALSE(mayahost::findDataTypeById(kFurDataId));
    EXPECT_EQ(xrvellfur::furCallLog(kFurPluginPath), nullptr);

    EXPECT_FALSE(xrvellfur::setFurCallRecording(kFurPluginPath, true));

    loadFur();
    EXPECT_TRUE(furCalls().empty());
    MObject again = createFur("fur");
    static_cast<MPxSurfaceShape*>(mayahost::userNode(again))->boundingBox();
    EXPECT_EQ(furCalls().size(), 1u);
}

TEST_F(FurPlugin, ExportsOnlyItsEntryPointsVersionAndCallLog) {
    const std::string command = std::string(NM_COMMAND) + " -D --defined-only " + kFurPluginPath;
    FILE* pipe = popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::vector<std::string> symbols;
    char line[512];
    while (std::fgets(line, sizeof line, pipe)) {
        std::istringstream fields(line);
        std::string address, kind, name;
        if (fields >> address >> kind >> name) symbols.push_back(name);
    }
    ASSERT_EQ(pclose(pipe), 0);
    std::sort(symbols.begin(), symbols.end());
    const std::vector<std::string> expected = {
        "MApiVersion",
        "_Z16initializePluginN8Autodesk4Maya16OpenMaya202200007MObjectE",
        "_Z18uninitializePluginN8Autodesk4Maya16OpenMaya202200007MObjectE",
        "xrVellMayaCallLog",
        "xrVellMayaRecordCalls",
    };
    EXPECT_EQ(symbols, expected);
}
