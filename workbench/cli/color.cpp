/// `telmbench color`: data painted with a map.
#include <functional>
#include <optional>

#include "workbench/cli/Progress.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/cli/files.hpp"
#include "workbench/cli/numbers.hpp"
#include "workbench/data/paint.hpp"
#include "workbench/session/MapObject.hpp"

namespace workbench {

namespace {

constexpr char Examples[] = R"(Examples:
  telmbench color Hypsometric hills.tif -o hills.png
      The whole map over the range of the data, a pixel for each cell.
  telmbench color Topographic docs/examples/hills.asc --range 0,1000 -o hills.png
      0 to 1000 lie at the lower and the upper end of the map. Values beyond go on
      beyond it, here to the water tints below 0.
  telmbench color Glow 'NETCDF:"sea.nc":depth' --set center=0.3 -o sea.png
      One of several grids in a file, and a parameter set.

DATA is what GDAL reads: GeoTIFF, ESRI ASCII grid, NetCDF, PNG and many others.
Values are in the units that the file tells. Without --range, a grid of one value
has the colour of the map's middle. Cells without data are transparent; all
others are opaque, as the tables of many maps have alpha 0.)";

constexpr char NoGdal[] =
    "\n\nThis build of telmbench has no GDAL, without which the command does nothing but say so.";

struct Arguments {
    std::string key;
    std::string grid;
    std::vector<std::string> settings;
    std::optional<std::string> range;
    int band = 1;
    std::filesystem::path file;
};

/// A line of progress for the length of one piece of work.
std::function<void(double)> shownAs(char const* label) {
    return [progress = std::make_shared<Progress>(label)](double part) { progress->show(part); };
}

void run(SessionOptions const& common, Arguments const& given) {
    std::optional<Interval> range;
    if (given.range)
        range = readRange(*given.range);
    std::unique_ptr<DataGrid> const grid = openGrid(given.grid, given.band);
    std::vector<std::filesystem::path> inputs = grid->files();
    inputs.push_back(common.plugin);
    checkOutput(given.file, inputs);
    checkPaintable(*grid, given.grid);
    OutputFiles output({given.file});
    Session const session(common);
    MapObject const subject(session, given.key, given.settings);
    if (!range)
        range = rangeOf(*grid, given.grid, shownAs("measuring the data"));
    output.write(given.file, paint(*grid, subject.map(), *range, shownAs("painting")));
}

}  // namespace

void addColor(CLI::App& program, SessionOptions const& common) {
    CLI::App* const command = program.add_subcommand("color", "Paint a grid of data with a map");
    auto const given = std::make_shared<Arguments>();
    command->add_option("KEY", given->key, "Full key, or name, of the entry")->required();
    command->add_option("DATA", given->grid, "The grid: a file, or another name that GDAL knows")
        ->required();
    command->add_option("--set", given->settings, "Set a parameter, as NAME=TEXT")
        ->allow_extra_args(false);
    command
        ->add_option("--range", given->range,
                     "The values at the lower and the upper end of the map, instead of the "
                     "least and the greatest of the data")
        ->type_name("MIN,MAX");
    command->add_option("--band", given->band, "The band of the data, from 1 on")
        ->type_name("N")
        ->capture_default_str();
    addFile(*command, "-o", given->file, "The picture to write")->required();
    command->footer(readsGrids() ? Examples : std::string(Examples) + NoGdal);
    command->callback([&common, given] { run(common, *given); });
}

}  // namespace workbench
