/// `telmbench color`: data painted with a map.
#include <cmath>
#include <optional>

#include "workbench/cli/Progress.hpp"
#include "workbench/cli/commands.hpp"
#include "workbench/cli/files.hpp"
#include "workbench/cli/numbers.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/common/files.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/paths.hpp"
#include "workbench/data/paint.hpp"
#include "workbench/picture/png.hpp"
#include "workbench/platform/Interruption.hpp"
#include "workbench/scene/LegendBar.hpp"
#include "workbench/session/MapObject.hpp"

namespace workbench {

namespace {

constexpr char Examples[] = R"(Examples:
  telmbench color Hypsometric hills.tif -o hills-painted.tif
      The whole map over the range of the data, a pixel for each cell, where the
      data lie on the earth.
  telmbench color Topographic docs/examples/hills.asc --range 0,1000 -o hills.png
      0 to 1000 lie at the lower and the upper end of the map. Values beyond go on
      beyond it, here to the water tints below 0.
  telmbench color Hypsometric hills.tif -o relief.png --legend legend.svg --hillshade
      The classic map of heights: tints, shaded as if lit from the upper left.
  telmbench color Glow 'NETCDF:"sea.nc":depth' --set center=0.3 -o sea.png
      One of several grids in a file, and a parameter set.
  telmbench color Hypsometric world.tif --resize 4096,0 --cog -o small.tif
      At another resolution, as a cloud-optimised GeoTIFF with overviews.

DATA is what GDAL reads: GeoTIFF, ESRI ASCII grid, NetCDF, PNG and many others.
Values are in the units that the file tells. Without --range, a grid of one value
has the colour of the map's middle. Cells without data are transparent (white in
a JPEG); all others are opaque, as the tables of many maps have alpha 0.

The ending of FILE tells its form: .tif, .png, .jpg or .webp. The place on the earth
goes along, beside a picture in files .aux.xml and .wld. Memory is bounded,
whatever the size of the data.)";

constexpr char NoGdal[] =
    "\n\nThis build of telmbench has no GDAL, without which the command does nothing but say so.";

struct Arguments {
    std::string key;
    std::string grid;
    std::vector<std::string> settings;
    std::optional<std::string> range;
    std::optional<std::string> light;
    std::optional<std::string> size;
    std::string method = "nearest";
    int band = 1;
    bool cloudOptimized = false;
    std::filesystem::path legend;
    std::filesystem::path file;
};

/// Reads "315,45"; an empty text is the light that maps usually have.
Light readLight(std::string const& text) {
    if (text.empty())
        return {};
    auto const light = readPair(text);
    if (!light || !(light->first >= 0.0 && light->first <= 360.0) ||
        !(light->second > 0.0 && light->second <= 90.0))
        throw CallError("the light " + inQuotes(text) +
                        " is not of the form AZIMUTH,ALTITUDE with 0 to 360 degrees clockwise "
                        "from the upper edge, and more than 0 to 90 above the horizon, such as "
                        "315,45");
    return {light->first, light->second};
}

/// Reads "4096,0" and "0.5".
Resize readResize(std::string const& text, std::string const& method) {
    constexpr double Most = 1'000'000'000;
    auto const isLength = [](double number) {
        return number >= 0.0 && number <= Most && number == std::floor(number);
    };
    if (auto const factor = readNumber(text); factor && *factor > 0.0 && *factor <= 1000.0)
        return {0, 0, *factor, method};
    auto const size = readPair(text);
    if (!size || !isLength(size->first) || !isLength(size->second) ||
        size->first + size->second == 0.0)
        throw CallError("the size " + inQuotes(text) +
                        " is not of the form WIDTH,HEIGHT with whole numbers of cells, one of "
                        "which may be 0 to keep the proportions, nor a factor such as 0.5");
    return {static_cast<int>(size->first), static_cast<int>(size->second), 0.0, method};
}

/// The form that the file asks for.
PictureForm readForm(Arguments const& given) {
    PictureForm const form = formOf(given.file);
    if (!given.cloudOptimized)
        return form;
    if (form != PictureForm::GeoTiff)
        throw CallError("--cog makes a GeoTIFF, and " + inQuotes(textOf(given.file), 1000) +
                        " has not its ending .tif");
    return PictureForm::CloudOptimized;
}

bool isSvg(std::filesystem::path const& file) {
    return file.extension() == ".svg";
}

void checkLegend(std::filesystem::path const& file) {
    if (!file.empty() && !isSvg(file) && file.extension() != ".png")
        throw CallError("the ending of " + inQuotes(textOf(file), 1000) +
                        " tells no form of legends; known are .png and .svg");
}

/// A line of progress for the length of one piece of work, which an interruption
/// ends.
Progressing shownAs(char const* label) {
    return [progress = std::make_shared<Progress>(label)](double part) {
        Interruption::check();
        progress->show(part);
    };
}

/// Nothing that is read is written over, under whatever name, and no output is
/// written over another.
void checkOutputs(std::vector<std::filesystem::path> const& outputs,
                  std::filesystem::path const& legend,
                  std::vector<std::filesystem::path> const& inputs) {
    for (std::filesystem::path const& output : outputs) {
        checkOutput(output, inputs);
        if (!legend.empty() && isSameFile(output, legend))
            throw CallError("the legend " + inQuotes(textOf(legend), 1000) +
                            " would be written over by the picture; name another file for it");
    }
    checkOutput(legend, inputs);
}

/// Where the picture comes from, for its metadata.
std::vector<std::string> notesOf(Arguments const& given, Interval const& range) {
    std::string settings;
    for (std::string const& setting : given.settings)
        settings += (settings.empty() ? "" : "; ") + setting;
    std::vector<std::string> notes{
        "COLORMAP=" + given.key,
        "COLORMAP_RANGE=" + shortest(range.min) + "," + shortest(range.max)};
    if (!settings.empty())
        notes.push_back("COLORMAP_SETTINGS=" + settings);
    return notes;
}

void run(SessionOptions const& common, Arguments const& given) {
    PictureForm const form = readForm(given);
    checkLegend(given.legend);
    std::optional<Interval> range;
    if (given.range)
        range = readRange(*given.range);
    std::optional<Light> light;
    if (given.light)
        light = readLight(*given.light);
    std::optional<Resize> resize;
    if (given.size)
        resize = readResize(*given.size, given.method);
    std::unique_ptr<DataGrid> const grid = openGrid(given.grid, given.band, resize);
    std::vector<std::filesystem::path> inputs = grid->files();
    std::ranges::copy(pluginFiles(common.plugins), std::back_inserter(inputs));
    checkOutputs({given.file}, given.legend, inputs);
    OutputFiles outputs({given.legend});
    Interruption const interruption;
    Draft draft(given.file);
    std::vector<std::filesystem::path> const companions = companionsOf(draft.target());
    checkOutputs(companions, given.legend, inputs);
    Session const session(common);
    MapObject const subject(session, given.key, given.settings);
    if (!range)
        range = rangeOf(*grid, given.grid, shownAs("measuring the data"));
    std::optional<Relief> relief;
    if (light)
        relief.emplace(grid->hillshade(*light, draft.scratch("relief.tif"), shownAs("shading")),
                       *light);
    Paint const paint{subject.map(), *range, relief ? &*relief : nullptr};
    Painting painting(*grid, grid->windows(form), paint);
    grid->write({draft.file(), draft.scratch("painted.tif"), form, notesOf(given, *range)},
                painting, shownAs("painting"));
    if (isSvg(given.legend))
        outputs.write(given.legend, legendSvg(subject.map(), *range));
    else if (!given.legend.empty())
        outputs.write(given.legend, legendPicture(subject.heldMap(), *range));
    draft.keep(companions);
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
    command
        ->add_option("--hillshade", given->light,
                     "Shade the colours by the relief of the data, lit from 315 degrees clockwise "
                     "and 45 above the horizon if nothing else is given")
        ->type_name("AZIMUTH,ALTITUDE")
        ->expected(0, 1);
    command
        ->add_option("--resize", given->size,
                     "Read the data at another resolution: so many cells, 0 for one of them to "
                     "keep the proportions, or a factor")
        ->type_name("WIDTH,HEIGHT");
    command
        ->add_option("--resampling", given->method,
                     "How GDAL finds the values of --resize; all but nearest and mode make new "
                     "ones, which classes have not")
        ->type_name("METHOD")
        ->check(CLI::IsMember(
            {"nearest", "bilinear", "cubic", "cubicspline", "lanczos", "average", "mode"}))
        ->capture_default_str();
    command->add_flag("--cog", given->cloudOptimized,
                      "Write a cloud-optimised GeoTIFF, with overviews");
    addFile(*command, "--legend", given->legend,
            "Write the legend too, with the units of the data, as .png or .svg");
    addFile(*command, "-o", given->file, "The picture to write")->required();
    command->footer(readsGrids() ? Examples : std::string(Examples) + NoGdal);
    command->callback([&common, given] { run(common, *given); });
}

}  // namespace workbench
