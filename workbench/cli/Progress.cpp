#include "workbench/cli/Progress.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

#include "workbench/common/clamp.hpp"
#include "workbench/platform/console.hpp"

namespace workbench {

Progress::Progress(std::string label) : label_(std::move(label)), visible_(errorsGoToTerminal()) {}

Progress::~Progress() {
    print("");
    if (visible_)
        std::fputc('\r', stderr);
}

void Progress::begin() {
    print(label_ + " ...");
}

void Progress::show(double part) {
    int const percent = static_cast<int>(100.0 * clampToUnit(part));
    char text[16];
    std::snprintf(text, sizeof text, " %3d %%", percent);
    print(label_ + text + remaining(clampToUnit(part)));
}

/// Nothing while there is too little to judge by.
std::string Progress::remaining(double part) const {
    constexpr double Minute = 60.0, Hour = 3600.0;
    double const elapsed = std::chrono::duration<double>(Clock::now() - start_).count();
    if (elapsed < 1.0 || part < 0.01)
        return "";
    double const left = elapsed * (1.0 - part) / part;
    auto const text = [](double number, char const* unit) {
        return ", " + std::to_string(std::lround(number)) + unit;
    };
    if (left < 2 * Minute)
        return text(left, " s left");
    return left < 2 * Hour ? text(left / Minute, " min left") : text(left / Hour, " h left");
}

/// Over what stood there before, which may have been longer.
void Progress::print(std::string const& line) {
    if (!visible_ || line == shown_)
        return;
    std::size_t const width = std::max(line.size(), shown_.size());
    std::fprintf(stderr, "\r%-*s", static_cast<int>(width), line.c_str());
    std::fflush(stderr);
    shown_ = line;
}

}  // namespace workbench
