/// The built file: what it exports, what it imports, what it holds.
#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>

#include "tests/support/LibraryFile.hpp"
#include "workbench/session/PluginFile.hpp"

namespace tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

class PluginLibrary : public testing::Test {
protected:
    LibraryFile const library_{workbench::pluginBesideProgram()};

    std::vector<std::string> imports() const {
        auto names = library_.libraries;
        for (std::string& name : names)
            std::ranges::transform(name, name.begin(),
                                   [](unsigned char c) { return std::tolower(c); });
        return names;
    }
    /// The sections that hold constants and data.
    std::string data() const {
        std::string all;
        for (auto const& [name, content] : library_.sections)
            if (name == ".rodata" || name == ".rdata" || name.starts_with(".data"))
                all += content + '\0';
        return all;
    }
};

TEST_F(PluginLibrary, HasItsName) {
    EXPECT_EQ(workbench::pluginBesideProgram().filename(), "prism_tinctures.telm");
}

TEST_F(PluginLibrary, ExportsOneNameAndNothingByNumberAlone) {
    EXPECT_THAT(library_.exports, ElementsAre("TELM_API_2024_MAR_06__prism_tinctures"));
    EXPECT_EQ(library_.exportedFunctions, 1u);
}

#if defined(_WIN32)
TEST_F(PluginLibrary, ImportsTheFourHostLibrariesAndTheRuntimeOnly) {
    EXPECT_THAT(imports(), IsSupersetOf({"lattice.dll", "quartz.dll", "vellum.dll", "nucleo.dll"}));
    std::vector<std::string> const allowed{
        "lattice.dll",         "quartz.dll",      "vellum.dll",
        "nucleo.dll",          "libstdc++-6.dll", "libgcc_s_seh-1.dll",
        "libwinpthread-1.dll", "kernel32.dll",    "msvcrt.dll"};
    for (std::string const& name : imports())
        EXPECT_THAT(allowed, testing::Contains(name));
}
#else
TEST_F(PluginLibrary, ImportsTheFourHostLibrariesAndTheRuntimeOnly) {
    EXPECT_THAT(imports(),
                IsSupersetOf({"liblattice.so", "libquartz.so", "libvellum.so", "libnucleo.so"}));
    for (std::string const& name : imports())
        EXPECT_THAT(name,
                    testing::MatchesRegex("lib(lattice|quartz|vellum|nucleo)\\.so|"
                                          "lib(stdc\\+\\+|gcc_s|c|m|asan|ubsan|tsan)\\.so\\.[0-9]+|"
                                          "ld-linux-.*"));
}

TEST_F(PluginLibrary, LooksForLibrariesBesideItselfOnly) {
    EXPECT_THAT(library_.runPaths, ElementsAre("$ORIGIN"));
}

TEST_F(PluginLibrary, HasNoUniqueSymbolThatWouldKeepItLoaded) {
    EXPECT_THAT(library_.uniqueSymbols, IsEmpty());
}
#endif

TEST_F(PluginLibrary, HoldsTheModulesNameAndTheTokenButNoTextWithTheInterfaceDate) {
    std::string const all = data();
    EXPECT_NE(all.find(std::string("prism_tinctures\0", 16)), std::string::npos);
    EXPECT_NE(all.find(std::string("TELM_API_VERSION\0", 17)), std::string::npos);
    EXPECT_EQ(all.find("2024_MAR_06"), std::string::npos);
}

TEST_F(PluginLibrary, HoldsTheTokenOnce) {
    std::string const all = data(), token = "TELM_API_VERSION";
    std::size_t count = 0;
    for (std::size_t at = all.find(token); at != std::string::npos; at = all.find(token, at + 1))
        ++count;
    EXPECT_EQ(count, 1u);
}

TEST(LibraryReader, RefusesAFileThatIsNoLibrary) {
    EXPECT_THROW(LibraryFile("no such file"), std::runtime_error);
}

}  // namespace
}  // namespace tests
