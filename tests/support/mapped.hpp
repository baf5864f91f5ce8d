/// Whether a library is in the process, and what the process holds.
#pragma once

#include <cstddef>
#include <string>

namespace tests {

/// Whether a library of that file name is mapped into this process.
bool isMapped(std::string const& fileName);

/// Bytes that the process has allocated and not freed.
std::size_t heapBytes();

/// The thread-local index that the system would give next; always 0 where the
/// system does not number them.
unsigned nextThreadIndex();

}  // namespace tests
