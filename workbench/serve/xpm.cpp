#include "workbench/serve/xpm.hpp"

#include <array>
#include <charconv>

#include "runtime/quartz/text.hpp"

namespace workbench {

namespace {

constexpr int MaxSide = 1024;

bool isSide(int pixels) {
    return pixels >= 1 && pixels <= MaxSide;
}

/// `0 c #12AB34`, into the table of the keys.
bool readColor(std::string_view line, std::array<std::optional<Rgba8>, 256>& colors) {
    constexpr std::string_view Divider = " c #";
    if (line.size() != 1 + Divider.size() + 6 || line.substr(1, Divider.size()) != Divider)
        return false;
    unsigned value = 0;
    char const* const begin = line.data() + 1 + Divider.size();
    auto const [end, error] = std::from_chars(begin, begin + 6, value, 16);
    if (error != std::errc() || end != begin + 6)
        return false;
    auto const component = [&](int shift) { return static_cast<std::uint8_t>(value >> shift); };
    colors[static_cast<unsigned char>(line.front())] =
        Rgba8{component(16), component(8), component(0), 255};
    return true;
}

}  // namespace

std::optional<Image> readXpm(std::string const& text) {
    Orlo::TextReader head(text);
    int width = 0, height = 0, count = 0, length = 0;
    bool const isHead = head.number(width) && head.literal(' ') && head.number(height) &&
                        head.literal(' ') && head.number(count) && head.literal(' ') &&
                        head.number(length) && head.literal('\n');
    if (!isHead || !isSide(width) || !isSide(height) || count < 1 || count > 256 || length != 1)
        return std::nullopt;
    std::vector<std::string_view> const lines = Orlo::splitWords(text, '\n');
    if (lines.size() != 1 + static_cast<std::size_t>(count) + static_cast<std::size_t>(height))
        return std::nullopt;
    std::array<std::optional<Rgba8>, 256> colors;
    auto line = lines.begin() + 1;
    for (int i = 0; i < count; ++i)
        if (!readColor(*line++, colors))
            return std::nullopt;
    Image image(width, height);
    for (int y = 0; y < height; ++y, ++line) {
        if (line->size() != static_cast<std::size_t>(width))
            return std::nullopt;
        for (int x = 0; x < width; ++x) {
            auto const key = static_cast<unsigned char>((*line)[static_cast<std::size_t>(x)]);
            if (!colors[key])
                return std::nullopt;
            image.at(x, y) = *colors[key];
        }
    }
    return image;
}

}  // namespace workbench
