#include "SceneReader.h"

#include "FileReader.h"
#include "ReferencePath.h"

namespace xrvell {

SceneReader::SceneReader(Diagnostics& report, PluginRequest loader)
    : scene(report, std::move(loader)) {
    FileReader::refuseProductTypes(scene.types);
}

void SceneReader::setProject(const std::string& root) {
    scene.project = root;
    projectGiven = true;
}

bool SceneReader::read(std::string_view text) {
    const std::string file = scene.diagnostics.currentFile();
    if (!projectGiven) scene.project = ReferencePath::projectOf(ReferencePath::folderOf(file));
    scene.reading.assign(1, file);
    scene.readingIds.assign(1, ReferencePath::realPathOf(file));
    const bool read = FileReader(scene, file, "").read(text);
    scene.diagnostics.setFile(file);
    scene.diagnostics.flush();
    return read;
}

}  // namespace xrvell
