#include "workbench/scene/render.hpp"

#include <algorithm>
#include <ranges>

namespace workbench {

namespace {

Tessar::rgba_float_t over(Fragment const& front, Tessar::rgba_float_t const& behind) {
    if (front.opacity >= 1)
        return front.color;
    Tessar::rgba_float_t result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = static_cast<float>(double{front.color[i]} * front.opacity +
                                       double{behind[i]} * (1 - front.opacity));
    return result;
}

/// What a ray meets of a member among the depths that are shown.
std::optional<Fragment> seen(Renderable const& member, View const& view, Ray const& ray) {
    std::optional<Fragment> fragment = member.intersect(ray);
    if (fragment && !(fragment->depth >= view.minDepth && fragment->depth <= view.maxDepth))
        fragment.reset();
    return fragment;
}

/// Finds the colour that is seen along a ray.
class Tracer {
public:
    explicit Tracer(Shown const& shown) : shown_(shown) {}

    Tessar::rgba_float_t colorAlong(Ray const& ray) {
        fragments_.clear();
        for (RenderablePtr const& member : shown_.scene->members)
            if (std::optional<Fragment> const fragment = seen(*member, shown_.view, ray))
                fragments_.push_back(*fragment);
        std::ranges::stable_sort(fragments_, std::ranges::greater(), &Fragment::depth);
        Tessar::rgba_float_t color = shown_.background;
        for (Fragment const& fragment : fragments_)
            color = over(fragment, color);
        return color;
    }

private:
    Shown const& shown_;
    std::vector<Fragment> fragments_;
};

void drawSpace(Image& image, Shown const& shown, std::function<void(double)> const& progress) {
    constexpr int RowsForEachReport = 16;
    Lens const lens(shown.view, image.width(), image.height());
    Tracer tracer(shown);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.at(x, y) = opaque(tracer.colorAlong(lens.through(x, y)));
        if (progress && y % RowsForEachReport == 0)
            progress(static_cast<double>(y) / image.height());
    }
}

}  // namespace

Image render(Shown const& shown, std::function<void(double)> const& progress) {
    Image image(shown.width, shown.height, opaque(shown.background));
    if (shown.scene) {
        drawSpace(image, shown, progress);
        for (RenderablePtr const& member : shown.scene->members)
            member->drawOver(image);
    }
    if (progress)
        progress(1.0);
    return image;
}

std::optional<Reading> readPixel(Shown const& shown, Image const& picture, int x, int y) {
    if (!shown.scene || !picture.contains(x, y))
        return std::nullopt;
    for (RenderablePtr const& member : shown.scene->members | std::views::reverse)
        if (std::optional<Reading> const reading = member->readOver(picture, x, y))
            return reading;
    Ray const ray = Lens(shown.view, picture.width(), picture.height()).through(x, y);
    std::optional<Reading> nearest;
    double depth = shown.view.maxDepth;
    for (RenderablePtr const& member : shown.scene->members)
        if (std::optional<Fragment> const fragment = seen(*member, shown.view, ray))
            if (fragment->opacity > 0 && fragment->depth <= depth) {
                nearest = member->read(ray);
                depth = fragment->depth;
            }
    return nearest;
}

}  // namespace workbench
