#include "OutputFile.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

namespace xrvell {

OutputFile::OutputFile(std::string target) : path(std::move(target)) {}

bool OutputFile::writeStandardOutput(const std::string& text, std::string* error) const {
    if (std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0)
        return true;
    *error = std::strerror(errno);
    return false;
}

bool OutputFile::write(const std::string& text, std::string* error) const {
    if (path == "-") return writeStandardOutput(text, error);
    const std::string temporary = path + ".tmp" + std::to_string(getpid());
    std::FILE* file = std::fopen(temporary.c_str(), "wb");
    if (!file) {
        *error = std::strerror(errno);
        return false;
    }
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    const int writeErrno = errno;
    const bool closed = std::fclose(file) == 0;
    if (written && closed && std::rename(temporary.c_str(), path.c_str()) == 0) return true;
    *error = std::strerror(written && closed ? errno : writeErrno);
    std::remove(temporary.c_str());
    return false;
}

}  // namespace xrvell
