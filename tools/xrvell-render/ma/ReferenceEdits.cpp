#include "ReferenceEdits.h"

#include <cerrno>
#include <climits>
#include <cstdlib>

namespace xrvell {
namespace {

// The words each kind of edit takes after its kind.
size_t wordsOf(int kind, int ends) {
    switch (kind) {
        case ReferenceEdit::AddAttr:
            return 4;
        case ReferenceEdit::Placeholder:
            return ends == 0 ? 6 : 4;
        case ReferenceEdit::LockAttr:
        case ReferenceEdit::UnlockAttr:
            return 2;
        default:
            return 3;
    }
}

bool isNumber(const MaWord& word) {
    if (word.quoted || word.text.empty()) return false;
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(word.text.c_str(), &end, 10);
    return *end == '\0' && errno == 0 && value >= INT_MIN && value <= INT_MAX;
}

}  // namespace

bool ReferenceEdits::fail(const std::string& text) {
    errorText = "dataReferenceEdits: " + text;
    return false;
}

bool ReferenceEdits::takeNumber(int* value) {
    if (next >= words->size() || !isNumber((*words)[next]))
        return fail(next >= words->size() ? "ends where a number was expected"
                                          : "\"" + (*words)[next].text + "\" is not a number");
    *value = std::atoi((*words)[next++].text.c_str());
    return true;
}

bool ReferenceEdits::takeWords(size_t count, std::vector<std::string>* into) {
    if (next + count > words->size()) return fail("ends inside an edit");
    for (size_t i = 0; i < count; ++i) into->push_back((*words)[next++].text);
    return true;
}

bool ReferenceEdits::takeCounted(std::vector<std::string>* into) {
    int count = 0;
    if (!takeNumber(&count)) return false;
    if (count < 0) return fail("a negative count");
    return takeWords(static_cast<size_t>(count), into);
}

bool ReferenceEdits::parse(const std::vector<MaWord>& value) {
    words = &value;
    next = 0;
    list.clear();
    if (value.empty()) return fail("no reference node named");
    next = 1;  // the node the edits belong to
    while (next < value.size())
        if (!parseSection()) return false;
    return true;
}

bool ReferenceEdits::parseSection() {
    const std::string section = (*words)[next++].text;
    int count = 0;
    if (!takeNumber(&count)) return false;
    if (count < 0) return fail("a negative count");
    for (int i = 0; i < count; ++i)
        if (!parseEdit(section)) return false;
    return true;
}

bool ReferenceEdits::parseEdit(const std::string& section) {
    ReferenceEdit edit;
    edit.section = section;
    if (!takeNumber(&edit.kind)) return false;
    if (edit.kind == ReferenceEdit::Relationship) {
        // kind, relationship node, then two counted lists of plugs
        std::vector<std::string> ignored;
        return takeWords(2, &ignored) && takeCounted(&ignored) && takeCounted(&ignored);
    }
    if (edit.kind < 0 || edit.kind > ReferenceEdit::UnlockAttr)
        return fail("edit kind " + std::to_string(edit.kind) + " is not known");
    if (edit.kind == ReferenceEdit::Placeholder && !takeNumber(&edit.ends)) return false;
    if (!takeWords(wordsOf(edit.kind, edit.ends), &edit.words)) return false;
    list.push_back(std::move(edit));
    return true;
}

}  // namespace xrvell
