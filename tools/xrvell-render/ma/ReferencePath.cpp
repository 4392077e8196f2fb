#include "ReferencePath.h"

#include <sys/stat.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace xrvell {
namespace {

bool isRegularFile(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool isAbsolute(const std::string& path) { return !path.empty() && path[0] == '/'; }

std::string joined(const std::string& folder, const std::string& path) {
    if (folder.empty() || folder == ".") return path;
    return folder.back() == '/' ? folder + path : folder + "/" + path;
}

std::string baseName(const std::string& path) {
    const size_t slash = path.find_last_of("/\\");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool isNameChar(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

}  // namespace

ReferencePath::ReferencePath(std::string referencingFolder, std::string project)
    : folder(std::move(referencingFolder)), projectRoot(std::move(project)) {}

std::string ReferencePath::folderOf(const std::string& path) {
    const size_t slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string ReferencePath::realPathOf(const std::string& path) {
    char* real = realpath(path.c_str(), nullptr);
    if (!real) return path;
    std::string result = real;
    std::free(real);
    return result;
}

std::string ReferencePath::projectOf(const std::string& sceneFolder) {
    char* real = realpath(sceneFolder.c_str(), nullptr);
    if (!real) return "";
    std::string folder = real;
    std::free(real);
    for (;;) {
        if (isRegularFile(joined(folder, "workspace.mel"))) return folder;
        if (folder == "/") return "";
        folder = folderOf(folder);
    }
}

// $VAR and ${VAR}, as Maya expands them in file paths.
std::string ReferencePath::expanded(const std::string& written) {
    std::string path;
    for (size_t i = 0; i < written.size(); ++i) {
        if (written[i] != '$') {
            path += written[i];
            continue;
        }
        const bool braced = i + 1 < written.size() && written[i + 1] == '{';
        size_t start = i + (braced ? 2 : 1), end = start;
        while (end < written.size() && isNameChar(written[end])) ++end;
        if (end == start || (braced && (end >= written.size() || written[end] != '}'))) {
            path += written[i];
            continue;
        }
        const std::string name = written.substr(start, end - start);
        const char* value = std::getenv(name.c_str());
        if (!value && unset.empty()) unset = name;
        path += value ? value : written.substr(i, end - i + (braced ? 1 : 0));
        i = end - (braced ? 0 : 1);
    }
    return path;
}

void ReferencePath::addPlaces(const std::string& path) {
    auto add = [this](const std::string& place) {
        if (std::find(places.begin(), places.end(), place) == places.end()) places.push_back(place);
    };
    if (isAbsolute(path)) {
        add(path);
    } else {
        if (!projectRoot.empty()) {
            add(joined(projectRoot, path));
            add(joined(joined(projectRoot, "scenes"), path));
        }
        add(joined(folder, path));
    }
    const std::string name = baseName(path);
    add(joined(folder, name));
    if (!projectRoot.empty()) add(joined(joined(projectRoot, "scenes"), name));
}

bool ReferencePath::firstExisting(std::string* found) const {
    for (const std::string& place : places) {
        if (isRegularFile(place)) {
            *found = place;
            return true;
        }
    }
    return false;
}

bool ReferencePath::resolve(const std::string& written, std::string* found) {
    places.clear();
    unset.clear();
    addPlaces(expanded(written));
    return firstExisting(found);
}

}  // namespace xrvell
