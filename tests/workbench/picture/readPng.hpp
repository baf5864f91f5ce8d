/// PNG files read by another library than the one that writes them.
#pragma once

#include <optional>
#include <string>

#include "workbench/picture/Image.hpp"

namespace tests {

/// The picture that the bytes of a PNG file show; empty if they show none.
std::optional<workbench::Image> readPng(std::string const& bytes);

}  // namespace tests
