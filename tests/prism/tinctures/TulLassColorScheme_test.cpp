/// The Lass scheme of point classes.
#include <limits>

#include "tests/prism/MapDescription.hpp"

namespace tests {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<Tessar::rgba_float_t> table() {
    std::vector<Tessar::rgba_float_t> rows(67);
    rows[0] = {0.60784, 0.7098, 0.70588, 0};
    rows[1] = {0.89412, 0.86275, 0.56863, 0};
    rows[2] = {0.64706, 0.62745, 0.35294, 0};
    rows[3] = {0.66275, 0.54902, 0.26275, 0};
    rows[4] = {0.91373, 0.81569, 0.76078, 0};
    rows[5] = {0.78039, 0.93725, 0.43529, 0};
    rows[6] = {0.66667, 0.88235, 0.46275, 0};
    rows[7] = {0.39608, 0.50588, 0.26275, 0};
    rows[8] = {0.27451, 0.45098, 0.42745, 0};
    rows[9] = {0.81961, 0.0549, 0.65882, 0};
    rows[10] = {0.58431, 0.9098, 0.90588, 0};
    rows[11] = {0.41176, 0.7098, 0.78824, 0};
    rows[12] = {0.30196, 0.52941, 0.62353, 0};
    rows[13] = {0.81569, 0.84706, 0.90588, 0};
    rows[14] = {0.69412, 0.78431, 0.96078, 0};
    rows[15] = {0.23922, 0.34902, 0.66275, 0};
    rows[16] = {0.9451, 0.85882, 0.27451, 0};
    rows[18] = {0.78431, 0.32549, 0.14118, 0};
    rows[20] = {0.91373, 0.81569, 0.76078, 0};
    rows[21] = {0.89412, 0.72941, 0.58431, 0};
    rows[22] = {0.81961, 0.34118, 0.4, 0};
    rows[23] = {0.74902, 0.04314, 0.2, 0};
    rows[28] = {0.87843, 0.56471, 0.90196, 0};
    rows[29] = {0.77255, 0.70196, 0.81961, 0};
    rows[30] = {0.63137, 0.51373, 0.8549, 0};
    rows[31] = {0.43529, 0.34118, 0.80392, 0};
    return rows;
}

Tessar::rgba_float_t const ClassZero{0.60784, 0.7098, 0.70588, 0};
Tessar::rgba_float_t const Empty{0, 0, 0, 0};

DescribedMap const described{{
    .name = "TulLassColorScheme",
    .creator = {.order = 0,
                .preferences = {"LidarTul"},
                .description = "Provides a color map with Tul Lass classification for points.",
                .tags = "General;Tidewatch",
                .source = "prism/tinctures/TulLassColorScheme"},
    .parameters = {},
    .size = 67,
    .cycle = {},
    .help = {.shortText = "TulLass Color Scheme"},
    .lookups = rowsOf(table()) +
               std::vector<LookupRow>{
                   {"zero is row 0", {}, 0.0, ClassZero},
                   {"1/67 is row 1", {}, 1.0 / 67.0, {0.89412, 0.86275, 0.56863, 0}},
                   {"a half is row 34, which is empty", {}, 0.5, Empty},
                   {"one is 67.5, limited to row 66, which is empty", {}, 1.0, Empty},
                   {"just below zero truncates to row 0", {}, -0.49 / 67.0, ClassZero},
                   {"far below zero is limited to row 0", {}, -3.0, ClassZero},
                   {"far above one is limited to row 66", {}, 7.0, Empty},
                   {"no number is row 0", {}, NotANumber, ClassZero},
                   {"infinity is row 0", {}, Infinity, ClassZero},
                   {"negative infinity is row 0", {}, -Infinity, ClassZero},
               },
}};

}  // namespace
}  // namespace tests
