#include "host/object/Tincture.hpp"

#include <array>
#include <atomic>
#include <mutex>

#include "runtime/vellum/ColormapValue.hpp"
#include "runtime/vellum/quantize.hpp"

namespace Orlo {

namespace {

constexpr int IconWidth = 48;
constexpr int IconHeight = 12;

/// Drawn where a map answers with NaN: a magenta that no one takes for a tint.
constexpr rgb8_t NoNumber{255, 0, 255};

rgb8_t iconColor(Colormap const& map, int column) {
    double const t = map.getMin() + (map.getMax() - map.getMin()) * (column + 0.5) / IconWidth;
    auto const color = map.getColor(t);
    for (std::size_t i = 0; i < rgb8_t().size(); ++i)
        if (color[i] != color[i])
            return NoNumber;
    return quantizedColor<rgb8_t>(color);
}

std::string hexadecimal(rgb8_t const& color) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text = "#";
    for (unsigned const component : color) {
        text += digits[component / 16];
        text += digits[component % 16];
    }
    return text;
}

/// The map from left to right, as the text of an XPM image with a colour, and
/// a character, for each column.
std::string drawIcon(Colormap const& map) {
    std::string colors, row;
    for (int column = 0; column < IconWidth; ++column) {
        char const key = static_cast<char>('0' + column);
        colors += std::string(1, key) + " c " + hexadecimal(iconColor(map, column)) + "\n";
        row += key;
    }
    std::string image = std::to_string(IconWidth) + " " + std::to_string(IconHeight) + " " +
                        std::to_string(IconWidth) + " 1\n" + colors;
    for (int line = 0; line < IconHeight; ++line)
        image += row + "\n";
    return image;
}

}  // namespace

struct Tincture::Icon {
    std::atomic<unsigned> count{0};
    mutable std::mutex mutex;  ///< guards `image`
    std::string image;
};

Tincture::Tincture(std::string const& name, int kind, PreferencesPtr const& preferences,
                   std::string const& outputName)
    : VObject(name, kind, preferences),
      colormapOutput(makeColormapParameter(outputName)),
      icon_(std::make_unique<Icon>()) {
    colormapOutput->setCreator(this);
    VSlotGlobals::addParameter(this, outputName, 0, colormapOutput, false);
}

Tincture::~Tincture() = default;

void Tincture::createIcon(ColormapPtr const& map) {
    std::string image = map ? drawIcon(*map) : std::string();
    std::scoped_lock const lock(icon_->mutex);
    icon_->image.swap(image);
    ++icon_->count;
}

std::string Tincture::xpm_icon() const {
    std::scoped_lock const lock(icon_->mutex);
    return icon_->image;
}

unsigned Tincture::iconCount() const noexcept {
    return icon_->count;
}

}  // namespace Orlo
