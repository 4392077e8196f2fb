#pragma once
#include <string>
#include <vector>

#include "MaTokenizer.h"

namespace xrvell {

// One change a scene made to the nodes of a file it references, as a reference node's
// "dataReferenceEdits" value records it.
struct ReferenceEdit {
    enum Kind {
        Parent = 0,          // child, new parent, parent flags
        AddAttr = 1,         // node, long name, short name, addAttr flags
        SetAttr = 2,         // node, attribute, setAttr arguments
        ConnectAttr = 3,     // source, destination, connectAttr flags
        DeleteAttr = 4,      // node, attribute, flags
        Placeholder = 5,     // a connection to a placeholder of the reference node: see below
        DisconnectAttr = 6,  // source, destination, flags
        Relationship = 7,    // light links and the like: nothing the render of fur sees
        LockAttr = 8,        // node, attribute
        UnlockAttr = 9,      // node, attribute
    };
    int kind = 0;
    // For a placeholder connection, which ends are in the reference: 0 both (reference node,
    // source, destination, their two placeholders, the original name), otherwise one
    // (reference node, plug, placeholder, the original name).
    int ends = 0;
    std::vector<std::string> words;
    std::string section;  // the reference node whose file's nodes the edit names
};

// The edits of one reference node's "dataReferenceEdits" value: the node's name, then for it
// and each reference below it the node's name, a count and that many edits.
class ReferenceEdits {
public:
    // The words after -type "dataReferenceEdits". False with a message when they do not read.
    bool parse(const std::vector<MaWord>& words);
    const std::vector<ReferenceEdit>& edits() const { return list; }
    const std::string& error() const { return errorText; }

private:
    bool parseSection();
    bool parseEdit(const std::string& section);
    bool takeNumber(int* value);
    bool takeCounted(std::vector<std::string>* into);
    bool takeWords(size_t count, std::vector<std::string>* into);
    bool fail(const std::string& text);

    const std::vector<MaWord>* words = nullptr;
    size_t next = 0;
    std::vector<ReferenceEdit> list;
    std::string errorText;
};

}  // namespace xrvell
