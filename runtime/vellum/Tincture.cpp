#include "host/object/Tincture.hpp"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <string_view>

#include "runtime/vellum/ColormapValue.hpp"
#include "runtime/vellum/quantize.hpp"

namespace Orlo {

namespace {

constexpr int IconWidth = 48;
constexpr int IconHeight = 12;

/// Drawn where a map answers with NaN: a magenta that no one takes for a tint.
constexpr rgb8_t NoNumber{255, 0, 255};

rgb8_t iconColor(Colormap const& map, int column) {
    double const min = map.getMin(), max = map.getMax();  // as int they may lie too far apart
    double const t = min + (max - min) * (column + 0.5) / IconWidth;
    auto const color = map.getColor(t);
    for (std::size_t i = 0; i < rgb8_t().size(); ++i)
        if (color[i] != color[i])
            return NoNumber;
    return quantizedColor<rgb8_t>(color);
}

/// Writes an image into text of the right length, from front to back.
class Pen {
public:
    explicit Pen(char* place) : place_(place) {}

    void write(char character) { *place_++ = character; }
    void write(std::string_view text) { place_ = std::ranges::copy(text, place_).out; }
    void writeHexadecimal(rgb8_t const& color) {
        constexpr char digits[] = "0123456789ABCDEF";
        for (unsigned const component : color) {
            write(digits[component / 16]);
            write(digits[component % 16]);
        }
    }

private:
    char* place_;
};

// The parts of an XPM image with a colour, and a character, for each column.
static_assert(IconWidth == 48 && IconHeight == 12);
constexpr std::string_view Head = "48 12 48 1\n";
constexpr std::size_t ColorLength = std::string_view("0 c #RRGGBB\n").size();
constexpr std::size_t ImageLength =
    Head.size() + IconWidth * ColorLength + IconHeight * (IconWidth + 1);

constexpr char keyOf(int column) {
    return static_cast<char>('0' + column);
}

/// The map from left to right. An update draws it each time: one allocation.
std::string drawIcon(Colormap const& map) {
    std::string image(ImageLength, '\0');
    Pen pen(image.data());
    pen.write(Head);
    for (int column = 0; column < IconWidth; ++column) {
        pen.write(keyOf(column));
        pen.write(" c #");
        pen.writeHexadecimal(iconColor(map, column));
        pen.write('\n');
    }
    for (int line = 0; line < IconHeight; ++line) {
        for (int column = 0; column < IconWidth; ++column)
            pen.write(keyOf(column));
        pen.write('\n');
    }
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
