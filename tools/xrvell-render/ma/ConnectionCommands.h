#pragma once
#include <maya/MObject.h>

#include <string>

#include "MaTokenizer.h"
#include "ReadContext.h"

namespace xrvell {

// connectAttr and disconnectAttr. A connection between attributes the host models carries
// values; one with an end the host keeps without a model is kept, carrying none.
class ConnectionCommands {
public:
    explicit ConnectionCommands(ReadContext& context);

    bool connectAttr(const MaStatement& statement);
    bool disconnectAttr(const MaStatement& statement);

private:
    struct End {
        std::string written;
        PlugText text;
        MObject node;
    };
    static std::string what(const char* command, const End& from, const End& to);
    bool ends(const MaStatement& statement, const char* command, End* from, End* to, bool* force);
    bool keep(const End& from, const End& to, const std::string& what);

    ReadContext& context;
};

}  // namespace xrvell
