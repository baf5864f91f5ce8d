/// Colours of point classes: the Elbe scheme.
/// Its map is made once.
#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/tableRule.hpp"

using namespace Orlo;
using namespace prism;

namespace {

/// Row k is the colour of class k, which is looked up as the scalar k/67. Rows
/// that are not named have no class. Alpha is 0 throughout.
constexpr ColorTable<67> TulElbeTints = sparseTable<67>({
    {0, {1, 0.51373, 0.06667, 0}},
    {2, {0.56078, 0.65098, 0.15686, 0}},
    {9, {0.24706, 0.76078, 0.82353, 0}},
    {20, {0.81961, 0.25098, 0.08627, 0}},
    {25, {0.61569, 0.17255, 0.04706, 0}},
    {26, {0.82745, 0.08627, 0.35294, 0}},
    {29, {0.65098, 0.09804, 0.62353, 0}},
    {30, {0.16863, 0.52549, 0.79608, 0}},
    {31, {0.03529, 0.68627, 0.4, 0}},
});

class TulColor : public Tincture {
public:
    class Ramp : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return 67; }
        rgba_float_t getColor(double value) const override { return tableRow(TulElbeTints, value); }
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }
    };

    TulColor(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {}

    bool update(VRequest& request, double) override { return makeOnce<Ramp>(*this, request); }

    /// Both schemes give this text, the Elbe scheme too.
    std::string help(HelpType) const override { return "TulLass Color Scheme"; }
};

VSource<TulColor, ColormapPtr> creator(
    VCreatorProperties(
        TodoIs("todo"),
        DescriptionIs("Provides a color map with Tul Lass classification for points."),
        TagsAre("General;Tidewatch"), DateIs("Mar 22 2024"), NameIs("TulElbeColorScheme"),
        SourceIs("prism/tinctures/TulElbeColorScheme"), CategoryIs("Colormaps")),
    0, new VCreationPreferences("LidarTul"), false, InterfaceToken);

}  // namespace
