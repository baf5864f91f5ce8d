#include "workbench/scene/render.hpp"

#include <algorithm>

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

/// Finds the colour that is seen along a ray.
class Tracer {
public:
    explicit Tracer(Shown const& shown) : shown_(shown) {}

    Tessar::rgba_float_t colorAlong(Ray const& ray) {
        fragments_.clear();
        for (RenderablePtr const& member : shown_.scene->members)
            if (std::optional<Fragment> const fragment = member->intersect(ray))
                if (fragment->depth >= shown_.view.minDepth &&
                    fragment->depth <= shown_.view.maxDepth)
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

}  // namespace workbench
