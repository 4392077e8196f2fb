#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "HostTest.h"

namespace {

struct DynamicSymbol {
    unsigned long size = 0;  // bytes; 0 when nm gives none
    char type = '?';         // nm's letter: 'T' code, 'D' writable data, 'R' read-only data
};

// The library's defined dynamic symbols by name, as "nm -D -S --defined-only" lists them.
std::map<std::string, DynamicSymbol> definedDynamicSymbols(const std::string& library) {
    const std::string command = std::string(NM_COMMAND) + " -D -S --defined-only " + library;
    std::map<std::string, DynamicSymbol> symbols;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return symbols;
    char line[1024];
    while (std::fgets(line, sizeof line, pipe)) {
        std::istringstream fields(line);
        std::vector<std::string> parts;
        for (std::string part; fields >> part;) parts.push_back(part);
        if (parts.size() < 3) continue;
        DynamicSymbol symbol;
        if (parts.size() >= 4) symbol.size = std::stoul(parts[1], nullptr, 16);
        symbol.type = parts[parts.size() - 2][0];
        symbols[parts.back()] = symbol;
    }
    pclose(pipe);
    return symbols;
}

// The built library, or the copy named by XRVELL_PLUGIN_UNDER_TEST (the installed module's).
const char* pluginUnderTest() {
    const char* path = std::getenv("XRVELL_PLUGIN_UNDER_TEST");
    return path ? path : kBridgePath;
}

}  // namespace

TEST(ExportedSymbols, ExactlyTheEntryPointsByTheirMangledNamesAndTheVersionRecord) {
    const std::set<std::string> expected = {
        "MApiVersion",
        "_Z16initializePluginN8Autodesk4Maya16OpenMaya202200007MObjectE",
        "_Z18uninitializePluginN8Autodesk4Maya16OpenMaya202200007MObjectE",
    };
    std::set<std::string> names;
    for (const auto& symbol : definedDynamicSymbols(pluginUnderTest())) names.insert(symbol.first);
    EXPECT_EQ(names, expected);
}

TEST(ExportedSymbols, ApiVersionIsNineBytesOfWritableData) {
    const auto symbols = definedDynamicSymbols(pluginUnderTest());
    const auto version = symbols.find("MApiVersion");
    ASSERT_NE(version, symbols.end());
    EXPECT_EQ(version->second.size, 9u);
    EXPECT_EQ(version->second.type, 'D');
    for (const char* entry : {"_Z16initializePluginN8Autodesk4Maya16OpenMaya202200007MObjectE",
                              "_Z18uninitializePluginN8Autodesk4Maya16OpenMaya202200007MObjectE"})
        EXPECT_EQ(symbols.at(entry).type, 'T') << entry;
}

TEST(ExportedSymbols, ApiVersionIsTheMaya2022RecordWithOneTerminator) {
    void* library = dlopen(pluginUnderTest(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    const char* version = static_cast<const char*>(dlsym(library, "MApiVersion"));
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(std::memcmp(version, "20220000", 9), 0);
    dlclose(library);
}
