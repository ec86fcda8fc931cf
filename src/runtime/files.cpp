// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/files.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace runtime {

std::string readWhole(const std::string& path, std::size_t limit, std::string& text) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return std::strerror(errno);
    text.clear();
    char buffer[1 << 16];
    ssize_t got = 0;
    while ((got = ::read(fd, buffer, sizeof buffer)) > 0 && text.size() <= limit)
        text.append(buffer, static_cast<std::size_t>(got));
    const int error = got < 0 ? errno : 0;
    ::close(fd);
    if (error != 0) return std::strerror(error);
    if (text.size() > limit) return "larger than " + std::to_string(limit >> 20) + " MB";
    return {};
}

namespace {

// Every byte of the text to the file; the reason where one can't be written, or 0.
int writeAll(int fd, std::string_view text) {
    for (std::size_t written = 0; written < text.size();) {
        const ssize_t n = ::write(fd, text.data() + written, text.size() - written);
        if (n < 0 && errno != EINTR) return errno;
        if (n > 0) written += static_cast<std::size_t>(n);
    }
    return 0;
}

} // namespace

std::string saveWhole(const std::string& path, std::string_view text) {
    // A device or a pipe can't be renamed over, and must not be: it is written to.
    struct stat target {};
    if (::stat(path.c_str(), &target) == 0 && !S_ISREG(target.st_mode) && !S_ISDIR(target.st_mode)) {
        const int fd = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
        if (fd < 0) return std::strerror(errno);
        int error = writeAll(fd, text);
        if (::close(fd) != 0 && error == 0) error = errno;
        return error != 0 ? std::strerror(error) : std::string();
    }
    std::string temporary = path + ".XXXXXX";
    const int fd = ::mkstemp(temporary.data());
    if (fd < 0) return std::strerror(errno);
    int error = writeAll(fd, text);
    // The old file's permissions, or those of a new file the user made; not only its owner's, as
    // a temporary file has.
    const mode_t mask = ::umask(0);
    ::umask(mask);
    const bool replaces = ::stat(path.c_str(), &target) == 0;
    const auto mode = static_cast<mode_t>(replaces ? target.st_mode & 07777 : 0666 & ~mask);
    if (error == 0 && ::fchmod(fd, mode) != 0) error = errno;
    if (error == 0 && ::fsync(fd) != 0) error = errno;
    if (::close(fd) != 0 && error == 0) error = errno;
    if (error == 0 && std::rename(temporary.c_str(), path.c_str()) != 0) error = errno;
    if (error != 0) ::unlink(temporary.c_str());
    return error != 0 ? std::strerror(error) : std::string();
}

} // namespace runtime
