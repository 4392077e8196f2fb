#include "ToolRun.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <fstream>
#include <sstream>

extern char** environ;

namespace {

const char* const kSearchPathVariables[] = {"MAYA_PLUG_IN_PATH=", "VRAY_FOR_MAYA2022_PLUGINS="};

std::vector<std::string> childEnvironment(const std::vector<std::string>& extra) {
    std::vector<std::string> variables;
    for (char** entry = environ; *entry; ++entry) {
        bool searchPath = false;
        for (const char* name : kSearchPathVariables)
            searchPath = searchPath || std::strncmp(*entry, name, std::strlen(name)) == 0;
        if (!searchPath) variables.push_back(*entry);
    }
    variables.insert(variables.end(), extra.begin(), extra.end());
    return variables;
}

std::vector<char*> pointers(std::vector<std::string>& strings) {
    std::vector<char*> list;
    for (std::string& s : strings) list.push_back(&s[0]);
    list.push_back(nullptr);
    return list;
}

std::string temporaryFile() {
    char name[] = "/tmp/xrvell-tool-XXXXXX";
    const int fd = mkstemp(name);
    if (fd >= 0) close(fd);
    return name;
}

std::string contentsOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    std::remove(path.c_str());
    return text.str();
}

}  // namespace

ToolResult ToolRun::run(const std::vector<std::string>& args, const std::string& directory,
                        const std::vector<std::string>& environment) {
    const std::string out = temporaryFile();
    const std::string err = temporaryFile();
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, directory.c_str());
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_TRUNC, 0);
    posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), O_WRONLY | O_TRUNC, 0);
    std::vector<std::string> argStrings = args;
    std::vector<std::string> envStrings = childEnvironment(environment);
    std::vector<char*> argv = pointers(argStrings);
    std::vector<char*> envp = pointers(envStrings);
    ToolResult result;
    pid_t child = 0;
    if (posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), envp.data()) == 0) {
        int status = 0;
        waitpid(child, &status, 0);
        result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    posix_spawn_file_actions_destroy(&actions);
    result.out = contentsOf(out);
    result.err = contentsOf(err);
    return result;
}
