#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <set>
#include <string>

#include "HostTest.h"

namespace {

std::set<std::string> definedDynamicSymbols(const std::string& library) {
    const std::string command = std::string(NM_COMMAND) + " -D --defined-only " + library;
    std::set<std::string> names;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return names;
    char line[1024];
    while (std::fgets(line, sizeof line, pipe)) {
        std::string text(line);
        while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
        names.insert(text.substr(text.rfind(' ') + 1));
    }
    pclose(pipe);
    return names;
}

}  // namespace

TEST(ExportedSymbols, ExactlyTheEntryPointsByTheirMangledNamesAndTheVersionRecord) {
    const std::set<std::string> expected = {
        "MApiVersion",
        "_Z16initializePluginN8Autodesk4Maya16OpenMaya202200007MObjectE",
        "_Z18uninitializePluginN8Autodesk4Maya16OpenMaya202200007MObjectE",
    };
    EXPECT_EQ(definedDynamicSymbols(kBridgePath), expected);
}

TEST(ExportedSymbols, ApiVersionIsTheMaya2022RecordWithOneTerminator) {
    void* library = dlopen(kBridgePath, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    const char* version = static_cast<const char*>(dlsym(library, "MApiVersion"));
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(std::memcmp(version, "20220000", 9), 0);
    dlclose(library);
}
