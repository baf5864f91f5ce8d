#include <algorithm>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/common/nearest.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

std::vector<Form> const& forms() {
    static std::vector<Form> const all{MplPy,   ParaviewJson, VtkLut, GmtCpt, GdalTxt,   QgisTxt,
                                       QgisXml, GrassRules,   Gpl,    Ggr,    ImagejLut, BlenderPy,
                                       Gnuplot, Svg,          Css,    Csv,    JsonForm};
    return all;
}

Form const& findForm(std::string const& name) {
    auto const found =
        std::ranges::find_if(forms(), [&](Form const& form) { return name == form.name; });
    if (found != forms().end())
        return *found;
    std::vector<std::string> names;
    for (Form const& form : forms())
        names.emplace_back(form.name);
    throw CallError("there is no form " + inQuotes(name) +
                    suggestion(name, names, "; 'telmbench export --list' lists the forms"));
}

std::vector<std::string> limitsOf(Form const& form) {
    std::vector<std::string> limits;
    auto const add = [&](bool holds, std::string const& what) {
        if (!holds)
            limits.push_back(what);
    };
    add(form.alpha, "alpha");
    add(form.below == Outside::Colored, "a colour below the range");
    add(form.above == Outside::Colored, "a colour above it");
    add(form.missing, "a colour for no number");
    add(form.beyond, "components beyond 0 to 1");
    add(form.exactEdges, "edges to the last double");
    add(form.values, "data values");
    add(form.origin, "its origin");
    add(form.maxStops == 0, "more than " + std::to_string(form.maxStops) + " stops");
    add(form.tableSize == 0,
        "more than " + std::to_string(form.tableSize) + " evenly spaced colours");
    return limits;
}

}  // namespace workbench
