#include "tests/prism/MapDescription.hpp"

#include <cmath>
#include <numeric>

namespace tests {

namespace {

std::vector<MapDescription>& allMaps() {
    static std::vector<MapDescription> maps;
    return maps;
}

}  // namespace

std::vector<MapDescription> const& describedMaps() {
    return allMaps();
}

DescribedMap::DescribedMap(MapDescription description) {
    allMaps().push_back(std::move(description));
}

std::vector<LookupRow> bandsOf(std::vector<Tessar::rgba_float_t> const& table) {
    auto const count = static_cast<double>(table.size());
    std::vector<LookupRow> rows;
    for (std::size_t k = 0; k < table.size(); ++k) {
        std::string const row = "row " + std::to_string(k);
        auto const center = static_cast<double>(k);
        rows.push_back({row + " at k/N", {}, center / count, table[k]});
        rows.push_back({row + " begins", {}, (center - 0.4999) / count, table[k]});
        rows.push_back({row + " ends", {}, (center + 0.4999) / count, table[k]});
    }
    return rows;
}

std::vector<LookupRow> rowsOf(std::vector<Tessar::rgba_float_t> const& table) {
    auto const place = [count = static_cast<double>(table.size())](double value) {
        double const volatile product = value * count;  // rounded before the half is added
        return product + 0.5;
    };
    return bandsOf(table) + edgesOf(table, {}, place);
}

std::vector<LookupRow> edgesOf(std::vector<Tessar::rgba_float_t> const& table,
                               std::vector<Setting> const& settings,
                               std::function<double(double)> const& place) {
    std::vector<LookupRow> rows;
    for (std::size_t k = 1; k < table.size(); ++k) {
        auto const isBehind = [&](double value) { return place(value) >= static_cast<double>(k); };
        double before = isBehind(-2.0) ? 4.0 : -2.0, behind = isBehind(-2.0) ? -2.0 : 4.0;
        while (std::nextafter(before, behind) != behind) {
            double const middle = std::midpoint(before, behind);
            (isBehind(middle) ? behind : before) = middle;
        }
        std::string const edge = settings.empty() ? "the edge of row " : "the edge, set, of row ";
        rows.push_back({edge + std::to_string(k) + " begins", settings, behind, table[k]});
        rows.push_back(
            {edge + std::to_string(k) + " is not reached", settings, before, table[k - 1]});
    }
    return rows;
}

std::vector<LookupRow> operator+(std::vector<LookupRow> first,
                                 std::vector<LookupRow> const& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

std::string testName(std::string const& text) {
    std::string name;
    for (char const c : text) {
        bool const plain =
            (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (plain)
            name += c;
        else if (!name.empty() && name.back() != '_')
            name += '_';
    }
    return name;
}

std::ostream& operator<<(std::ostream& out, MapDescription const& map) {
    return out << map.key();
}

}  // namespace tests
