#include "OutputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

namespace xrvell {
namespace {

// As many links as the kernel follows before it gives up with ELOOP.
const int kMaxLinks = 40;

bool failWith(int number, std::string* error) {
    *error = std::strerror(number);
    return false;
}

std::string directoryOf(const std::string& path) {
    const size_t slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string baseNameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

// The file a chain of symbolic links ends at, which need not exist yet.
bool followLinks(std::string path, std::string* target, std::string* error) {
    for (int links = 0;; ++links) {
        struct stat status;
        if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) {
            *target = path;
            return true;
        }
        if (links == kMaxLinks) return failWith(ELOOP, error);
        std::vector<char> text(static_cast<size_t>(status.st_size) + 256);
        const ssize_t length = readlink(path.c_str(), text.data(), text.size());
        if (length < 0) return failWith(errno, error);
        if (static_cast<size_t>(length) == text.size()) return failWith(ENAMETOOLONG, error);
        const std::string link(text.data(), static_cast<size_t>(length));
        path = link[0] == '/' ? link : directoryOf(path) + "/" + link;
    }
}

// The permissions a new file gets from open(..., 0666).
unsigned int newFileMode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666u & ~static_cast<unsigned int>(mask);
}

}  // namespace

OutputFile::OutputFile(std::string output) : path(std::move(output)) {}

OutputFile::~OutputFile() { abandon(); }

bool OutputFile::open(std::string* error) {
    if (path == "-") {
        fd = STDOUT_FILENO;
        inPlace = true;
        return true;
    }
    struct stat status;
    if (stat(path.c_str(), &status) != 0) {
        if (errno != ENOENT) return failWith(errno, error);
        // A new file, or one a dangling symbolic link names.
        return followLinks(path, &target, error) && openTemporary(target, newFileMode(), error);
    }
    if (S_ISDIR(status.st_mode)) return failWith(EISDIR, error);
    // Replacing a device or a FIFO with a regular file would break whatever else uses it.
    if (!S_ISREG(status.st_mode)) return openInPlace(path, error);
    char* real = realpath(path.c_str(), nullptr);
    if (!real) return failWith(errno, error);
    target = real;
    std::free(real);
    return openTemporary(target, status.st_mode & 07777, error);
}

bool OutputFile::openInPlace(const std::string& file, std::string* error) {
    fd = ::open(file.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) return failWith(errno, error);
    inPlace = true;
    return true;
}

bool OutputFile::openTemporary(const std::string& file, unsigned int mode, std::string* error) {
    std::string name = directoryOf(file) + "/." + baseNameOf(file) + ".XXXXXX";
    fd = mkostemp(&name[0], O_CLOEXEC);
    if (fd < 0) return failWith(errno, error);
    temporary = name;
    // mkostemp makes the file private; the result gets the target's or a new file's permissions.
    if (fchmod(fd, static_cast<mode_t>(mode)) != 0) {
        const int reason = errno;
        abandon();
        return failWith(reason, error);
    }
    return true;
}

bool OutputFile::write(std::string_view text, std::string* error) {
    while (!text.empty()) {
        const ssize_t written = ::write(fd, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        closedByReader = written < 0 && errno == EPIPE;
        if (written <= 0) return failWith(written < 0 ? errno : EIO, error);
        text.remove_prefix(static_cast<size_t>(written));
    }
    return true;
}

bool OutputFile::closeFile(std::string* error) {
    if (fd < 0 || fd == STDOUT_FILENO) {
        fd = -1;
        return true;
    }
    const int closing = fd;
    fd = -1;
    return ::close(closing) == 0 || failWith(errno, error);
}

bool OutputFile::commit(std::string* error) {
    if (!closeFile(error)) return false;
    if (!temporary.empty() && std::rename(temporary.c_str(), target.c_str()) != 0)
        return failWith(errno, error);
    committed = true;
    return true;
}

void OutputFile::abandon() {
    std::string ignored;
    closeFile(&ignored);
    if (!temporary.empty() && !committed) unlink(temporary.c_str());
    temporary.clear();
}

}  // namespace xrvell
