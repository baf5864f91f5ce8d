/// What each source says about the life of its map, against what its objects do.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/prism/MapDescription.hpp"
#include "tests/support/PluginTest.hpp"

namespace tests {
namespace {

namespace fs = std::filesystem;
using namespace Orlo;

struct Source {
    std::string name;
    std::string text;

    bool makes(MapDescription const& map) const {
        return text.find("NameIs(\"" + map.name + "\")") != std::string::npos ||
               text.find("creator(\"" + map.name + "\"") != std::string::npos;
    }

    /// What the head says with "Its map is ...", each time that it says so.
    std::vector<std::string> lives() const {
        std::string const beginning = "/// Its map is ";
        std::vector<std::string> found;
        for (std::size_t at = 0; (at = text.find(beginning, at)) != std::string::npos;) {
            at += beginning.size();
            EXPECT_LT(at, text.find("#include")) << name << " says it outside of its head";
            found.push_back(text.substr(at, text.find('\n', at) - at));
        }
        return found;
    }
};

std::string textOf(fs::path const& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

Source sourceIn(fs::path const& file) {
    return {file.filename().string(), textOf(file)};
}

/// The sources of maps, and the one that the documents show.
std::vector<Source> sources() {
    fs::path const root = PRISM_SOURCE_DIR;
    std::vector<Source> found{sourceIn(root / "docs/samples/Threshold.cpp")};
    for (auto const& entry : fs::directory_iterator(root / "prism/tinctures"))
        if (entry.path().extension() == ".cpp")
            found.push_back(sourceIn(entry.path()));
    return found;
}

Source sourceOf(MapDescription const& map) {
    for (Source const& source : sources())
        if (source.makes(map))
            return source;
    throw std::invalid_argument("no source makes " + map.key());
}

class Life : public PluginTest, public testing::WithParamInterface<MapDescription> {
protected:
    /// What becomes of a map when the parameters, if any, are set anew.
    static std::string lived() {
        ObjectPtr const object = create(GetParam().key());
        PoolPtr const pool = makePool();
        ColormapPtr const first = update(*object, pool);
        for (SlotPtr const& slot : inputs(*object))
            set(*object, slot->name(), slot->parameter()->DefaultValue()->text());
        forceUpdate(*object, pool);
        if (mapOf(*object, pool).get() != first.get())
            return "replaced.";
        return inputs(*object).empty() ? "made once." : "rewritten in place.";
    }
};

TEST_P(Life, OfTheMapIsWhatTheSourceSaysOnce) {
    EXPECT_THAT(sourceOf(GetParam()).lives(), testing::ElementsAre(lived()));
}

INSTANTIATE_TEST_SUITE_P(Maps, Life, testing::ValuesIn(describedMaps()),
                         [](auto const& map) { return testName(map.param.name); });

TEST(Sources, EachSayWhatBecomesOfTheirMap) {
    EXPECT_GT(sources().size(), 16U);
    for (Source const& source : sources())
        EXPECT_EQ(source.lives().size(), 1U) << source.name;
}

}  // namespace
}  // namespace tests
