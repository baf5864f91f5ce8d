#include "tests/support/writtenBytes.hpp"

#include <sys/stat.h>
#include <sys/types.h>

#include <cstdio>

namespace tests {

std::size_t writtenBytes() {
#if defined(_WIN32)
    struct _stat64 file {};
    return _fstat64(_fileno(stdout), &file) == 0 ? static_cast<std::size_t>(file.st_size) : 0;
#else
    struct stat file {};
    return fstat(fileno(stdout), &file) == 0 ? static_cast<std::size_t>(file.st_size) : 0;
#endif
}

}  // namespace tests
