/// What somebody may have meant.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace workbench {

/// The words most like the given one, the likest first and equally like ones in
/// their own order; none that is unlike. Letters of either case are the same;
/// alike is what differs in few letters (swapped neighbours count once), or
/// begins with or contains the other. A word of more than 256 bytes is like no
/// other.
std::vector<std::string> nearest(std::string const& word, std::vector<std::string> const& words,
                                 std::size_t maxCount = 3);

/// The nearest words as the end of a message: "; did you mean 'a', 'b' or
/// 'c'?", or the given text if nothing is near.
std::string suggestion(std::string const& word, std::vector<std::string> const& words,
                       std::string const& defaultText = {});

}  // namespace workbench
