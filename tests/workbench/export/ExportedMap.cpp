#include "tests/workbench/export/ExportedMap.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

namespace tests {

namespace {

using Json = nlohmann::ordered_json;

double cut(double component) {
    return component >= 1.0 ? 1.0 : component > 0.0 ? component : 0.0;
}

std::string exact(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

}  // namespace

Color ExportedMap::at(double value) const {
    auto const next = std::ranges::upper_bound(pieces, value, {}, &ExportedPiece::from);
    ExportedPiece const& piece = *(next - 1);
    double const width = piece.to - piece.from;
    double const part = width > 0 ? (value - piece.from) / width : 0.0;
    Color color{};
    for (std::size_t i = 0; i < color.size(); ++i)
        color[i] = cut(piece.start[i] * (1 - part) + piece.end[i] * part);
    return color;
}

std::vector<double> ExportedMap::edges() const {
    std::vector<double> found;
    for (std::size_t i = 1; i < pieces.size(); ++i)
        if (pieces[i].start != pieces[i - 1].end)
            found.push_back(pieces[i].from);
    return found;
}

namespace {

ExportedMap readExport(std::string const& key, std::vector<std::string> const& arguments) {
    std::vector<std::string> call{"export", key, "--format", "json"};
    call.insert(call.end(), arguments.begin(), arguments.end());
    ProcessResult const result = telmbench(call);
    EXPECT_EQ(result.status, 0) << result.err;
    Json const json = Json::parse(result.out);
    ExportedMap map{.min = json["range"][0],
                    .max = json["range"][1],
                    .error = json["error"],
                    .pieces = {},
                    .below = json["below"],
                    .above = json["above"],
                    .missing = json["missing"],
                    .command = json["origin"]["command"]};
    for (Json const& each : json["pieces"])
        map.pieces.push_back({each["from"], each["to"], each["start"], each["end"]});
    return map;
}

}  // namespace

ExportedMap const& exported(std::string const& key, std::vector<std::string> const& arguments) {
    using Call = std::pair<std::string, std::vector<std::string>>;
    static std::map<Call, ExportedMap> known;
    auto const found = known.find({key, arguments});
    if (found != known.end())
        return found->second;
    return known.emplace(Call{key, arguments}, readExport(key, arguments)).first->second;
}

std::vector<Color> lookedUp(std::string const& key, std::vector<double> const& values,
                            std::vector<std::string> const& settings) {
    std::string input;
    for (double const value : values)
        input += exact(value) + "\n";
    std::vector<std::string> call{"lookup", key, "-"};
    for (std::string const& setting : settings)
        call.insert(call.end(), {"--set", setting});
    std::vector<Color> colors;
    for (std::string const& line : telmbench(call, input).outLines()) {
        std::istringstream words(line);
        std::string word;
        words >> word;
        if (word == "we")  // the plug-in talks
            continue;
        Color color{};
        for (double& component : color) {
            words >> word;
            component = cut(double{static_cast<float>(std::stod(word))});
        }
        colors.push_back(color);
    }
    EXPECT_EQ(colors.size(), values.size());
    return colors;
}

std::vector<std::string> allKeys() {
    std::vector<std::string> keys;
    for (Json const& each : Json::parse(telmbench({"catalogue", "--json"}).out))
        keys.push_back(each["key"]);
    return keys;
}

double difference(Color const& a, Color const& b) {
    double greatest = 0.0;
    for (std::size_t i = 0; i < 3; ++i)
        greatest = std::max(greatest, std::abs(a[i] - b[i]));
    return greatest;
}

}  // namespace tests
