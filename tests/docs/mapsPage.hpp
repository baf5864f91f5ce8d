/// The page of all maps, docs/maps.md, and its pictures.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace tests {

/// Files by their names below docs/, with their bytes: the page, a ramp for each
/// entry in `maps/`, and a sheet of all ramps. All of it is what telmbench says
/// and draws, but for the words at the head of each source.
std::map<std::string, std::string> mapsPage(std::filesystem::path const& sources);

}  // namespace tests
