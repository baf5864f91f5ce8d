/// The page, carried in the program.
#pragma once

#include <span>
#include <string_view>

namespace workbench {

/// One file of the page.
struct PageFile {
    std::string_view name;
    std::string_view text;
};

/// All of them.
std::span<PageFile const> pageFiles();

}  // namespace workbench
