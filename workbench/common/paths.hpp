/// File names as texts, the same on every system.
#pragma once

#include <filesystem>
#include <string>

namespace workbench {

/// The file that a text in UTF-8 names. The conversion that `path` has by itself
/// takes such a text for another code on Windows.
inline std::filesystem::path pathOf(std::string const& text) {
    return std::u8string(text.begin(), text.end());
}

/// The name of a file in UTF-8.
inline std::string textOf(std::filesystem::path const& file) {
    std::u8string const text = file.u8string();
    return {text.begin(), text.end()};
}

}  // namespace workbench
