/// The pieces of every map against lookups of the map itself.
#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "tests/workbench/export/ExportedMap.hpp"

namespace {

using namespace tests;

constexpr double Half = 0.5 / 255;

double neighbour(double value, int steps) {
    double const goal = steps < 0 ? -1e308 : 1e308;
    for (int i = 0; i < std::abs(steps); ++i)
        value = std::nextafter(value, goal);
    return value;
}

std::vector<double> randomScalars(std::size_t count) {
    std::mt19937_64 engine(20240322);
    std::uniform_real_distribution<double> anywhere(0.0, 1.0);
    std::vector<double> values{0.0, 1.0};
    while (values.size() < count)
        values.push_back(anywhere(engine));
    return values;
}

TEST(Pieces, CoverTheRangeWithoutGap) {
    for (std::string const& key : allKeys()) {
        SCOPED_TRACE(key);
        ExportedMap const& map = exported(key);
        EXPECT_EQ(map.pieces.front().from, 0.0);
        EXPECT_EQ(map.pieces.back().to, 1.0);
        for (std::size_t i = 1; i < map.pieces.size(); ++i) {
            EXPECT_EQ(map.pieces[i].from, map.pieces[i - 1].to);
            EXPECT_LT(map.pieces[i - 1].from, map.pieces[i].from);
        }
    }
}

TEST(Pieces, KeepTheErrorOfEveryMapAtRandomScalars) {
    std::vector<double> const values = randomScalars(4000);
    for (std::string const& key : allKeys()) {
        ExportedMap const& map = exported(key);
        std::vector<Color> const colors = lookedUp(key, values);
        EXPECT_TRUE(map.error == 0.0 || std::abs(map.error - Half) < 1e-12) << map.error;
        double worst = 0.0;
        for (std::size_t i = 0; i < values.size(); ++i)
            worst = std::max(worst, difference(map.at(values[i]), colors[i]));
        EXPECT_LE(worst, map.error + 1e-7) << key;
    }
}

TEST(Pieces, OfClassesHaveTheirColourExactlyAndAreAsManyAsNeighboursThatDiffer) {
    struct {
        char const* key;
        std::size_t count;
    } const table[] = {{"TulElbeColorScheme", 15},
                       {"TulLassColorScheme", 30},
                       {"Hypoxia", 13},
                       {"HypoxiaLegend", 7},
                       {"BathymetricColors", 20},
                       {"Hypsometric", 20},
                       {"TopoBathy", 20},
                       {"Topographic", 10},
                       {"BigColorMap", 61},
                       {"Monochrome", 1},
                       {"MaxDistinguishableColors", 10}};
    for (auto const& each : table) {
        SCOPED_TRACE(each.key);
        ExportedMap const& map = exported(each.key);
        EXPECT_EQ(map.error, 0.0);
        EXPECT_EQ(map.pieces.size(), each.count);
        // Neighbours that are closer than the error are two classes still.
        EXPECT_EQ(exported(each.key, {"--error", "0.25"}).pieces.size(), each.count);
        std::vector<double> starts;
        for (ExportedPiece const& piece : map.pieces)
            starts.push_back(piece.from);
        std::vector<Color> const colors = lookedUp(each.key, starts);
        for (std::size_t i = 0; i < colors.size(); ++i) {
            EXPECT_EQ(map.pieces[i].start, map.pieces[i].end);
            EXPECT_EQ(difference(colors[i], map.pieces[i].start), 0.0);
        }
    }
}

/// All doubles near an edge: the colour changes there, and nowhere else.
TEST(Pieces, HaveTheirEdgesAtTheLastDouble) {
    constexpr int Near = 40;
    std::size_t count = 0;
    for (std::string const& key : allKeys()) {
        ExportedMap const& map = exported(key);
        std::vector<double> values;
        std::vector<bool> isEdge;
        for (double const edge : map.edges())
            for (int i = -Near; i < Near; ++i)
                if (double const value = neighbour(edge, i); value >= 0.0 && value <= 1.0) {
                    values.push_back(value);
                    isEdge.push_back(i == 0);
                }
        std::vector<Color> const colors = lookedUp(key, values);
        for (std::size_t i = 1; i < values.size(); ++i) {
            bool const isNeighbour = values[i] == neighbour(values[i - 1], 1);
            bool const changes = difference(colors[i - 1], colors[i]) > Half / 2;
            EXPECT_TRUE(!isNeighbour || changes == isEdge[i]) << key << " at " << values[i];
            EXPECT_LE(difference(colors[i], map.at(values[i])), map.error + 1e-7)
                << key << " at " << values[i];
        }
        count += map.edges().size();
    }
    EXPECT_GT(count, 150U);
}

TEST(Pieces, SayWhatLiesOutsideAndWhatIsNoNumber) {
    for (std::string const& key : allKeys()) {
        ExportedMap const& map = exported(key);
        std::vector<Color> const colors =
            lookedUp(key, {-1e-6, 1 + 1e-6, std::numeric_limits<double>::quiet_NaN()});
        Color const expected[] = {map.below, map.above, map.missing};
        for (std::size_t i = 0; i < 3; ++i)
            for (std::size_t k = 0; k < 3; ++k)
                EXPECT_EQ(std::clamp(expected[i][k], 0.0, 1.0), colors[i][k]) << key;
    }
}

TEST(Pieces, OfARangeStandWhereItsValuesAre) {
    struct {
        char const* key;
        char const* range;
        double min, max;
    } const table[] = {{"Hypsometric", "0,1000", 0, 1000},
                       {"Hypsometric", "-11000,8848", -11000, 8848},
                       {"Glow", "-0.001,1e9", -0.001, 1e9},
                       {"Zebramap", "273.15,373.15", 273.15, 373.15},
                       {"Hypoxia", "-4e299,4e299", -4e299, 4e299}};
    for (auto const& each : table) {
        SCOPED_TRACE(std::string(each.key) + " " + each.range);
        ExportedMap const& map = exported(each.key, {"--range", each.range});
        EXPECT_EQ(map.min, each.min);
        EXPECT_EQ(map.max, each.max);
        EXPECT_EQ(map.edges().size(), exported(each.key).edges().size());
        std::vector<double> scalars;
        for (double const edge : map.edges())
            for (double const value : {std::nextafter(edge, -1.7e308), edge})
                scalars.push_back((value / 2 - each.min / 2) / (each.max / 2 - each.min / 2));
        std::vector<Color> const colors = lookedUp(each.key, scalars);
        for (std::size_t i = 0; i < colors.size(); i += 2)
            EXPECT_GT(difference(colors[i], colors[i + 1]), Half) << scalars[i];
    }
}

TEST(Pieces, AreFewerWhereALargerErrorIsAllowed) {
    std::vector<double> const values = randomScalars(2000);
    std::vector<Color> const colors = lookedUp("Glow", values);
    std::size_t count = 1000;
    for (char const* error : {"0.0001", "0.002", "0.05", "0.25"}) {
        ExportedMap const& map = exported("Glow", {"--error", error});
        EXPECT_EQ(map.error, std::stod(error));
        EXPECT_LT(map.pieces.size(), count);
        count = map.pieces.size();
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_LE(difference(map.at(values[i]), colors[i]), map.error) << values[i];
    }
}

TEST(Pieces, FollowTheParameters) {
    EXPECT_EQ(exported("Zebramap", {"--set", "frequency=0.001"}).edges().size(), 999U);
    EXPECT_EQ(exported("MaxDistinguishableColors", {"--set", "Number of Colors=100"}).pieces.size(),
              100U);
    ExportedMap const& turned = exported("Hypsometric", {"--set", "options=inverse"});
    EXPECT_EQ(turned.pieces.back().start, exported("Hypsometric").pieces.front().start);
    EXPECT_EQ(turned.command,
              "telmbench export Colormaps/Hypsometric --format json --set options=inverse");
}

TEST(Pieces, AreOpaqueUnlessAlphaIsAskedFor) {
    for (auto const& [key, alpha] : {std::pair("Hypsometric", 0.0), {"Glow", 1.0}}) {
        EXPECT_EQ(exported(key).pieces.front().start[3], 1.0) << key;
        EXPECT_EQ(exported(key).missing[3], 1.0) << key;
        EXPECT_EQ(exported(key, {"--alpha"}).pieces.front().start[3], alpha) << key;
    }
    EXPECT_EQ(exported("Monochrome", {"--set", "color=(1,0,0,0.5)", "--alpha"}).below[3], 0.5);
}

}  // namespace
