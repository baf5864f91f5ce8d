/// The sources of the host's libraries mirror the headers of the contract.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

namespace tests {
namespace {

namespace fs = std::filesystem;

fs::path const Root(PRISM_SOURCES);

/// The names of the headers of the contract, whatever their folder.
std::set<std::string> contractHeaders() {
    std::set<std::string> names;
    for (auto const& entry : fs::recursive_directory_iterator(Root / "host"))
        if (entry.path().extension() == ".hpp")
            names.insert(entry.path().stem().string());
    return names;
}

TEST(RuntimeSources, AreNamedAfterAHeaderOfTheContractOrOneBesideThem) {
    std::set<std::string> const contract = contractHeaders();
    int sources = 0;
    for (auto const& entry : fs::recursive_directory_iterator(Root / "runtime")) {
        fs::path const& source = entry.path();
        if (source.extension() != ".cpp")
            continue;
        ++sources;
        bool const mirrors = contract.contains(source.stem().string());
        bool const own = fs::exists(fs::path(source).replace_extension(".hpp"));
        EXPECT_NE(mirrors, own) << source
                                << ": a source defines either what one header of host/ declares or "
                                   "what the header beside it declares";
    }
    EXPECT_GT(sources, 30);
}

}  // namespace
}  // namespace tests
