#include "workbench/scene/render.hpp"

#include <algorithm>

#include "workbench/common/errors.hpp"
#include "workbench/nodes/Viewer.hpp"

namespace workbench {

namespace {

Tessar::rgba_float_t over(Fragment const& front, Tessar::rgba_float_t const& behind) {
    if (front.opacity >= 1)
        return front.colour;
    Tessar::rgba_float_t result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = static_cast<float>(double{front.colour[i]} * front.opacity +
                                       double{behind[i]} * (1 - front.opacity));
    return result;
}

/// Finds the colour that is seen along a ray.
class Tracer {
public:
    explicit Tracer(Shown const& shown) : shown_(shown) {}

    Tessar::rgba_float_t colourAlong(Ray const& ray) {
        met_.clear();
        for (RenderablePtr const& member : shown_.scene->members)
            if (std::optional<Fragment> const fragment = member->meet(ray))
                if (fragment->depth >= shown_.view.nearest &&
                    fragment->depth <= shown_.view.farthest)
                    met_.push_back(*fragment);
        std::ranges::stable_sort(met_, std::ranges::greater(), &Fragment::depth);
        Tessar::rgba_float_t colour = shown_.background;
        for (Fragment const& fragment : met_)
            colour = over(fragment, colour);
        return colour;
    }

private:
    Shown const& shown_;
    std::vector<Fragment> met_;
};

void drawSpace(Image& image, Shown const& shown, std::function<void(double)> const& progress) {
    constexpr int RowsForEachReport = 16;
    Lens const lens(shown.view, image.width(), image.height());
    Tracer tracer(shown);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.at(x, y) = opaque(tracer.colourAlong(lens.through(x, y)));
        if (progress && y % RowsForEachReport == 0)
            progress(static_cast<double>(y) / image.height());
    }
}

/// A number of pixels, or 0 if it is none that a picture can have.
int pixelCount(double number) {
    return number >= 1 && number <= Image::MostPixelsASide ? static_cast<int>(number) : 0;
}

Image emptyPicture(Viewer const& viewer, Shown const& shown) {
    int const width = pixelCount(shown.size.first);
    int const height = pixelCount(shown.size.second);
    if (width == 0 || height == 0)
        throw WorkError("the size of '" + viewer.Name() + "' is " +
                        Orlo::VValueTrait<Pair>::Text(shown.size) + "; a picture has 1 to " +
                        std::to_string(Image::MostPixelsASide) +
                        " pixels a side, such as 1046x650");
    return Image(width, height, opaque(shown.background));
}

}  // namespace

bool isViewer(Orlo::VObject const& object) {
    return dynamic_cast<Viewer const*>(&object) != nullptr;
}

Image render(Orlo::VObject& object, Orlo::PoolPtr const& pool,
             std::function<void(double)> const& progress) {
    auto* const viewer = dynamic_cast<Viewer*>(&object);
    if (viewer == nullptr)
        throw CallError("'" + object.Name() + "' is no viewer; only viewers make pictures");
    Orlo::VRequest request(pool);
    viewer->request(request, 0, nullptr, nullptr);
    Shown const shown = viewer->shown(pool);
    Image image = emptyPicture(*viewer, shown);
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
