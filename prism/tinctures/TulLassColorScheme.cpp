/// Colours of point classes: the Lass scheme.
/// Its map is made once.
#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/tableRule.hpp"

using namespace Orlo;
using namespace prism;

namespace {

/// Row k is the colour of class k, which is looked up as the scalar k/67. Rows
/// that are not named have no class. Alpha is 0 throughout.
constexpr ColorTable<67> TulLassTints = sparseTable<67>({
    {0, {0.60784, 0.7098, 0.70588, 0}},   {1, {0.89412, 0.86275, 0.56863, 0}},
    {2, {0.64706, 0.62745, 0.35294, 0}},  {3, {0.66275, 0.54902, 0.26275, 0}},
    {4, {0.91373, 0.81569, 0.76078, 0}},  {5, {0.78039, 0.93725, 0.43529, 0}},
    {6, {0.66667, 0.88235, 0.46275, 0}},  {7, {0.39608, 0.50588, 0.26275, 0}},
    {8, {0.27451, 0.45098, 0.42745, 0}},  {9, {0.81961, 0.0549, 0.65882, 0}},
    {10, {0.58431, 0.9098, 0.90588, 0}},  {11, {0.41176, 0.7098, 0.78824, 0}},
    {12, {0.30196, 0.52941, 0.62353, 0}}, {13, {0.81569, 0.84706, 0.90588, 0}},
    {14, {0.69412, 0.78431, 0.96078, 0}}, {15, {0.23922, 0.34902, 0.66275, 0}},
    {16, {0.9451, 0.85882, 0.27451, 0}},  {18, {0.78431, 0.32549, 0.14118, 0}},
    {20, {0.91373, 0.81569, 0.76078, 0}}, {21, {0.89412, 0.72941, 0.58431, 0}},
    {22, {0.81961, 0.34118, 0.4, 0}},     {23, {0.74902, 0.04314, 0.2, 0}},
    {28, {0.87843, 0.56471, 0.90196, 0}}, {29, {0.77255, 0.70196, 0.81961, 0}},
    {30, {0.63137, 0.51373, 0.8549, 0}},  {31, {0.43529, 0.34118, 0.80392, 0}},
});

class TulColor : public Tincture {
public:
    class Ramp : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 67; }
        rgba_float_t getColor(double value) const override { return tableRow(TulLassTints, value); }
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }
    };

    TulColor(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override { return makeOnce<Ramp>(*this, request); }

    std::string help(HelpType) const override { return "TulLass Color Scheme"; }
};

VSource<TulColor, ColormapPtr> creator(
    VCreatorProperties(
        TodoIs("todo"),
        DescriptionIs("Provides a color map with Tul Lass classification for points."),
        TagsAre("General;Tidewatch"), DateIs("Mar 22 2024"), NameIs("TulLassColorScheme"),
        SourceIs("prism/tinctures/TulLassColorScheme"), CategoryIs("Colormaps")),
    0, new VCreationPreferences("LidarTul"), false, InterfaceToken);

}  // namespace
