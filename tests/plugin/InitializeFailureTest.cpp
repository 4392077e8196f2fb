#include "HostTest.h"

using mayahost::Message;

namespace {

const std::string kRegisterFailed =
    "registerNode failed: (kFailure): Unexpected Internal Failure\n";

// The host's note of why it refused the type: the initialiser itself returned kFailure (1).
const std::vector<std::string> kInitializerFailed = {
    "attribute initialiser of \"xrVellMayaVRay\" failed with status 1"};

struct AddFailure {
    int call;  // which addAttribute call fails, in the order the attributes are added
    const char* printed;
};

const AddFailure kAddFailures[] = {
    {1, "xrVellMayaVRay : error adding m_vrayGeom attribute.\n"},
    {2, "xrVellMayaVRay : error adding m_vrayGeom attribute.\n"},
    {3, "xrVellMayaVRay : error adding m_outApiType attribute.\n"},
    {4, "xrVellMayaVRay : error adding m_outApiClassification attribute.\n"},
    {5, "xrVellMayaVRay : error adding m_inputData attribute.\n"},
    {6, "xrVellMaya : error adding m_time attribute\n"},
};

void PrintTo(const AddFailure& failure, std::ostream* out) {
    *out << "addAttribute call " << failure.call;
}

struct LoadOutcome {
    mayahost::PluginLoad load;
    std::string printed;
};

LoadOutcome loadWith(const mayahost::Faults& faults) {
    mayahost::setFaults(faults);
    LoadOutcome outcome;
    outcome.printed = stderrOf([&] { outcome.load = mayahost::loadPlugin(kBridgePath); });
    return outcome;
}

class AddAttributeFailure : public HostTest, public ::testing::WithParamInterface<AddFailure> {};

}  // namespace

TEST_P(AddAttributeFailure, PrintsItsLineThenRefusesTheRegistration) {
    mayahost::Faults faults;
    faults.addAttribute = {GetParam().call};
    const LoadOutcome outcome = loadWith(faults);

    EXPECT_EQ(outcome.load.status, MStatus::kFailure);
    EXPECT_EQ(outcome.printed, GetParam().printed + kRegisterFailed);
    EXPECT_EQ(mayahost::diagnostics(), kInitializerFailed);
    EXPECT_EQ(shown(Message::Channel::Perror), std::vector<std::string>{"registerNode failed"});
    EXPECT_FALSE(mayahost::findNodeType("xrVellMayaVRay"));
    EXPECT_TRUE(mayahost::loadedPlugins().empty());
}

INSTANTIATE_TEST_SUITE_P(EachStep, AddAttributeFailure, ::testing::ValuesIn(kAddFailures),
                         [](const auto& info) { return "call" + std::to_string(info.param.call); });

class AffectsFailure : public HostTest {};

TEST_F(AffectsFailure, TheFirstTwoRelationsAreNotExamined) {
    for (const std::set<int>& failing : {std::set<int>{1}, std::set<int>{2}, std::set<int>{1, 2}}) {
        mayahost::reset();
        mayahost::Faults faults;
        faults.attributeAffects = failing;
        const LoadOutcome outcome = loadWith(faults);
        EXPECT_TRUE(outcome.load) << outcome.load.error;
        EXPECT_EQ(outcome.printed, "");
        EXPECT_TRUE(mayahost::findNodeType("xrVellMayaVRay"));
    }
}

TEST_F(AffectsFailure, TheThirdRelationFailsTheRegistration) {
    mayahost::Faults faults;
    faults.attributeAffects = {3};
    const LoadOutcome outcome = loadWith(faults);
    EXPECT_EQ(outcome.load.status, MStatus::kFailure);
    EXPECT_EQ(outcome.printed, "xrVellMayaVRay : error in attributeAffects\n" + kRegisterFailed);
    EXPECT_EQ(mayahost::diagnostics(), kInitializerFailed);
    EXPECT_FALSE(mayahost::findNodeType("xrVellMayaVRay"));
}

TEST_F(AffectsFailure, AFailedLoadLeavesNothingBehindAndTheNextLoadWorks) {
    mayahost::Faults faults;
    faults.addAttribute = {6};
    ASSERT_FALSE(loadWith(faults).load);
    mayahost::setFaults(mayahost::Faults());
    loadBridge();
    mayahost::NodeTypeInfo type;
    ASSERT_TRUE(mayahost::findNodeType("xrVellMayaVRay", &type));
    EXPECT_EQ(type.attributes.size(), 6u);
}
