/// What the running process holds.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace workbench {

/// Whether a library of that file name is mapped into this process.
bool isMapped(std::string const& fileName);

/// Bytes that the process has allocated and not freed.
std::size_t heapBytes();

/// The thread-local index that the system would give next; always 0 where the
/// system does not number them.
unsigned nextThreadIndex();

/// How many threads run.
std::size_t threadCount();

/// Files and other things of the system that stand open.
std::size_t openHandles();

/// The environment, in alphabetical order: `NAME=VALUE`.
std::vector<std::string> environment();

/// Bytes in the file that standard output leads to. What the C library still keeps
/// to itself is not among them; 0 where standard output is no file.
std::size_t writtenBytes();

/// Whether loading a library takes this system a multiple of what it takes others.
bool loaderIsSlow();

/// Ends the process when the one that has started it ends, where the system can.
void endWithParent();

}  // namespace workbench
