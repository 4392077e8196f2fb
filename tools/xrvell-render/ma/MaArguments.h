#pragma once
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "MaTokenizer.h"

namespace xrvell {

// One flag a command accepts, by its short and long name.
struct MaFlag {
    const char* shortName;
    const char* longName;
    bool takesValue;
};

// The flags and plain arguments of one command. A flag is a bare word of '-' and a letter, so
// negative numbers stay arguments; flags may stand anywhere, as Maya writes them.
class MaArguments {
public:
    // False with a message when a flag is unknown or lacks its value.
    bool parse(const MaStatement& statement, std::initializer_list<MaFlag> flags);

    bool has(const char* shortName) const;
    // The value of the flag's last occurrence; null when it is absent.
    const std::string* value(const char* shortName) const;
    std::vector<std::string> values(const char* shortName) const;
    const std::vector<MaWord>& plain() const { return plainWords; }
    const std::string& error() const { return errorText; }

private:
    std::vector<std::pair<const char*, std::string>> flagValues;  // by short name
    std::vector<MaWord> plainWords;
    std::string errorText;
};

}  // namespace xrvell
