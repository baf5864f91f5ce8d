/// `telmbench ramp`: a whole map as a picture.
#include "workbench/picture/ramp.hpp"

#include "workbench/cli/commands.hpp"
#include "workbench/cli/files.hpp"
#include "workbench/cli/numbers.hpp"
#include "workbench/session/MapObject.hpp"

namespace workbench {

namespace {

constexpr char Examples[] = R"(Examples:
  telmbench ramp Hypsometric -o hypsometric.png
      The map from its lower to its upper end, left to right.
  telmbench ramp Hypsometric --set options=inverse --size 1024x100 -o turned.png
      With a parameter set, in another size.

Each column has the colour of its middle. The picture is opaque: the alpha of
the colours is left out, as tables have none.)";

struct Arguments {
    std::string key;
    std::vector<std::string> settings;
    std::string size = "512x64";
    std::filesystem::path file;
};

void run(SessionOptions const& common, Arguments const& given) {
    Size const size = readSize(given.size);
    checkOutput(given.file, pluginFiles(common.plugins));
    OutputFiles output({given.file});
    Session const session(common);
    MapObject const subject(session, given.key, given.settings);
    output.write(given.file,
                 rampOf(sample(subject.map(), static_cast<std::size_t>(size.width)), size.height));
}

}  // namespace

void addRamp(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command = program.add_subcommand("ramp", "Draw a map as a PNG picture");
    auto const given = std::make_shared<Arguments>();
    command->add_option("KEY", given->key, "Full key, or name, of the entry")->required();
    command->add_option("--set", given->settings, "Set a parameter, as NAME=TEXT")
        ->allow_extra_args(false);
    command->add_option("--size", given->size, "Width and height in pixels, 1 to 16384 each")
        ->type_name("WxH")
        ->capture_default_str();
    addFile(*command, "-o", given->file, "The picture to write")->required();
    command->footer(Examples);
    command->callback([&common, given] { run(common, *given); });
}

}  // namespace workbench
