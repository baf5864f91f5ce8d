/// Which layer includes which, read from the sources.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tests {
namespace {

namespace fs = std::filesystem;

/// What each layer may include beside itself.
std::map<std::string, std::set<std::string>> const Below{
    {"host/pointers", {}},
    {"host/colormap", {"host/pointers"}},
    {"host/values", {"host/pointers", "host/colormap"}},
    {"host/object", {"host/pointers", "host/colormap", "host/values"}},
    {"host/creators", {"host/pointers", "host/colormap", "host/values", "host/object"}},
    {"prism", {"host/pointers", "host/colormap", "host/values", "host/object", "host/creators"}},
    {"entry", {"host/pointers", "host/creators"}},
    {"runtime", {"host/pointers", "host/colormap", "host/values", "host/object", "host/creators"}},
    {"workbench",
     {"host/pointers", "host/colormap", "host/values", "host/object", "host/creators", "runtime"}},
};

/// The layer that a path of the tree belongs to; empty for none of them.
std::string layerOf(std::string const& path) {
    for (auto const& [layer, below] : Below)
        if (path.starts_with(layer + "/"))
            return layer;
    return {};
}

/// The paths in quotes that a source includes.
std::vector<std::string> includesOf(fs::path const& file) {
    std::vector<std::string> found;
    std::ifstream source(file);
    for (std::string line; std::getline(source, line);)
        if (std::size_t const start = line.find("#include \""); start == 0)
            found.push_back(line.substr(10, line.find('"', 10) - 10));
    return found;
}

class Layer : public testing::TestWithParam<std::string> {};

TEST_P(Layer, IncludesOnlyItselfAndWhatLiesBelow) {
    std::string const& layer = GetParam();
    fs::path const root(PRISM_SOURCES);
    int sources = 0;
    for (fs::directory_entry const& entry : fs::recursive_directory_iterator(root / layer)) {
        std::string const ending = entry.path().extension().string();
        if (ending != ".cpp" && ending != ".hpp")
            continue;
        ++sources;
        for (std::string const& include : includesOf(entry.path())) {
            std::string const target = layerOf(include);
            EXPECT_FALSE(target.empty())
                << entry.path() << " includes " << include << ", which no layer has";
            EXPECT_TRUE(target == layer || Below.at(layer).contains(target))
                << entry.path() << " includes " << include;
        }
    }
    EXPECT_GT(sources, 0);
}

std::vector<std::string> layers() {
    std::vector<std::string> names;
    for (auto const& [layer, below] : Below)
        names.push_back(layer);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Sources, Layer, testing::ValuesIn(layers()), [](auto const& each) {
    std::string name = each.param;
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
});

}  // namespace
}  // namespace tests
