#include "MaArguments.h"

#include <cctype>
#include <cstring>

namespace xrvell {
namespace {

bool looksLikeFlag(const MaWord& word) {
    return !word.quoted && word.text.size() >= 2 && word.text[0] == '-' &&
           std::isalpha(static_cast<unsigned char>(word.text[1]));
}

const MaFlag* findFlag(const std::string& name, std::initializer_list<MaFlag> flags) {
    for (const MaFlag& flag : flags)
        if (name == flag.shortName || name == flag.longName) return &flag;
    return nullptr;
}

}  // namespace

bool MaArguments::parse(const MaStatement& statement, std::initializer_list<MaFlag> flags) {
    const std::string& command = statement.words[0].text;
    for (size_t i = 1; i < statement.words.size(); ++i) {
        const MaWord& word = statement.words[i];
        if (!looksLikeFlag(word)) {
            plainWords.push_back(word);
            continue;
        }
        const MaFlag* flag = findFlag(word.text.substr(1), flags);
        if (!flag) {
            errorText = command + ": unknown flag \"" + word.text + "\"";
            return false;
        }
        if (!flag->takesValue) {
            flagValues.emplace_back(flag->shortName, std::string());
            continue;
        }
        if (i + 1 == statement.words.size()) {
            errorText = command + ": flag \"" + word.text + "\" needs a value";
            return false;
        }
        flagValues.emplace_back(flag->shortName, statement.words[++i].text);
    }
    return true;
}

bool MaArguments::has(const char* shortName) const { return value(shortName) != nullptr; }

const std::string* MaArguments::value(const char* shortName) const {
    const std::string* found = nullptr;
    for (const auto& flag : flagValues)
        if (std::strcmp(flag.first, shortName) == 0) found = &flag.second;
    return found;
}

std::vector<std::string> MaArguments::values(const char* shortName) const {
    std::vector<std::string> all;
    for (const auto& flag : flagValues)
        if (std::strcmp(flag.first, shortName) == 0) all.push_back(flag.second);
    return all;
}

}  // namespace xrvell
