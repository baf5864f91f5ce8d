#include <algorithm>
#include <cmath>

#include "workbench/export/Form.hpp"
#include "workbench/export/notation.hpp"
#include "workbench/export/table.hpp"

namespace workbench {

using Orlo::rgba_float_t;

namespace {

/// What is lost of the colours on one side of the range; empty if nothing.
std::string lossBeside(std::string const& side, Outside outside, rgba_float_t const& color,
                       rgba_float_t const& nearest, bool changes) {
    std::string const values = "values " + side + " the range ";
    if (outside == Outside::Undrawn)
        return values + "are not drawn, and have " + hexOf(color) + " in the map";
    rgba_float_t const& written = outside == Outside::Colored ? color : nearest;
    if (changes)
        return values + "have different colours in the map, and all " + hexOf(written) +
               " in the file";
    if (bytesOf(written) != bytesOf(color))
        return values + "have " + hexOf(color) + " in the map, and " + hexOf(written) +
               " in the file";
    return {};
}

std::string lossOfAlpha(Form const& form, Model const& model, bool wantsAlpha) {
    if (wantsAlpha)
        return form.alpha || model.isOpaque ? ""
                                            : "the form has no alpha, and all colours are opaque";
    if (!model.alphaTells)
        return {};
    return std::string("the map's alpha is left out, and all colours are opaque") +
           (form.alpha ? "; --alpha keeps it" : "");
}

/// How many evenly spaced colours the form has this map in; 0 if it has it otherwise.
std::size_t tableSizeOf(Form const& form, Model const& model) {
    auto const size = static_cast<std::size_t>(form.tableSize);
    if (!isTable(form, model))
        return 0;
    return form.anySize ? evenCount(model, size) : size;
}

}  // namespace

bool isTable(Form const& form, Model const& model) {
    if (form.tableSize == 0 || (form.listsClasses && model.isClasses()))
        return false;
    return form.maxStops == 0 || formStops(model).size() > static_cast<std::size_t>(form.maxStops);
}

std::vector<std::string> lossesOf(Form const& form, Model const& model, bool wantsAlpha,
                                  bool hasRange, std::size_t slivers) {
    std::vector<std::string> losses;
    auto const add = [&](bool isLost, std::string const& what) {
        if (isLost && !what.empty())
            losses.push_back(what);
    };
    std::size_t const table = tableSizeOf(form, model);
    rgba_float_t first = model.pieces.front().start, last = model.pieces.back().end;
    if (table > 0) {
        first = evenColors(model, table).front();
        last = evenColors(model, table).back();
    }
    std::size_t const stops = formStops(model).size();
    add(true, lossOfAlpha(form, model, wantsAlpha));
    add(true, lossBeside("below", form.below, model.below, first, model.changesBelow));
    add(true, lossBeside("above", form.above, model.above, last, model.changesAbove));
    add(!form.missing, "no number has no colour, and has " + hexOf(model.missing) + " in the map");
    add(!form.beyond && model.goesBeyond,
        "the map's components go beyond 0 to 1, and are cut there");
    add(!form.exactEdges && model.hasEdges() && !(form.listsClasses && model.isClasses()),
        "hard edges stand near their places, and not to the last double");
    add(slivers > 0, "pieces narrower than " + shortestText(form.minPart) +
                         " of the range are left out, " + std::to_string(slivers) + " of them");
    add(form.maxStops > 0 && stops > static_cast<std::size_t>(form.maxStops),
        "the map takes " + std::to_string(stops) + " stops, and the form holds " +
            std::to_string(form.maxStops));
    double const off = table > 0 ? evenError(model, table) : 0.0;
    add(off > std::max(model.error, 0.5 / 255) + 1e-6,
        "the map is steeper in places than " + std::to_string(table) +
            " evenly spaced colours, which are up to " +
            shortestText(std::ceil(off * 1000) / 1000) + " off");
    add(!form.values && hasRange, "the form has places from 0 to 1, and no data values");
    add(!form.origin, "the form has no room for where it comes from");
    add(!form.origin && !model.origin.label.empty(),
        "the form has no room for the map's label, '" + model.origin.label + "'");
    return losses;
}

}  // namespace workbench
