/// Answers NaN in one way and then in another.
#include <cmath>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

class Fickle : public Grey {
public:
    rgba_float_t getColor(double value) const override {
        if (!std::isnan(value))
            return Grey::getColor(value);
        turn_ = !turn_;
        return {turn_ ? 1.0F : 0.0F, 0, 0, 1};
    }

private:
    mutable bool turn_ = false;
};

}  // namespace

PRISM_ENTRY(Object<Fickle>)
