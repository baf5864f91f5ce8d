#include "tests/support/Process.hpp"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "workbench/common/files.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/platform/Process.hpp"
#include "workbench/platform/program.hpp"

namespace tests {

namespace fs = std::filesystem;
using workbench::textOf;

namespace {

std::vector<std::string> lines(std::string const& text) {
    std::istringstream stream(text);
    std::vector<std::string> result;
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        result.push_back(line);
    }
    return result;
}

}  // namespace

std::vector<std::string> ProcessResult::outLines() const {
    return lines(out);
}

std::vector<std::string> ProcessResult::errLines() const {
    return lines(err);
}

ProcessResult runProcess(fs::path const& program, std::vector<std::string> const& arguments,
                         std::string const& input, Redirection const& redirection) {
    TemporaryFolder const folder;
    workbench::ProcessStreams streams{folder / "in", folder / "out", folder / "err"};
    if (!redirection.out.empty())
        streams.out = redirection.out;
    if (!redirection.err.empty())
        streams.err = redirection.err;
    if (!redirection.in.empty())
        streams.in = redirection.in;
    else
        std::ofstream(streams.in, std::ios::binary) << input;
    ProcessResult result;
    result.status = workbench::runToEnd(program, arguments, streams).status;
    if (redirection.out.empty())
        result.out = workbench::readFile(streams.out);
    if (redirection.err.empty())
        result.err = workbench::readFile(streams.err);
    return result;
}

fs::path programBeside(std::string const& name) {
    return workbench::fileBesideProgram(workbench::programFileName(name));
}

TemporaryFolder::TemporaryFolder() = default;

std::vector<std::string> TemporaryFolder::names() const {
    std::vector<std::string> result;
    for (auto const& entry : fs::directory_iterator(path()))
        result.push_back(textOf(entry.path().filename()));
    std::ranges::sort(result);
    return result;
}

}  // namespace tests
