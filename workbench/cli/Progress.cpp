#include "workbench/cli/Progress.hpp"

#include <algorithm>
#include <cstdio>
#include <utility>

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace workbench {

namespace {

bool errorsGoToTerminal() {
#if defined(_WIN32)
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(fileno(stderr)) != 0;
#endif
}

}  // namespace

Progress::Progress(std::string label) : label_(std::move(label)), visible_(errorsGoToTerminal()) {}

Progress::~Progress() {
    if (shown_ >= 0)
        std::fprintf(stderr, "\r%*s\r", static_cast<int>(label_.size()) + 6, "");
}

void Progress::show(double part) {
    int const percent = static_cast<int>(100.0 * std::clamp(part, 0.0, 1.0));
    if (!visible_ || percent == shown_)
        return;
    shown_ = percent;
    std::fprintf(stderr, "\r%s %3d %%", label_.c_str(), percent);
    std::fflush(stderr);
}

}  // namespace workbench
