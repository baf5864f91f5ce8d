#include "workbench/cli/Progress.hpp"

#include <cstdio>
#include <utility>

#include "workbench/common/clamp.hpp"
#include "workbench/platform/console.hpp"

namespace workbench {

Progress::Progress(std::string label) : label_(std::move(label)), visible_(errorsGoToTerminal()) {}

Progress::~Progress() {
    if (shown_ >= 0)
        std::fprintf(stderr, "\r%*s\r", static_cast<int>(label_.size()) + 6, "");
}

void Progress::begin() {
    if (!visible_)
        return;
    shown_ = 0;
    std::fprintf(stderr, "\r%s ...", label_.c_str());
    std::fflush(stderr);
}

void Progress::show(double part) {
    int const percent = static_cast<int>(100.0 * clampToUnit(part));
    if (!visible_ || percent == shown_)
        return;
    shown_ = percent;
    std::fprintf(stderr, "\r%s %3d %%", label_.c_str(), percent);
    std::fflush(stderr);
}

}  // namespace workbench
