/// JSON: the pieces as they are.
#include "workbench/common/Json.hpp"

#include "workbench/export/notation.hpp"
#include "workbench/export/writers.hpp"

namespace workbench {

namespace {

Json asJson(Orlo::rgba_float_t const& color) {
    Json components = Json::array();
    for (std::size_t i = 0; i < color.size(); ++i)
        components.push_back(color[i]);
    return components;
}

std::string originOf(Model const& model) {
    Origin const& origin = model.origin;
    Json parameters = Json::object();
    for (auto const& [name, text] : origin.parameters)
        parameters[name] = text;
    return jsonText({{"key", origin.key},
                     {"description", origin.description},
                     {"label", origin.label},
                     {"parameters", parameters},
                     {"maker", origin.maker},
                     {"command", origin.command}});
}

std::string write(Model const& model) {
    std::string text = "{\n\"origin\": " + originOf(model) +
                       ",\n\"range\": " + jsonText({model.range.min, model.range.max}) +
                       ",\n\"error\": " + jsonText(model.error) + ",\n\"pieces\": [\n";
    for (std::size_t i = 0; i < model.pieces.size(); ++i) {
        Piece const& piece = model.pieces[i];
        text += jsonText({{"from", piece.from},
                          {"to", piece.to},
                          {"start", asJson(piece.start)},
                          {"end", asJson(piece.end)}}) +
                (i + 1 < model.pieces.size() ? ",\n" : "\n");
    }
    return text + "],\n\"below\": " + jsonText(asJson(model.below)) +
           ",\n\"above\": " + jsonText(asJson(model.above)) +
           ",\n\"missing\": " + jsonText(asJson(model.missing)) + "\n}\n";
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
