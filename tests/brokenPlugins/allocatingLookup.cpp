/// Allocates memory in the lookup.
#include "tests/brokenPlugins/Healthy.hpp"

namespace {

class Wasteful : public Grey {
public:
    rgba_float_t getColor(double value) const override {
        std::vector<double> const values(3, value);
        return Grey::getColor(values.back());
    }
};

}  // namespace

PRISM_ENTRY(Object<Wasteful>)
