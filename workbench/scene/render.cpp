#include "workbench/scene/render.hpp"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>

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
        if (fragments_.size() > 1)  // sorting allocates
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

/// Draws a picture on several threads. Each pixel is computed by itself, so that
/// their number changes none.
class Painter {
public:
    Painter(Image& image, Shown const& shown, std::function<void(double)> const& progress)
        : image_(image),
          shown_(shown),
          progress_(progress),
          lens_(shown.view, image.width(), image.height()) {}

    void draw() {
        std::vector<std::thread> helpers;
        for (unsigned i = 1; i < threadCount(); ++i)
            helpers.emplace_back([this] { drawBands(false); });
        drawBands(true);
        for (std::thread& helper : helpers)
            helper.join();
        if (failure_)
            std::rethrow_exception(failure_);
    }

private:
    static constexpr int RowsOfABand = 16;
    static constexpr int LeastPixelsOfAThread = 32768;  ///< one is made in the time of fewer
    static constexpr unsigned MaxThreads = 16;

    unsigned threadCount() const {
        std::size_t const worth = image_.pixels().size() / LeastPixelsOfAThread;
        std::size_t const most = std::clamp(std::thread::hardware_concurrency(), 1U, MaxThreads);
        return static_cast<unsigned>(std::clamp<std::size_t>(worth, 1, most));
    }

    /// Takes bands until none is left. What is thrown ends the drawing on all threads.
    void drawBands(bool reports) noexcept {
        try {
            Tracer tracer(shown_);
            for (int top = 0; (top = next_.fetch_add(RowsOfABand)) < image_.height();) {
                drawBand(tracer, top);
                if (reports && progress_)
                    progress_(static_cast<double>(top) / image_.height());
            }
        } catch (...) {
            std::scoped_lock const lock(mutex_);
            failure_ = std::current_exception();
            next_ = image_.height();
        }
    }

    void drawBand(Tracer& tracer, int top) {
        int const bottom = std::min(top + RowsOfABand, image_.height());
        for (int y = top; y < bottom; ++y)
            for (int x = 0; x < image_.width(); ++x)
                image_.at(x, y) = opaque(tracer.colorAlong(lens_.through(x, y)));
    }

    Image& image_;
    Shown const& shown_;
    std::function<void(double)> const& progress_;
    Lens lens_;
    std::atomic<int> next_ = 0;
    std::mutex mutex_;  ///< guards `failure_`
    std::exception_ptr failure_;
};

}  // namespace

Image render(Shown const& shown, std::function<void(double)> const& progress) {
    Image image(shown.width, shown.height, opaque(shown.background));
    if (shown.scene) {
        Painter(image, shown, progress).draw();
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
    std::vector<RenderablePtr> const& members = shown.scene->members;
    for (auto member = members.rbegin(); member != members.rend(); ++member)
        if (std::optional<Reading> const reading = (*member)->readOver(picture, x, y))
            return reading;
    Ray const ray = Lens(shown.view, picture.width(), picture.height()).through(x, y);
    std::optional<Reading> nearest;
    double depth = shown.view.maxDepth;
    for (RenderablePtr const& member : members)
        if (std::optional<Fragment> const fragment = seen(*member, shown.view, ray))
            if (fragment->opacity > 0 && fragment->depth <= depth) {
                nearest = member->read(ray);
                depth = fragment->depth;
            }
    return nearest;
}

}  // namespace workbench
