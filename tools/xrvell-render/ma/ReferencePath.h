#pragma once
#include <string>
#include <vector>

namespace xrvell {

// Where a referenced file is, found the way Maya looks for it: the path as written with its
// environment variables ($VAR, ${VAR}) expanded; a relative path in the project (its root, then
// its scenes folder), then beside the file that references it; and when none of these is there,
// the file's name alone beside the referencing file and in the project's scenes folder, which
// finds a scene moved from another machine with its assets.
class ReferencePath {
public:
    // `project` is the Maya project's root, empty when there is none.
    ReferencePath(std::string referencingFolder, std::string project);

    // True with `found` set when one of the places holds a file.
    bool resolve(const std::string& written, std::string* found);
    // The places looked at, in order, for messages.
    const std::vector<std::string>& tried() const { return places; }
    // An environment variable the path names that is not set, or empty.
    const std::string& unsetVariable() const { return unset; }

    // The folder of a file path ("." for a bare name).
    static std::string folderOf(const std::string& path);
    // The path with its links and dots resolved, to tell one file by two names; the path as
    // given when it cannot be resolved.
    static std::string realPathOf(const std::string& path);
    // The project a scene belongs to: the nearest folder above it holding workspace.mel, as
    // Maya marks a project; empty when there is none.
    static std::string projectOf(const std::string& sceneFolder);

private:
    std::string expanded(const std::string& written);
    void addPlaces(const std::string& path);
    bool firstExisting(std::string* found) const;

    std::string folder;
    std::string projectRoot;
    std::vector<std::string> places;
    std::string unset;
};

}  // namespace xrvell
