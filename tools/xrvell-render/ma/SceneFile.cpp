#include "SceneFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace xrvell {
namespace {

int readAll(int fd, std::string* text) {
    char buffer[1 << 16];
    for (;;) {
        const ssize_t got = ::read(fd, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return got < 0 ? errno : 0;
        text->append(buffer, static_cast<size_t>(got));
    }
}

}  // namespace

bool SceneFile::read(const std::string& path, std::string* problem) {
    const std::string what = "cannot read \"" + path + "\": ";
    text.clear();
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        *problem = what + std::strerror(errno);
        return false;
    }
    struct stat status;
    int error = fstat(fd, &status) != 0 ? errno : 0;
    if (!error && S_ISDIR(status.st_mode)) error = EISDIR;
    if (!error && !S_ISREG(status.st_mode)) {
        close(fd);
        *problem = what + "not a regular file";
        return false;
    }
    if (!error) {
        device = status.st_dev;
        inode = status.st_ino;
        text.reserve(static_cast<size_t>(status.st_size));
        error = readAll(fd, &text);
    }
    close(fd);
    if (error) *problem = what + std::strerror(error);
    return !error;
}

}  // namespace xrvell
