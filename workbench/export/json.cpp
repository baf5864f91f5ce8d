/// JSON: the pieces as they are.
#include <nlohmann/json.hpp>

#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

/// Keeps its keys in the order in which they are written.
using Json = nlohmann::ordered_json;

Json asJson(Orlo::rgba_float_t const& color) {
    Json components = Json::array();
    for (std::size_t i = 0; i < color.size(); ++i)
        components.push_back(color[i]);
    return components;
}

std::string oneLine(Json const& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string originOf(Model const& model) {
    Origin const& origin = model.origin;
    Json parameters = Json::object();
    for (auto const& [name, text] : origin.parameters)
        parameters[name] = text;
    return oneLine({{"key", origin.key},
                    {"description", origin.description},
                    {"label", origin.label},
                    {"parameters", parameters},
                    {"maker", origin.maker},
                    {"command", origin.command}});
}

std::string write(Model const& model) {
    std::string text = "{\n\"origin\": " + originOf(model) +
                       ",\n\"range\": " + oneLine({model.range.min, model.range.max}) +
                       ",\n\"error\": " + oneLine(model.error) + ",\n\"pieces\": [\n";
    for (std::size_t i = 0; i < model.pieces.size(); ++i) {
        Piece const& piece = model.pieces[i];
        text += oneLine({{"from", piece.from},
                         {"to", piece.to},
                         {"start", asJson(piece.start)},
                         {"end", asJson(piece.end)}}) +
                (i + 1 < model.pieces.size() ? ",\n" : "\n");
    }
    return text + "],\n\"below\": " + oneLine(asJson(model.below)) +
           ",\n\"above\": " + oneLine(asJson(model.above)) +
           ",\n\"missing\": " + oneLine(asJson(model.missing)) + "\n}\n";
}

}  // namespace

constinit Form const JsonForm{.name = "json",
                              .program = "any program",
                              .ending = ".json",
                              .below = Outside::Colored,
                              .above = Outside::Colored,
                              .missing = true,
                              .alpha = true,
                              .beyond = true,
                              .exactEdges = true,
                              .write = write};

}  // namespace workbench
