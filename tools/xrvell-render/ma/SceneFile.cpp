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

// UTF-16 with or without its byte order mark: Maya ASCII starts with text, so a NUL byte
// beside each of its first characters gives it away.
bool isUtf16(std::string_view text) {
    const std::string_view mark = text.substr(0, 2);
    if (mark == "\xFF\xFE" || mark == "\xFE\xFF") return true;
    if (text.size() < 4) return false;
    const bool littleEndian = text[0] && !text[1] && text[2] && !text[3];
    const bool bigEndian = !text[0] && text[1] && !text[2] && text[3];
    return littleEndian || bigEndian;
}

// What a file is and what to do about it, when its first bytes are not text.
const char* otherFormat(std::string_view text) {
    const std::string_view start = text.substr(0, 4);
    if (start == "FOR4" || start == "FOR8")  // the IFF chunk a binary Maya file opens with
        return "is a binary Maya file: only Maya ASCII is read (save the scene as Maya ASCII, .ma)";
    if (start.substr(0, 2) == "\x1F\x8B")
        return "is a gzip-compressed file: only Maya ASCII is read (uncompress it first)";
    if (isUtf16(text))
        return "is UTF-16 text: only Maya ASCII is read, which is 8-bit text (save it as UTF-8)";
    return nullptr;
}

}  // namespace

std::string SceneFile::notMayaAscii(const std::string& path, std::string_view text) {
    const char* what = otherFormat(text);
    return what ? "\"" + path + "\" " + what : "";
}

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
