/// A preset of ParaView. All keys are spelled out, since it leaves those that a
/// preset does not name as the one before had them; but IndexedColors, even empty,
/// would make it a preset of categories.

#include "workbench/common/Json.hpp"
#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

Json rgb(Orlo::rgba_float_t const& color) {
    return {color[0], color[1], color[2]};
}

std::string write(Model const& model) {
    Json colors = Json::array(), opacities = Json::array();
    for (Stop const& stop : stopsOf(model)) {
        colors.push_back(stop.value);
        for (std::size_t i = 0; i < 3; ++i)
            colors.push_back(stop.color[i]);
        for (double const number : {stop.value, double{stop.color[3]}, 0.5, 0.0})
            opacities.push_back(number);
    }
    Json const preset = {{"Name", "telmbench " + plainName(model)},
                         {"ColorSpace", "RGB"},
                         {"RGBPoints", colors},
                         {"Points", opacities},
                         {"EnableOpacityMapping", model.hasAlpha ? 1 : 0},
                         {"NanColor", rgb(model.missing)},
                         {"NanOpacity", model.missing[3]},
                         {"BelowRangeColor", rgb(model.below)},
                         {"UseBelowRangeColor", 1},
                         {"AboveRangeColor", rgb(model.above)},
                         {"UseAboveRangeColor", 1},
                         {"IndexedLookup", 0},
                         {"Annotations", Json::array()},
                         {"Discretize", 0},
                         {"NumberOfTableValues", 4096},
                         {"UseLogScale", 0},
                         {"HSVWrap", 0},
                         {"DefaultMap", false},
                         {"Creator", model.origin.maker},
                         {"Source", aboutLines(model, 0)}};
    return jsonText(Json::array({preset}), 1) + "\n";
}

}  // namespace

constinit Form const ParaviewJson{.name = "paraview-json",
                                  .program = "ParaView",
                                  .ending = ".json",
                                  .below = Outside::Colored,
                                  .above = Outside::Colored,
                                  .missing = true,
                                  .alpha = true,
                                  .exactEdges = true,
                                  .write = write};

}  // namespace workbench
