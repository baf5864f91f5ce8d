/// Sixty-one fixed colours: bright ones, darker ones, and a grey.
/// Its map is rewritten in place.
#include <cstdio>

#include "host/creators/VSource.hpp"
#include "prism/tinctures/OutputMap.hpp"
#include "prism/tinctures/science/tableRule.hpp"

using namespace Orlo;
using namespace prism;

namespace {

/// Rows 30 to 59 are the first thirty at about 0.6 of their brightness, but for
/// rows 30 and 35. Alpha is 0 throughout.
constexpr ColorTable<61> BigRampColors{{
    {1, 0, 0, 0},
    {1, 0.54901963, 0, 0},
    {0.85490197, 0.64705884, 0.1254902, 0},
    {0.7411765, 0.7176471, 0.41960785, 0},
    {0.5019608, 0.5019608, 0, 0},
    {0, 0, 0, 0},
    {1, 1, 0, 0},
    {0.6039216, 0.8039216, 0.19607843, 0},
    {0.4862745, 0.9882353, 0, 0},
    {0, 0.39215687, 0, 0},
    {0.19607843, 0.8039216, 0.19607843, 0},
    {0.56078434, 0.7372549, 0.56078434, 0},
    {0.4, 0.8039216, 0.6666667, 0},
    {0.18431373, 0.30980393, 0.30980393, 0},
    {0, 1, 1, 0},
    {0.8784314, 1, 1, 0},
    {0.27450982, 0.50980395, 0.7058824, 0},
    {0.39215687, 0.58431375, 0.92941177, 0},
    {0.09803922, 0.09803922, 0.4392157, 0},
    {0.29411766, 0, 0.50980395, 0},
    {0.48235294, 0.40784314, 0.93333334, 0},
    {0.54509807, 0, 0.54509807, 0},
    {0.84705883, 0.7490196, 0.84705883, 0},
    {0.93333334, 0.50980395, 0.93333334, 0},
    {1, 0, 1, 0},
    {1, 0.7529412, 0.79607844, 0},
    {0.9607843, 0.87058824, 0.7019608, 0},
    {0.54509807, 0.27058825, 0.07450981, 0},
    {0.7372549, 0.56078434, 0.56078434, 0},
    {0.6627451, 0.6627451, 0.6627451, 0},
    {0.30117646, 0, 0, 0},
    {0.6, 0.32941177, 0, 0},
    {0.5129412, 0.3882353, 0.075294115, 0},
    {0.44470587, 0.43058825, 0.2517647, 0},
    {0.30117646, 0.30117646, 0, 0},
    {0.44470587, 0.43058825, 0.2517647, 0},
    {0.6, 0.6, 0, 0},
    {0.36235294, 0.48235294, 0.11764706, 0},
    {0.2917647, 0.59294116, 0, 0},
    {0, 0.23529412, 0, 0},
    {0.11764706, 0.48235294, 0.11764706, 0},
    {0.33647057, 0.44235295, 0.33647057, 0},
    {0.24, 0.48235294, 0.4, 0},
    {0.11058824, 0.18588236, 0.18588236, 0},
    {0, 0.6, 0.6, 0},
    {0.52705884, 0.6, 0.6, 0},
    {0.16470589, 0.30588236, 0.42352942, 0},
    {0.23529412, 0.35058823, 0.55764705, 0},
    {0.05882353, 0.05882353, 0.26352942, 0},
    {0.1764706, 0, 0.30588236, 0},
    {0.28941175, 0.24470589, 0.56, 0},
    {0.32705882, 0, 0.32705882, 0},
    {0.5082353, 0.44941175, 0.5082353, 0},
    {0.56, 0.30588236, 0.56, 0},
    {0.6, 0, 0.6, 0},
    {0.6, 0.4517647, 0.47764707, 0},
    {0.5764706, 0.52235293, 0.42117646, 0},
    {0.32705882, 0.16235293, 0.044705883, 0},
    {0.44235295, 0.33647057, 0.33647057, 0},
    {0.39764705, 0.39764705, 0.39764705, 0},
    {0.6, 0.6, 0.6, 0},
}};

class ColorRamp : public Tincture {
public:
    class Ramp : public Colormap {
    public:
        int getMin() const override { return 0; }
        int getMax() const override { return 1; }
        int getSize() const override { return colorCount; }
        rgba_float_t getColor(double value) const override {
            return tableRow(BigRampColors, value);
        }
        std::string getLabel() const override { return {}; }
        std::intptr_t getExtra() const override { return 0; }

        int colorCount = 256;
        double red = 0.0, green = 0.0, blue = 0.0;
    };

    ColorRamp(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Tincture(name, kind, preferences, "colormap") {
        for (TypedSlot<double>* const component : {&red, &green, &blue}) {
            component->setProperty("min", 0.0);
            component->setProperty("max", 1.0);
        }
        steps.setProperty("min", 2);
        steps.setProperty("max", 256);
    }

    /// The parameters are read and kept, and no colour depends on them; the
    /// number of steps is overruled by that of the rows.
    bool update(VRequest& request, double) override {
        OutputMap output(*this, request);
        if (output.isEmpty())
            output.hold(new Ramp);
        if (auto* const map = output.as<Ramp>()) {
            output.read(red, map->red);
            output.read(green, map->green);
            output.read(blue, map->blue);
            output.read(steps, map->colorCount);
            map->colorCount = int{BigRampColors.size()};
            std::printf("we have colors: %d\n", map->colorCount);
            std::fflush(stdout);
            output.refresh();
        }
        return output.publish();
    }

private:
    TypedSlot<double> red{this, "red", 1.0, 0};
    TypedSlot<double> green{this, "green", 1.0, 0};
    TypedSlot<double> blue{this, "blue", 1.0, 0};
    TypedSlot<int> steps{this, "steps", 256, 1};
};

VSource<ColorRamp, ColormapPtr> creator(
    VCreatorProperties(TodoIs("todo"), DescriptionIs("Colormap with bigger color ramp."),
                       TagsAre("General;Tidewatch"), DateIs("Mar 22 2024"), NameIs("BigColorMap"),
                       SourceIs("prism/tinctures/BigColorMap"), CategoryIs("Colormaps")),
    -1000, new VCreationPreferences("default"), false, InterfaceToken);

bool const valueTypes = registerValueTypes<double, int>();

}  // namespace
