/// Signed counts as sizes.
#pragma once

#include <cstddef>
#include <stdexcept>

namespace prism {

/// The count as the size of a vector. A negative one is refused in the words
/// with which the C++ library refuses a vector of too many elements.
inline std::size_t vectorSize(int count) {
    if (count < 0)
        throw std::length_error("cannot create std::vector larger than max_size()");
    return static_cast<std::size_t>(count);
}

}  // namespace prism
