/// Which room of the workbench includes which, read from the sources.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace tests {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;

using Names = std::set<std::string>;

/// The rooms from the ground to the top. Each includes itself and rooms of lower
/// floors.
std::vector<Names> const Floors{{"common"},
                                {"platform", "picture"},
                                {"data", "session", "scene"},
                                {"nodes"},
                                {"network", "gallery", "export", "validate"},
                                {"serve"},
                                {"cli"}};

/// Knows nothing of a host.
Names const WithoutContract{"common", "platform"};
/// Knows colours and maps, and no more of the contract.
Names const WithMapsAlone{"picture", "scene", "data"};

/// The floor of a room; -1 for what is no room.
int floorOf(std::string const& room) {
    for (std::size_t i = 0; i < Floors.size(); ++i)
        if (Floors[i].contains(room))
            return static_cast<int>(i);
    return -1;
}

/// The folder behind `workbench/`.
std::string roomOf(std::string const& path) {
    std::size_t const start = std::string("workbench/").size();
    return path.substr(start, path.find('/', start) - start);
}

/// The paths that a source includes, with their quotes or angles.
std::vector<std::string> includesOf(std::string const& source) {
    std::vector<std::string> found;
    std::istringstream lines(source);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string hash;
        words >> hash;
        if (hash == "#")
            words >> hash, hash.insert(0, "#");
        std::string path;
        if (hash == "#include" && words >> path)
            found.push_back(path);
    }
    return found;
}

bool mayInclude(std::string const& room, std::string const& path) {
    if (path.starts_with("workbench/"))
        return roomOf(path) == room ||
               (floorOf(roomOf(path)) >= 0 && floorOf(roomOf(path)) < floorOf(room));
    if (path.starts_with("host/colormap/") || path.starts_with("host/pointers/"))
        return !WithoutContract.contains(room);
    if (path.starts_with("host/") || path.starts_with("runtime/"))
        return !WithoutContract.contains(room) && !WithMapsAlone.contains(room);
    return false;
}

/// What only one room includes.
struct Reserved {
    char const* start;
    char const* room;
};
constexpr Reserved ReservedHeaders[] = {
    {"<CLI/", "cli"},       {"<windows.h>", "platform"}, {"<dlfcn.h>", "platform"},
    {"<io.h>", "platform"}, {"<unistd.h>", "platform"},  {"<fcntl.h>", "platform"},
    {"<sys/", "platform"},  {"<gdal", "data"},           {"<cpl_", "data"},
    {"<boost/", "serve"},
};

/// What a source of the workbench has against the order.
std::vector<std::string> complaintsOf(std::string const& file, std::string const& source) {
    std::vector<std::string> complaints;
    std::string const room = roomOf(file);
    if (floorOf(room) < 0)
        complaints.push_back(file + " stands in a room that nobody knows");
    if (source.find("_WIN32") != std::string::npos && room != "platform")
        complaints.push_back(file + " asks for the system, which is the platform's work");
    for (std::string const& include : includesOf(source)) {
        std::string const path = include.substr(1, include.size() - 2);
        if (include.starts_with('"') && !mayInclude(room, path))
            complaints.push_back(file + " includes " + path);
        for (Reserved const& each : ReservedHeaders)
            if (include.starts_with(each.start) && room != each.room)
                complaints.push_back(file + " includes " + include);
    }
    return complaints;
}

TEST(Rooms, IncludeOnlyThemselvesAndWhatLiesBelow) {
    fs::path const root(PRISM_SOURCES);
    Names rooms;
    for (fs::directory_entry const& entry : fs::recursive_directory_iterator(root / "workbench")) {
        std::string const ending = entry.path().extension().string();
        if (ending != ".cpp" && ending != ".hpp")
            continue;
        std::ifstream stream(entry.path());
        std::string const source{std::istreambuf_iterator<char>(stream), {}};
        std::string const file = entry.path().lexically_relative(root).generic_string();
        EXPECT_THAT(complaintsOf(file, source), IsEmpty());
        rooms.insert(roomOf(file));
    }
    EXPECT_GE(rooms.size(), 10U);
}

TEST(Rooms, AnIncludeAgainstTheOrderIsComplainedOf) {
    struct {
        char const* file;
        char const* line;
        bool isRight;
    } const table[] = {
        {"workbench/nodes/Camera.cpp", "#include \"workbench/scene/View.hpp\"", true},
        {"workbench/scene/View.cpp", "#include \"workbench/nodes/Node.hpp\"", false},
        {"workbench/scene/View.cpp", "#  include \"workbench/nodes/Node.hpp\"", false},
        {"workbench/gallery/page.cpp", "#include \"workbench/network/Network.hpp\"", false},
        {"workbench/scene/View.cpp", "#include \"workbench/session/Session.hpp\"", false},
        {"workbench/cli/run.cpp", "#include \"workbench/network/Network.hpp\"", true},
        {"workbench/network/Network.cpp", "#include \"workbench/cli/table.hpp\"", false},
        {"workbench/common/files.cpp", "#include \"host/pointers/StrongPtr.hpp\"", false},
        {"workbench/scene/Slice.hpp", "#include \"host/colormap/Colormap.hpp\"", true},
        {"workbench/scene/Slice.hpp", "#include \"host/values/Range.hpp\"", false},
        {"workbench/session/Session.hpp", "#include \"runtime/lattice/Catalogue.hpp\"", true},
        {"workbench/data/paint.cpp", "#include \"runtime/lattice/Catalogue.hpp\"", false},
        {"workbench/cli/main.cpp", "#include \"prism/tinctures/Ramp.hpp\"", false},
        {"workbench/cli/main.cpp", "#include \"table.hpp\"", false},
        {"workbench/attic/old.cpp", "", false},
        {"workbench/cli/main.cpp", "#include \"workbench/attic/old.hpp\"", false},
        {"workbench/cli/main.cpp", "#include <CLI/CLI.hpp>", true},
        {"workbench/session/Session.hpp", "#include <CLI/CLI.hpp>", false},
        {"workbench/platform/Library.cpp", "#if defined(_WIN32)", true},
        {"workbench/common/files.cpp", "#if defined(_WIN32)", false},
        {"workbench/data/DataGrid.cpp", "#include <dlfcn.h>", false},
    };
    for (auto const& each : table)
        EXPECT_EQ(complaintsOf(each.file, each.line).empty(), each.isRight)
            << each.file << ": " << each.line;
}

}  // namespace
}  // namespace tests
