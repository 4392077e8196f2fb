#include "ReferenceCommands.h"

#include <mayahost/Host.h>

#include <algorithm>

#include "MaArguments.h"
#include "ReferencePath.h"
#include "SceneFile.h"

namespace xrvell {
namespace {

bool isTrue(const std::string* value) {
    return value && (*value == "1" || *value == "true" || *value == "on" || *value == "yes");
}

std::string withoutExtension(const std::string& path) {
    const size_t slash = path.find_last_of("/\\");
    std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    const size_t dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

std::vector<MaWord> tokens(const std::string& arguments) {
    const std::string text = arguments + " ;";  // the tokenizer reads it in place
    MaTokenizer tokenizer(text);
    MaStatement statement;
    if (!tokenizer.next(statement)) return {};
    return statement.words;
}

std::string listed(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) text += (text.empty() ? "" : ", ") + quoted(name);
    return text;
}

const char* const kMissing = "; its nodes are missing from the scene";

}  // namespace

ReferenceCommands::ReferenceCommands(ReadContext& shared, SceneState& state, Run runCommand,
                                     Load load)
    : context(shared), scene(state), run(std::move(runCommand)), loadFile(std::move(load)) {}

bool ReferenceCommands::file(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"r", "reference", false},
                                {"rdi", "referenceDepthInfo", true},
                                {"ns", "namespace", true},
                                {"rfn", "referenceNode", true},
                                {"dr", "deferReference", true},
                                {"op", "options", true},
                                {"typ", "type", true},
                                {"rpr", "renamingPrefix", true},
                                {"shd", "sharedNodes", true},
                                {"gl", "groupLocator", false},
                                {"gr", "groupReference", false},
                                {"gn", "groupName", true},
                                {"lrd", "loadReferenceDepth", true},
                                {"mnc", "mergeNamespacesOnClash", true},
                                {"iv", "ignoreVersion", false},
                                {"pr", "preserveReferences", false},
                                {"f", "force", false}}))
        return context.fail(args.error());
    if (args.has("rdi")) {
        recordLoadState(args);
        return true;
    }
    if (args.has("r")) return reference(args);
    context.warn("\"file\" commands other than references are skipped", "skipped command");
    return true;
}

// Whether each reference was loaded when the scene was saved: the scene's word holds over
// that of the files below it, which are read later.
void ReferenceCommands::recordLoadState(const MaArguments& args) {
    const std::string* node = args.value("rfn");
    if (node) scene.loadStates.emplace(context.sceneName(*node), !isTrue(args.value("dr")));
}

bool ReferenceCommands::reference(const MaArguments& args) {
    if (args.plain().size() != 1) return context.fail("file -r: expects one file path");
    Reference added;
    added.written = args.plain()[0].text;
    const std::string* ns = args.value("ns");
    const std::string* prefix = args.value("rpr");
    // An old-style reference, with a renaming prefix and no namespace, keeps its nodes' names.
    const std::string name = ns ? *ns : prefix ? ":" : withoutExtension(added.written);
    const std::string& outer = context.nameSpace();
    if (name.empty() || name == ":")
        added.nameSpace = outer;
    else if (name[0] == ':')
        added.nameSpace = name.substr(1);
    else
        added.nameSpace = outer.empty() ? name : outer + ":" + name;
    if (!added.nameSpace.empty() && !NodeCommands::isNodeName(added.nameSpace))
        return context.fail("file -r: " + quoted(name) +
                            " is not a valid namespace (letters, digits and '_', not starting "
                            "with a digit; ':' between namespaces)");
    const std::string* node = args.value("rfn");
    added.node = node ? context.sceneName(*node) : withoutExtension(added.written) + "RN";
    added.type = args.value("typ") ? *args.value("typ") : "";
    added.line = context.line;
    const bool deferred = isTrue(args.value("dr"));
    const auto state = scene.loadStates.find(added.node);
    const bool loaded = state != scene.loadStates.end() ? state->second : !deferred;
    added.pending = loaded && deferred;
    list.push_back(added);
    if (!loaded) {
        context.note("reference " + quoted(added.node) + " (" + quoted(added.written) +
                     ") is unloaded in the scene; its nodes are not read");
        return true;
    }
    return deferred || load(list.back());
}

bool ReferenceCommands::load(Reference& reference) {
    reference.pending = false;
    const std::string what = "reference " + quoted(reference.node) + ": ";
    if (reference.type == "mayaBinary") {
        context.warn(what + quoted(reference.written) +
                         " is a binary Maya file: only Maya ASCII is read" + kMissing,
                     "missing reference");
        return true;
    }
    if (!reference.type.empty() && reference.type != "mayaAscii") {
        context.note(what + quoted(reference.written) + " is of type " + quoted(reference.type) +
                     ", not a Maya scene; it is not read");
        return true;
    }
    std::string path, text;
    if (!readable(reference, &path, &text)) return true;
    return readWithoutCycle(reference, path, text);
}

bool ReferenceCommands::readable(const Reference& reference, std::string* path, std::string* text) {
    const std::string what = "reference " + quoted(reference.node) + ": ";
    ReferencePath finder(ReferencePath::folderOf(context.file()), scene.project);
    if (!finder.resolve(reference.written, path)) {
        const std::string unset =
            finder.unsetVariable().empty() ? "" : "$" + finder.unsetVariable() + " is not set; ";
        context.warn(what + "cannot find " + quoted(reference.written) + " (" + unset +
                         "looked for " + listed(finder.tried()) + ")" + kMissing,
                     "missing reference");
        return false;
    }
    SceneFile file;
    std::string problem;
    if (!file.read(*path, &problem)) {
        context.warn(what + problem + kMissing, "missing reference");
        return false;
    }
    const std::string notAscii = SceneFile::notMayaAscii(*path, file.text);
    if (!notAscii.empty()) {
        context.warn(what + notAscii + kMissing, "missing reference");
        return false;
    }
    text->swap(file.text);
    return true;
}

// A file that references itself, at any depth, would be read without end.
bool ReferenceCommands::readWithoutCycle(const Reference& reference, const std::string& path,
                                         std::string_view text) {
    const std::string id = ReferencePath::realPathOf(path);
    const auto& ids = scene.readingIds;
    const auto loop = std::find(ids.begin(), ids.end(), id);
    if (loop != ids.end()) {
        std::string chain;
        for (size_t i = static_cast<size_t>(loop - ids.begin()); i < ids.size(); ++i)
            chain += scene.reading[i] + " -> ";
        return context.fail("reference " + quoted(reference.node) + " makes a cycle: " + chain +
                            path + "; it is not loaded");
    }
    scene.loadedReferences.insert(reference.node);
    scene.reading.push_back(path);
    scene.readingIds.push_back(id);
    const bool read = loadFile(path, text, reference.nameSpace);
    scene.reading.pop_back();
    scene.readingIds.pop_back();
    return read;
}

bool ReferenceCommands::isReferenceNode(const std::string& name) const {
    for (const Reference& reference : list)
        if (reference.node == name) return true;
    for (const NodeEdits& node : edits)
        if (node.node == name) return true;
    return false;
}

bool ReferenceCommands::isEditData(const MaStatement& statement) const {
    const auto& words = statement.words;
    if (words.size() < 4 || words[1].text != ".ed" || context.selected().isNull()) return false;
    return words[2].text == "-type" && words[3].text == "dataReferenceEdits" &&
           mayahost::realTypeName(context.selected()) == "reference";
}

bool ReferenceCommands::editData(const MaStatement& statement) {
    ReferenceEdits parsed;
    const std::vector<MaWord> value(statement.words.begin() + 4, statement.words.end());
    if (!parsed.parse(value)) return context.fail(parsed.error());
    edits.push_back(
        NodeEdits{mayahost::nodeName(context.selected()), context.line, parsed.edits()});
    return true;
}

bool ReferenceCommands::placeholderOf(const std::string& plug, std::string* key) const {
    const size_t dot = plug.find('.');
    if (dot == std::string::npos) return false;
    const std::string attribute = plug.substr(dot + 1);
    const size_t bracket = attribute.find('[');
    const std::string name = attribute.substr(0, bracket);
    if (bracket == std::string::npos || (name != "phl" && name != "placeHolderList")) return false;
    const std::string node = context.sceneName(plug.substr(0, dot));
    if (!isReferenceNode(node)) return false;
    *key = node + attribute.substr(bracket);
    return true;
}

bool ReferenceCommands::isPlaceholderConnection(const MaStatement& statement) const {
    std::string key;
    for (size_t i = 1; i < statement.words.size(); ++i)
        if (placeholderOf(statement.words[i].text, &key)) return true;
    return false;
}

bool ReferenceCommands::placeholderConnection(const MaStatement& statement) {
    links.push_back(Link{statement});
    return true;
}

bool ReferenceCommands::finish() {
    bool read = true;
    for (Reference& reference : list) {
        context.line = reference.line;
        if (reference.pending && !load(reference)) read = false;
    }
    context.failAsWarning("failed reference edit");
    for (const NodeEdits& node : edits) applyEdits(node);
    for (const Link& link : links) connectLink(link);
    context.failAsWarning("");
    return read;
}

// Edits for a reference that is not loaded wait in the scene, as in Maya.
void ReferenceCommands::applyEdits(const NodeEdits& node) {
    for (const ReferenceEdit& edit : node.edits)
        if (scene.loadedReferences.count(context.sceneName(edit.section)))
            applyEdit(edit, node.line);
}

void ReferenceCommands::applyEdit(const ReferenceEdit& edit, int line) {
    const std::vector<std::string>& w = edit.words;
    switch (edit.kind) {
        case ReferenceEdit::Parent:
            runAsEdit(line, {"parent", w[0], w[1]}, w[2]);
            break;
        case ReferenceEdit::AddAttr:
            runAsEdit(line, {"addAttr", "-ln", w[1], "-sn", w[2]}, w[3], w[0]);
            break;
        case ReferenceEdit::SetAttr:
            runAsEdit(line, {"setAttr", w[0] + "." + w[1]}, w[2]);
            break;
        case ReferenceEdit::ConnectAttr:
            runAsEdit(line, {"connectAttr", w[0], w[1]}, w[2]);
            break;
        case ReferenceEdit::DisconnectAttr:
            runAsEdit(line, {"disconnectAttr", w[0], w[1]}, w[2]);
            break;
        case ReferenceEdit::Placeholder:
            mapPlaceholder(edit);
            break;
        default:
            break;  // deleted, locked and unlocked attributes change nothing rendered
    }
}

void ReferenceCommands::mapPlaceholder(const ReferenceEdit& edit) {
    std::string key;
    const std::vector<std::string>& w = edit.words;
    if (edit.ends == 0) {
        if (placeholderOf(w[3], &key)) placeholders[key] = w[1];
        if (placeholderOf(w[4], &key)) placeholders[key] = w[2];
    } else if (placeholderOf(w[2], &key)) {
        placeholders[key] = w[1];
    }
}

// A connection the file made to a placeholder is one to the plug the placeholder stands for;
// one whose plug is not loaded stays on the placeholder.
void ReferenceCommands::connectLink(const Link& link) {
    MaStatement statement = link.statement;
    context.line = statement.line;
    for (MaWord& word : statement.words) {
        std::string key;
        if (!placeholderOf(word.text, &key)) continue;
        const auto plug = placeholders.find(key);
        if (plug == placeholders.end()) {
            context.note("connection to " + quoted(word.text) +
                         " stands for no plug of a loaded reference; it stays on the placeholder");
            run(link.statement);
            return;
        }
        word.text = plug->second;
    }
    run(statement);
}

bool ReferenceCommands::runAsEdit(int line, std::vector<std::string> words,
                                  const std::string& arguments, const std::string& last) {
    MaStatement statement;
    statement.line = line;
    for (std::string& word : words) {
        const bool flag = word[0] == '-';
        statement.words.push_back(MaWord{std::move(word), !flag});
    }
    statement.words[0].quoted = false;
    for (MaWord& token : tokens(arguments)) statement.words.push_back(std::move(token));
    if (!last.empty()) statement.words.push_back(MaWord{last, true});
    context.line = line;
    return run(statement);
}

}  // namespace xrvell
