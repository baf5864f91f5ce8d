/// The order of virtual operations, as the table of virtual functions has it.
#pragma once

#include <cstdint>
#include <cstring>

namespace tests {

/// The place of a virtual operation in the table of its class, from 1 on as the
/// contract counts. A class with a virtual destructor has two places for it.
///
/// In the C++ binary interface of gcc and clang, on Linux and on Windows alike,
/// a pointer to a virtual member function holds 1 plus the offset of the
/// operation's entry in the table.
template <class Class, class Function>
std::size_t virtualSlot(Function Class::*operation) {
    std::uintptr_t words[2];
    static_assert(sizeof words == sizeof operation);
    std::memcpy(words, &operation, sizeof words);
    return (words[0] & 1) != 0 ? (words[0] - 1) / sizeof(void*) + 1 : 0;  // 0: not virtual
}

}  // namespace tests
