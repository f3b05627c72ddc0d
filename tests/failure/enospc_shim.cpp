// Loaded with LD_PRELOAD, makes every write to a regular file fail as on a
// full disk (ENOSPC); writes to pipes and terminals go through, so the
// process can still report. Covers what the C++ streams use: write and writev.
#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>

namespace {
bool toRegularFile(int fd) {
    struct stat status {};
    return fstat(fd, &status) == 0 && S_ISREG(status.st_mode);
}

template <typename Function> Function next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}
} // namespace

extern "C" ssize_t write(int fd, const void* buffer, size_t count) {
    if (toRegularFile(fd)) {
        errno = ENOSPC;
        return -1;
    }
    static const auto real = next<ssize_t (*)(int, const void*, size_t)>("write");
    return real(fd, buffer, count);
}

extern "C" ssize_t writev(int fd, const iovec* vectors, int count) {
    if (toRegularFile(fd)) {
        errno = ENOSPC;
        return -1;
    }
    static const auto real = next<ssize_t (*)(int, const iovec*, int)>("writev");
    return real(fd, vectors, count);
}
