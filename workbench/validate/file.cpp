/// The file: what it exports and needs, loading and unloading.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <regex>

#include "runtime/lattice/PluginReports.hpp"
#include "runtime/lattice/TypeRegistry.hpp"
#include "workbench/common/TemporaryFolder.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/Library.hpp"
#include "workbench/platform/LibraryTables.hpp"
#include "workbench/platform/Watch.hpp"
#include "workbench/platform/libraryFile.hpp"
#include "workbench/platform/ownProcess.hpp"
#include "workbench/validate/Host.hpp"

namespace workbench::validate {

namespace {

using namespace Orlo;

constexpr char ExportStart[] = "TELM_API_";

std::string joined(std::vector<std::string> const& names) {
    std::string text;
    for (std::string const& name : names)
        text += (text.empty() ? "" : ", ") + inQuotes(name);
    return text;
}

/// "1 entry", "2 entries".
std::string counted(std::size_t count, std::string what) {
    if (count != 1 && what.ends_with('y'))
        what.replace(what.size() - 1, 1, "ies");
    else if (count != 1)
        what += what.ends_with("ch") ? "es" : "s";
    return std::to_string(count) + " " + what;
}

// --- What is read from the file

void library(Trial& trial) {
    std::string const problem = libraryProblem(trial.plugin);
    require(problem.empty(), problem);
    LibraryTables const tables(trial.plugin);
    require(!tables.libraries.empty(), "the file names no library that it needs");
}

std::vector<std::string> questionsIn(LibraryTables const& tables) {
    std::vector<std::string> found;
    for (std::string const& name : tables.exports)
        if (name.starts_with(ExportStart))
            found.push_back(name);
    return found;
}

void exportOfAPlugin(Trial& trial) {
    LibraryTables const tables(trial.plugin);
    std::vector<std::string> const found = questionsIn(tables);
    require(!found.empty(),
            "the file exports " + (tables.exports.empty() ? "nothing" : joined(tables.exports)));
    std::smatch parts;
    std::string const& name = found.front();
    static std::regex const form("TELM_API_([0-9]{4}_[A-Z]{3}_[0-9]{2})__([A-Za-z0-9_]+)");
    require(std::regex_match(name, parts, form), "the export is called " + inQuotes(name));
    require(parts[1] == "2024_MAR_06",
            "it was built against the interface of " + inQuotes(parts[1].str()));
}

void oneExport(Trial& trial) {
    LibraryTables const tables(trial.plugin);
    require(tables.exports.size() <= 1,
            counted(tables.exports.size(), "export") + ": " + joined(tables.exports));
    require(tables.exportedFunctions <= 1,
            counted(tables.exportedFunctions, "export") + ", some by number alone");
}

/// Whether a library's file is one of those that every host has.
bool isWithEveryHost(std::string name) {
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::tolower(c); });
    static std::regex const known(
        "(lib)?(lattice|quartz|vellum|nucleo)\\.(dll|so(\\..*)?)|"
        "lib(stdc\\+\\+|gcc_s|c|m|dl|rt|pthread|asan|ubsan|tsan)\\.so.*|ld-linux.*|"
        "libstdc\\+\\+-6\\.dll|libgcc_s_.*\\.dll|libwinpthread-1\\.dll|"
        "kernel32\\.dll|msvcrt\\.dll|ucrtbase\\.dll|api-ms-win-.*\\.dll");
    return std::regex_match(name, known);
}

void imports(Trial& trial) {
    LibraryTables const tables(trial.plugin);
    auto const needs = [&](std::string const& part) {
        return std::ranges::any_of(tables.libraries, [&](std::string const& name) {
            return name.find(part) != std::string::npos;
        });
    };
    require(needs("lattice"),
            "it needs none of the host's libraries but " + joined(tables.libraries));
    require(needs("stdc++"), "it brings a C++ runtime of its own: it does not need the shared one");
    std::vector<std::string> strange;
    for (std::string const& name : tables.libraries)
        if (!isWithEveryHost(name))
            strange.push_back(name);
    if (!strange.empty())
        warn("it needs " + joined(strange) + ", which a host may not have");
}

void runPaths(Trial& trial) {
    for (std::string const& path : LibraryTables(trial.plugin).runPaths)
        if (!path.starts_with("$ORIGIN"))
            warn("it looks for libraries in " + inQuotes(path) + ", a place of one machine");
}

void uniqueSymbols(Trial& trial) {
    LibraryTables const tables(trial.plugin);
    if (tables.format == LibraryTables::Pe)
        skip("a Windows library knows no unique symbols");
    require(tables.uniqueSymbols.empty(),
            counted(tables.uniqueSymbols.size(), "unique symbol") + ", such as " +
                (tables.uniqueSymbols.empty() ? "" : inQuotes(tables.uniqueSymbols.front(), 200)));
}

// --- Loading

void loads(Trial& trial) {
    withPlugin(trial, [](Host& host) {
        require(host.initialization().questions() == 1,
                "its export asked the host " + counted(host.initialization().questions(), "time") +
                    " whether it fits");
        char const* const token = host.initialization().askedToken();
        require(token != nullptr && std::string(token) == "TELM_API_VERSION",
                "it asked about the interface " + inQuotes(token == nullptr ? "" : token));
    });
}

void answer(Trial& trial) {
    Library const plugin(trial.plugin);
    std::string const name = questionsIn(LibraryTables(trial.plugin)).front();
    auto* const question = plugin.find<int (*)(VInitialization*)>(name.c_str());
    for (int const expected : {0, 1, 2, 42, 65536, 2147483647, -1}) {
        VInitialization host(expected);
        int const given = question(&host);
        require(given == expected, "the host answers " + std::to_string(expected) +
                                       ", and the export gives " + std::to_string(given));
    }
}

std::vector<PluginReport> reportsOf(VInitialization::InitPluginReason reason) {
    std::vector<PluginReport> all = takePluginReports();
    std::erase_if(all, [&](PluginReport const& report) { return report.reason != reason; });
    return all;
}

void attach(Trial& trial) {
    takePluginReports();
    withPlugin(trial, [&](Host&) {
        auto const reports = reportsOf(VInitialization::ProcessAttach);
        require(reports.size() == 1,
                "the host was told of " + counted(reports.size(), "attach") + " at load");
        PluginReport const& report = reports.front();
        require(report.creatorsStanding == catalogue().size(),
                "the catalogue had " + std::to_string(report.creatorsStanding) + " of " +
                    counted(catalogue().size(), "entry") + " when the attach was told");
        require(std::string(report.token) == "TELM_API_VERSION",
                "the attach was told with the token " + inQuotes(report.token));
        std::string const name = questionsIn(LibraryTables(trial.plugin)).front();
        require(name.ends_with("__" + std::string(report.moduleName)),
                "the attach was told of the module " + inQuotes(report.moduleName) +
                    ", and the export is called " + inQuotes(name));
    });
}

void detach(Trial& trial) {
    std::size_t standing = 0;
    withPlugin(trial, [&](Host& host) {
        standing = catalogue().size();
        takePluginReports();
        host.unload();
    });
    auto const reports = reportsOf(VInitialization::ProcessDetach);
    require(reports.size() == 1,
            "the host was told of " + counted(reports.size(), "detach") + " at unload");
    require(reports.front().creatorsStanding == standing,
            "of " + std::to_string(standing) + " entries " +
                std::to_string(reports.front().creatorsStanding) +
                " stood when the detach was told");
}

void unloads(Trial& trial) {
    withPlugin(trial, [](Host&) {});
    require(!isMapped(textOf(trial.plugin.filename())),
            "the library is still in the process after it was unloaded");
}

std::vector<std::string> keys() {
    std::vector<std::string> all;
    for (WeakCreatorPtr const& entry : catalogue())
        all.push_back(entry->keyname("/"));
    return all;
}

void loadsAgain(Trial& trial) {
    std::vector<std::string> first;
    withPlugin(trial, [&](Host&) { first = keys(); });
    for (int i = 0; i < 3; ++i)
        withPlugin(trial, [&](Host&) {
            require(keys() == first, "the catalogue has " + counted(keys().size(), "entry") +
                                         " at a later load, and had " +
                                         std::to_string(first.size()) + " at the first one");
        });
}

void leavesNothing(Trial& trial) {
    withPlugin(trial, [](Host&) {
        for (WeakCreatorPtr const& entry : catalogue())
            create(entry);
    });
    require(catalogue().empty(), counted(catalogue().size(), "entry") +
                                     " of the catalogue stand after the library has gone");
    require(inputCreators(typeid(ColormapPtr)).empty(),
            "it is still offered as a source of maps after it has gone");
    require(typeCreatorCount() == 0,
            counted(typeCreatorCount(), "creator") + " of value types stand after it has gone");
}

void loadTime(Trial& trial) {
    using Clock = std::chrono::steady_clock;
    constexpr double Limit = 0.1;
    constexpr int Tries = 3;  // of which the fastest counts, since others use the machine too
    double fastest = std::numeric_limits<double>::infinity();
    for (int i = 0; i < Tries; ++i) {
        auto const start = Clock::now();
        withPlugin(trial, [](Host&) {});
        std::chrono::duration<double> const seconds = Clock::now() - start;
        fastest = std::min(fastest, seconds.count());
    }
    if (fastest > Limit)
        warn("loading and unloading took " + std::to_string(fastest) + " seconds");
}

void startsNoThread(Trial& trial) {
    std::size_t const before = threadCount();
    withPlugin(trial, [&](Host&) {
        require(threadCount() <= before,
                counted(threadCount() - before, "thread") + " more run after loading");
    });
}

/// What the process has that a plug-in might touch.
struct Surroundings {
    std::vector<std::string> variables = environment();
    std::filesystem::path folder = std::filesystem::current_path();
    std::size_t handles = openHandles();
};

void touchesNothing(Trial& trial) {
    withPlugin(trial, [](Host&) {});  // what is loaded with it, and stays, is not its own
    Surroundings const before;
    std::vector<std::string> touched;
    {
        Watch const watch;
        Library const plugin(trial.plugin);
        touched = watch.touched();
    }
    require(touched.empty(), "loading it has " + (touched.empty() ? "" : touched.front()));
    Surroundings const after;
    require(after.variables == before.variables, "the environment has changed");
    require(after.folder == before.folder,
            "the present folder has become " + inQuotes(textOf(after.folder), 200));
    require(after.handles <= before.handles,
            counted(after.handles - before.handles, "file") + " more stand open");
}

void quiet(Trial& trial) {
    std::fflush(stdout);
    std::size_t const before = writtenBytes();
    withPlugin(trial, [&](Host&) {});
    std::fflush(stdout);
    require(writtenBytes() == before,
            counted(writtenBytes() - before, "byte") + " were printed while it came and went");
}

// --- A second file of it, and the end of the process

/// Loads the plug-in and a copy of it, and unloads one of them first.
void besideItself(Trial const& trial, bool firstGoesFirst) {
    TemporaryFolder const folder;
    Trial other = trial;
    other.plugin = folder / ("another-" + textOf(trial.plugin.filename()));
    std::filesystem::copy_file(trial.plugin, other.plugin);
    std::optional<Host> first(std::in_place, trial);
    std::size_t const count = catalogue().size();
    std::optional<Host> second(std::in_place, other);
    inOwnWords("", [&] {
        require(catalogue().size() == 2 * count,
                "the second one brings " + counted(catalogue().size() - count, "entry") +
                    ", and the first one " + std::to_string(count));
        (firstGoesFirst ? first : second).reset();
        require(catalogue().size() == count,
                counted(catalogue().size(), "entry") + " stand when one of the two has gone");
        for (WeakCreatorPtr const& entry : catalogue())
            create(entry);
    });
}

void secondCopy(Trial& trial) {
    besideItself(trial, true);
    besideItself(trial, false);
}

/// What stands to the very end of the process.
void endsLoaded(Trial& trial) {
    auto* const host = new Host(trial);
    auto* const held = new std::vector<ObjectPtr>;
    inOwnWords("", [&] {
        for (WeakCreatorPtr const& entry : catalogue())
            held->push_back(create(entry));
    });
    static_cast<void>(host);
}

}  // namespace

std::vector<Test> fileTests() {
    return {
        {"file/library", "A plug-in is a whole 64-bit library of the system.", {}, library},
        {"file/export",
         "It exports TELM_API_2024_MAR_06__NAME, where NAME is the name of its module.",
         {"file/library"},
         exportOfAPlugin},
        {"file/one-export",
         "It exports nothing else, neither by name nor by number.",
         {"file/library"},
         oneExport},
        {"file/imports",
         "It needs the host's libraries and the shared C++ runtime, since exceptions and casts "
         "cross the border, and nothing that a host may not have.",
         {"file/library"},
         imports},
        {"file/run-paths", "It looks for libraries beside itself.", {"file/library"}, runPaths},
        {"file/unique-symbols",
         "It has no unique symbols, which would keep it in the process for ever.",
         {"file/library"},
         uniqueSymbols},
        {"file/loads",
         "It can be loaded with all that it needs, its initialisers throw nothing, and its export "
         "asks the host once whether it fits.",
         {"file/export"},
         loads},
        {"file/answer",
         "The host's answer comes back through the export as it is, whatever it is.",
         {"file/loads"},
         answer},
        {"file/attach",
         "It tells the host of the attach once, with its module's name, when all its entries "
         "stand.",
         {"file/loads"},
         attach},
        {"file/detach",
         "It tells the host of the detach once, while all its entries still stand.",
         {"file/unloads"},
         detach},
        {"file/unloads",
         "It is gone from the process when it is unloaded.",
         {"file/loads"},
         unloads},
        {"file/loads-again",
         "Its initialisers run again at the next load.",
         {"file/unloads"},
         loadsAgain},
        {"file/leaves-nothing",
         "With it go its entries, the objects that they made, and its value types.",
         {"file/unloads"},
         leavesNothing},
        {"file/load-time",
         "It is loaded and unloaded within a tenth of a second.",
         {"file/loads"},
         loadTime},
        {"file/no-thread",
         "It starts no thread while it is loaded.",
         {"file/loads"},
         startsNoThread},
        {"file/touches-nothing",
         "While it is loaded it opens no file, and leaves the environment and the present folder "
         "alone.",
         {"file/loads"},
         touchesNothing},
        {"file/quiet", "It prints nothing while it is loaded and unloaded.", {"file/loads"}, quiet},
        {"file/second-copy",
         "A second file of it can be loaded beside it, and unloaded before or after it.",
         {"file/leaves-nothing"},
         secondCopy},
        {"file/process-end",
         "A process may end while it is loaded and its objects are held; it ends in order.",
         {"file/leaves-nothing"},
         endsLoaded},
    };
}

}  // namespace workbench::validate
