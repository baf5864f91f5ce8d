/// The built file: what it exports, what it imports, what it holds.
#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <regex>

#include "workbench/platform/LibraryTables.hpp"
#include "workbench/session/PluginFile.hpp"

namespace tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

class PluginLibrary : public testing::Test {
protected:
    workbench::LibraryTables const library_{workbench::pluginBesideProgram()};

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

/// What a name that the library imports is for, and the names.
struct Need {
    char const* what;
    char const* names;
};

std::vector<Need> const Needs {
    {"the host", "_Z(T[ISTV]|T[hv][n0-9_]+_)?NK?(4Orlo|6Nucleo).*"},
        {"memory", "_Z(nw|na|dl|da).*|mem(cpy|move|set|cmp)|bcmp|strlen"},
        {"mathematics", "atan|cbrt|exp|fmod|pow|sqrt|floorf?|trunc|fma"},
        {"the one line on standard output, and the warnings",
         "printf|puts|putchar|fflush|fwrite|stdout"},
        {"exceptions and casts",
         "_Unwind_Resume|__gxx_personality_.*|__dynamic_cast|"
         "_ZTISt9bad_alloc|__cxa_(allocate_exception|free_exception|throw|rethrow|begin_catch|end_"
         "catch|bad_cast)|_"
         "ZSt9terminatev|"
         "_ZSt[0-9]+__throw_.*|_ZN?S?t?(TI)?[0-9]*.*length_error.*"},
        {"types", "_ZT[IV](N10__cxxabiv1.*|[a-z]|PK[a-z])|__cxa_pure_virtual"},
        {"containers and texts",
         "_ZSt[0-9]+_Rb_tree_.*|_ZNK?St7__cxx1112basic_stringI.*|_ZNSaIcE.*|_ZSt.*__glibcxx_assert_"
         "fail.*"},
        {"static objects", "__cxa_(atexit|finalize|guard_(acquire|release|abort))"},
#if defined(_WIN32)
        {"the C runtime that the compiler puts in front of the library, with its printf",
         "(Delete|Enter|Initialize|Leave)CriticalSection|GetLastError|IsDBCSLeadByteEx|"
         "MultiByteToWideChar|WideCharToMultiByte|Sleep|TlsGetValue|Virtual(Protect|Query)|"
         "___lc_codepage_func|___mb_cur_max_func|__iob_func|__setusermatherr|_amsg_exit|_errno|"
         "_initterm|_lock|_unlock|abort|calloc|malloc|realloc|free|fputc|localeconv|strerror|"
         "strncmp|"
         "vfprintf|wcslen|pthread_mutex_init"},
#else
        {"the loader", "_ITM_.*|__gmon_start__"}, {"hardening", "__stack_chk_fail|__[a-z]+_chk"},
        {"sanitizers", "__(asan|ubsan|tsan|lsan|sanitizer|sancov)_.*"},
#endif
};

/// No file, no environment, no thread, no clock, no log of its own: whatever the
/// library asks of others is named here.
TEST_F(PluginLibrary, AsksOthersForNothingButThis) {
    ASSERT_FALSE(library_.imports.empty());
    for (std::string const& name : library_.imports)
        EXPECT_TRUE(std::ranges::any_of(Needs, [&](Need const& need) {
            return std::regex_match(name, std::regex(need.names));
        })) << name;
}

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

#if defined(NDEBUG) && !defined(__clang__) && !defined(_WIN32)
/// As it is delivered.
TEST_F(PluginLibrary, IsSmallWithoutSymbolsForADebuggerAndWithItsRelocationsPacked) {
    std::vector<std::string> names;
    for (auto const& section : library_.sections)
        names.push_back(section.first);
    EXPECT_THAT(names, testing::Contains(".relr.dyn"));
    EXPECT_THAT(names, testing::Not(testing::Contains(".symtab")));
    EXPECT_LT(std::filesystem::file_size(workbench::pluginBesideProgram()), 640'000U);
}
#endif

/// All that is delivered, where it is built.
std::vector<std::string> const Delivered {
#if defined(_WIN32)
    "telmbench.exe", "nucleo.dll", "lattice.dll", "quartz.dll", "vellum.dll",
#else
    "telmbench", "libnucleo.so", "liblattice.so", "libquartz.so", "libvellum.so",
#endif
        "prism_tinctures.telm"
};

class Hardening : public testing::TestWithParam<std::string> {
protected:
    workbench::LibraryTables const file_{
        workbench::pluginBesideProgram().replace_filename(GetParam())};
};

#if defined(_WIN32)
TEST_P(Hardening, LetsWindowsPlaceItAnywhereAndRunsNoData) {
    EXPECT_THAT(file_.protections,
                ElementsAre("any address", "data without code", "large addresses"));
}
#elif defined(NDEBUG)
TEST_P(Hardening, IsPlacedAnywhereBoundAtOnceWithReadOnlyTablesAndAStackWithoutCode) {
    EXPECT_THAT(file_.protections, ElementsAre("any address", "bound at once", "stack without code",
                                               "tables read-only"));
}

TEST_P(Hardening, WatchesItsStack) {
    EXPECT_THAT(file_.imports, testing::Contains("__stack_chk_fail"));
}
#endif

#if defined(_WIN32) || defined(NDEBUG)
INSTANTIATE_TEST_SUITE_P(Delivered, Hardening, testing::ValuesIn(Delivered), [](auto const& each) {
    std::string name = each.param;
    std::erase_if(name, [](unsigned char c) { return std::isalnum(c) == 0; });
    return name;
});
#else
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Hardening);
#endif

TEST(LibraryReader, RefusesAFileThatIsNoLibrary) {
    EXPECT_THROW(workbench::LibraryTables("no such file"), std::runtime_error);
}

}  // namespace
}  // namespace tests
