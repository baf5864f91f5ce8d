/// The gallery as files.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "workbench/gallery/Exhibit.hpp"

namespace workbench {

/// Makes the folder, and writes the pictures into it, and the page last, so that
/// it never shows what is not there yet. Gives the files written. `maker` is
/// what made them; `progress` hears how much is done, from 0 to 1. Throws
/// `WorkError` that names the file and the reason.
std::vector<std::filesystem::path> writeGallery(std::vector<Exhibit> const& exhibits,
                                                std::filesystem::path const& folder,
                                                std::string const& maker,
                                                std::function<void(double)> const& progress);

}  // namespace workbench
