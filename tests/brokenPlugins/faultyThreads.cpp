/// An entry for each of many faults that show where threads meet.
#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

using Plain = Object<Grey>;

/// Long enough for another thread to come between, and for a system that counts the time
/// of sleep in milliseconds.
void linger() {
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

// --- A map that is rewritten by halves while somebody reads it

class Watched : public Grey {
public:
    rgba_float_t getColor(double value) const override {
        ++readers;
        std::this_thread::yield();
        rgba_float_t const color = Grey::getColor(value);
        --readers;
        return color;
    }

    mutable std::atomic<int> readers{0};
};

class Hesitant : public Object<Watched> {
public:
    using Object::Object;
    bool update(VRequest& request, double precision) override {
        Object::update(request, precision);
        prism::OutputMap const output(*this, request);
        if (auto* const map = output.as<Watched>(); map->readers > 0)
            map->level /= 2;
        return true;
    }
};
Entry<Hesitant> const hesitant("Colormaps", "Hesitant");

// --- One place for what each update computes

std::atomic<double> scratch;

class Scratched : public Plain {
public:
    using Plain::Plain;
    bool update(VRequest& request, double precision) override {
        double now = 0;
        level.read(request.pool(), now);
        scratch = now;
        linger();
        Plain::update(request, precision);
        prism::OutputMap const output(*this, request);
        if (auto* const map = output.as<Grey>())
            map->level = scratch;
        return true;
    }
};
Entry<Scratched> const scratched("Colormaps", "Scratched");

// --- Objects that are made one at a time

std::atomic<bool> isMaking;

class Jealous : public Plain {
public:
    Jealous(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Plain(name, kind, preferences) {
        if (isMaking.exchange(true))
            throw std::logic_error("another one is being made");
        linger();
        isMaking = false;
    }
};
Entry<Jealous> const jealous("Colormaps", "Jealous");

// --- A map that knows its numbers on the thread that made it

class Native : public Grey {
public:
    rgba_float_t getColor(double value) const override {
        return std::this_thread::get_id() == home_ ? Grey::getColor(value) : rgba_float_t{};
    }

private:
    std::thread::id const home_ = std::this_thread::get_id();
};
Entry<Object<Native>> const native("Colormaps", "Native");

}  // namespace
