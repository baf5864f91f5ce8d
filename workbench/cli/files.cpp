#include "workbench/cli/files.hpp"

#include <algorithm>
#include <iterator>

#include "workbench/cli/Progress.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/picture/png.hpp"

namespace workbench {

namespace fs = std::filesystem;

namespace {

/// The file that an argument names.
fs::path fileOf(std::string const& text, std::string const& name) {
    if (text.empty())
        throw CallError(name + " is given the empty text, which names no file");
    return pathOf(text);
}

}  // namespace

CLI::Option* addFile(CLI::App& command, std::string const& name, fs::path& file,
                     std::string const& description) {
    auto const take = [name, &file](std::string const& text) { file = fileOf(text, name); };
    return command.add_option_function<std::string>(name, take, description)->type_name("FILE");
}

CLI::Option* addFiles(CLI::App& command, std::string const& name, std::vector<fs::path>& files,
                      std::string const& description) {
    auto const take = [name, &files](std::vector<std::string> const& texts) {
        for (std::string const& text : texts)
            files.push_back(fileOf(text, name));
    };
    return command.add_option_function<std::vector<std::string>>(name, take, description)
        ->type_name("FILE")
        ->allow_extra_args(false);
}

void checkOutput(fs::path const& output, std::vector<fs::path> const& inputs) {
    for (fs::path const& input : inputs)
        if (!output.empty() && !input.empty() && isSameFile(output, input))
            throw CallError(inQuotes(textOf(output), 1000) + " would be written over " +
                            inQuotes(textOf(input), 1000) +
                            ", which is read and is the same file; name another file to write");
}

namespace {

std::vector<fs::path> standardOutputs(std::vector<fs::path> const& files) {
    std::vector<fs::path> found;
    std::ranges::copy_if(files, std::back_inserter(found), isStandardOutput);
    return found;
}

}  // namespace

OutputFiles::OutputFiles(std::vector<fs::path> const& files)
    : standardOutputs_(standardOutputs(files)), output_(!standardOutputs_.empty()) {}

void OutputFiles::write(fs::path const& file, std::string const& bytes) {
    if (std::ranges::find(standardOutputs_, file) != standardOutputs_.end())
        output_.write(bytes);
    else
        writeFile(file, bytes);
}

void OutputFiles::write(fs::path const& file, Image const& picture) {
    std::string bytes;
    {
        Progress progress("encoding the picture");
        progress.begin();
        bytes = encodePng(picture);
    }
    write(file, bytes);
}

}  // namespace workbench
