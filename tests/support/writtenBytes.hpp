/// What has left the process.
#pragma once

#include <cstddef>

namespace tests {

/// Bytes in the file that standard output leads to, such as the one of gtest's
/// capture. What the C library still keeps to itself is not among them.
std::size_t writtenBytes();

}  // namespace tests
