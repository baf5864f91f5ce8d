/// Its map refers to the object that made it, and reads what is no more.
#include "tests/brokenPlugins/Healthy.hpp"

namespace {

class Dependent : public Grey {
public:
    rgba_float_t getColor(double value) const override {
        return {static_cast<float>(value), tint != nullptr ? *tint : 0.0F, 0, 1};
    }

    float const* tint = nullptr;
};

class Owner : public Object<Dependent> {
public:
    using Object::Object;

    bool update(VRequest& request, double precision) override {
        bool const done = Object::update(request, precision);
        prism::OutputMap output(*this, request);
        if (auto* const map = output.as<Dependent>())
            map->tint = &tint_;
        return done;
    }

private:
    float tint_ = 0.25F;
};

}  // namespace

PRISM_ENTRY(Owner)
