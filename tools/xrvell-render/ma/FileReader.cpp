#include "FileReader.h"

#include <maya/MTime.h>

#include "MaArguments.h"
#include "TruncationCheck.h"

namespace xrvell {
namespace {

// The renderer's own Maya plug-in: this program stands in for it.
const char* const kRendererPlugin = "vrayformaya";

// The fur product's plug-in and the bridge, with their node types: without them a scene's fur
// cannot be rendered, so their nodes are never kept as unknown nodes.
const struct {
    const char* plugin;
    const char* nodeType;
} kProductPlugins[] = {{"xrVellMaya", "xrVellMaya"}, {"xrVellVRayMaya", "xrVellMayaVRay"}};

const char* productNodeType(std::string plugin) {
    if (plugin.size() > 3 && plugin.compare(plugin.size() - 3, 3, ".so") == 0)
        plugin.resize(plugin.size() - 3);
    for (const auto& product : kProductPlugins)
        if (plugin == product.plugin) return product.nodeType;
    return nullptr;
}

// Commands every Maya file holds that change nothing the render sees.
bool isBookkeeping(const std::string& command) {
    static const char* const names[] = {"fileInfo",       "relationship",  "rename",
                                        "lockNode",       "dataStructure", "workspace",
                                        "setNodeTypeFlag"};
    for (const char* name : names)
        if (command == name) return true;
    return false;
}

// currentUnit -l names, long and short, with centimetres per unit.
bool linearUnitNamed(const std::string& name, double* centimetres) {
    static const struct {
        const char* shortName;
        const char* longName;
        double centimetres;
    } units[] = {{"mm", "millimeter", 0.1},     {"cm", "centimeter", 1.0}, {"m", "meter", 100.0},
                 {"km", "kilometer", 100000.0}, {"in", "inch", 2.54},      {"ft", "foot", 30.48},
                 {"yd", "yard", 91.44},         {"mi", "mile", 160934.4}};
    for (const auto& unit : units)
        if (name == unit.shortName || name == unit.longName) {
            *centimetres = unit.centimetres;
            return true;
        }
    return false;
}

// currentUnit -a names, long and short, with radians per unit.
bool angleUnitNamed(const std::string& name, double* radians) {
    const double pi = 3.14159265358979323846;
    static const struct {
        const char* shortName;
        const char* longName;
        double radians;
    } units[] = {{"deg", "degree", pi / 180.0}, {"rad", "radian", 1.0}};
    for (const auto& unit : units)
        if (name == unit.shortName || name == unit.longName) {
            *radians = unit.radians;
            return true;
        }
    return false;
}

// currentUnit -t names of Maya 2022's time units.
bool timeUnitNamed(const std::string& name, MTime::Unit* unit) {
    static const struct {
        const char* name;
        MTime::Unit unit;
    } units[] = {
        {"hour", MTime::kHours},          {"min", MTime::kMinutes},
        {"sec", MTime::kSeconds},         {"millisec", MTime::kMilliseconds},
        {"game", MTime::kGames},          {"film", MTime::kFilm},
        {"pal", MTime::kPALFrame},        {"ntsc", MTime::kNTSCFrame},
        {"show", MTime::kShowScan},       {"palf", MTime::kPALField},
        {"ntscf", MTime::kNTSCField},     {"15fps", MTime::k15FPS},
        {"24fps", MTime::k24FPS},         {"25fps", MTime::k25FPS},
        {"30fps", MTime::k30FPS},         {"48fps", MTime::k48FPS},
        {"50fps", MTime::k50FPS},         {"60fps", MTime::k60FPS},
        {"2fps", MTime::k2FPS},           {"3fps", MTime::k3FPS},
        {"4fps", MTime::k4FPS},           {"5fps", MTime::k5FPS},
        {"6fps", MTime::k6FPS},           {"8fps", MTime::k8FPS},
        {"10fps", MTime::k10FPS},         {"12fps", MTime::k12FPS},
        {"16fps", MTime::k16FPS},         {"20fps", MTime::k20FPS},
        {"40fps", MTime::k40FPS},         {"75fps", MTime::k75FPS},
        {"80fps", MTime::k80FPS},         {"100fps", MTime::k100FPS},
        {"120fps", MTime::k120FPS},       {"125fps", MTime::k125FPS},
        {"150fps", MTime::k150FPS},       {"200fps", MTime::k200FPS},
        {"240fps", MTime::k240FPS},       {"250fps", MTime::k250FPS},
        {"300fps", MTime::k300FPS},       {"375fps", MTime::k375FPS},
        {"400fps", MTime::k400FPS},       {"500fps", MTime::k500FPS},
        {"600fps", MTime::k600FPS},       {"750fps", MTime::k750FPS},
        {"1200fps", MTime::k1200FPS},     {"1500fps", MTime::k1500FPS},
        {"2000fps", MTime::k2000FPS},     {"3000fps", MTime::k3000FPS},
        {"6000fps", MTime::k6000FPS},     {"23.976fps", MTime::k23_976FPS},
        {"29.97fps", MTime::k29_97FPS},   {"29.97df", MTime::k29_97DF},
        {"47.952fps", MTime::k47_952FPS}, {"59.94fps", MTime::k59_94FPS},
        {"44100fps", MTime::k44100FPS},   {"48000fps", MTime::k48000FPS},
        {"90fps", MTime::k90FPS},
    };
    for (const auto& entry : units) {
        if (name == entry.name) {
            *unit = entry.unit;
            return true;
        }
    }
    return false;
}

// setAttr ".attr": Maya writes the plug as the first quoted word.
bool isRelativePlug(const MaStatement& statement) {
    for (size_t i = 1; i < statement.words.size(); ++i)
        if (statement.words[i].quoted) return statement.words[i].text[0] == '.';
    return false;
}

// The node a createNode or select names ("-n" for createNode, the last plain word for select),
// for the messages of the lines that were meant for it; empty for other commands.
std::string failedTarget(const MaStatement& statement) {
    const std::vector<MaWord>& words = statement.words;
    const std::string& command = words[0].text;
    if (command != "createNode" && command != "select") return "";
    std::string name;
    for (size_t i = 1; i < words.size(); ++i) {
        const bool flag = !words[i].quoted && words[i].text[0] == '-';
        const bool nameFlag = flag && (words[i].text == "-n" || words[i].text == "-name");
        if (command == "createNode" && nameFlag && i + 1 < words.size()) name = words[++i].text;
        if (command == "select" && !flag) name = words[i].text;
    }
    const std::string of = name.empty() ? "" : " of " + quoted(name);
    return "the " + command + of + " at line " + std::to_string(statement.line) + " failed";
}

}  // namespace

void FileReader::refuseProductTypes(NodeTypeRules& rules) {
    for (const auto& product : kProductPlugins)
        rules.refused[product.nodeType] =
            "node type " + quoted(product.nodeType) + " is not registered: its plug-in " +
            quoted(product.plugin) + " is not loaded (no requires line names it)";
}

FileReader::FileReader(SceneState& state, const std::string& file, const std::string& nameSpace)
    : scene(state),
      context(state.diagnostics, state.created, file, nameSpace),
      nodes(context, state.types),
      attributes(context),
      connections(context),
      references(
          context, state, [this](const MaStatement& statement) { return dispatch(statement); },
          [this](const std::string& path, std::string_view text, const std::string& space) {
              return FileReader(scene, path, space).read(text);
          }) {}

// Each failing command is reported and the reading goes on, as in Maya, so one run shows every
// error; a syntax error ends it, since what follows cannot be told apart.
bool FileReader::read(std::string_view text) {
    MaTokenizer tokenizer(text);
    MaStatement statement;
    bool ok = true;
    while (tokenizer.next(statement)) {
        context.line = statement.line;
        if (apply(statement)) continue;
        ok = false;
        const std::string target = failedTarget(statement);
        if (!target.empty()) context.unselect(target);
    }
    if (!tokenizer.error().empty()) {
        context.line = tokenizer.errorLine();
        ok = context.fail(tokenizer.error());
    }
    const std::string truncated = TruncationCheck::problem(text, &context.line);
    if (!truncated.empty()) context.warn(truncated);
    return references.finish() && ok;
}

bool FileReader::apply(const MaStatement& statement) {
    const std::string& command = statement.words[0].text;
    if (command == "file") return references.file(statement);
    if (command == "setAttr" && references.isEditData(statement))
        return references.editData(statement);
    if (command == "connectAttr" && references.isPlaceholderConnection(statement))
        return references.placeholderConnection(statement);
    if (command == "select" && sharedNodeSelected(statement)) return true;
    if (command == "createNode") sharedSelected = false;
    if (command == "setAttr" && sharedSelected && isRelativePlug(statement)) return true;
    return dispatch(statement);
}

// A referenced file's settings of the scene's shared nodes (":time1") are not the scene's:
// the scene keeps its own current time and render settings.
bool FileReader::sharedNodeSelected(const MaStatement& statement) {
    sharedSelected = false;
    if (context.nameSpace().empty()) return false;
    for (size_t i = 1; i < statement.words.size(); ++i)
        if (statement.words[i].text.size() > 1 && statement.words[i].text[0] == ':')
            sharedSelected = true;
    return sharedSelected;
}

bool FileReader::dispatch(const MaStatement& statement) {
    const std::string& command = statement.words[0].text;
    if (command == "createNode") return nodes.createNode(statement);
    if (command == "setAttr") return attributes.setAttr(statement);
    if (command == "connectAttr") return connections.connectAttr(statement);
    if (command == "select") return nodes.select(statement);
    if (command == "requires") return requiresCommand(statement);
    if (command == "currentUnit") return currentUnitCommand(statement);
    if (command == "parent") return nodes.parent(statement);
    if (command == "addAttr") return attributes.addAttr(statement);
    if (command == "disconnectAttr") return connections.disconnectAttr(statement);
    return skipCommand(statement);
}

bool FileReader::skipCommand(const MaStatement& statement) {
    const std::string& command = statement.words[0].text;
    if (isBookkeeping(command)) return true;
    context.warn(quoted(command) + " commands are skipped", "skipped command");
    return true;
}

// A plug-in that is not there is a warning, as in Maya, and its nodes are kept as unknown
// nodes; for the fur product and the bridge, their nodes are errors.
bool FileReader::requiresCommand(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"nodeType", "nodeType", true}, {"dataType", "dataType", true}}))
        return context.fail(args.error());
    if (args.plain().empty()) return context.fail("requires: no plug-in named");
    const std::string& plugin = args.plain()[0].text;
    if (plugin == "maya" || plugin == kRendererPlugin) return true;
    const std::string problem = scene.requirePlugin(plugin);
    if (problem.empty()) return true;
    if (problem.compare(0, 10, "requires: ") == 0) return context.fail(problem);
    if (const char* productType = productNodeType(plugin)) {
        nodes.refuseType(productType, problem);
        for (const std::string& type : args.values("nodeType")) nodes.refuseType(type, problem);
        return true;
    }
    context.warn(problem + "; its nodes are kept as unknown nodes");
    return true;
}

bool FileReader::currentUnitCommand(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"l", "linear", true},
                                {"a", "angle", true},
                                {"t", "time", true},
                                {"f", "fullName", false},
                                {"ua", "updateAnimation", true}}))
        return context.fail(args.error());
    // A referenced file's units are not the scene's.
    const bool forScene = context.nameSpace().empty() && scene.reading.size() <= 1;
    mayahost::UiUnits units = mayahost::uiUnits();
    if (const std::string* linear = args.value("l")) {
        if (!linearUnitNamed(*linear, &units.centimetresPerLinearUnit))
            return context.fail("currentUnit: unsupported linear unit " + quoted(*linear));
    }
    if (const std::string* angle = args.value("a")) {
        if (!angleUnitNamed(*angle, &units.radiansPerAngleUnit))
            return context.fail("currentUnit: unsupported angle unit " + quoted(*angle));
    }
    if (forScene) mayahost::setUiUnits(units);
    const std::string* time = args.value("t");
    if (!time) return true;
    MTime::Unit unit = MTime::kFilm;
    if (!timeUnitNamed(*time, &unit))
        return context.fail("currentUnit: unsupported time unit " + quoted(*time));
    if (forScene) MTime::setUIUnit(unit);
    return true;
}

}  // namespace xrvell
