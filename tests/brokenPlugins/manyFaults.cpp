/// An entry for each of many faults, so that every test of the judge is seen to fail.
#include <atomic>
#include <cfenv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <stdexcept>
#include <thread>

#include "tests/brokenPlugins/Healthy.hpp"

namespace {

// --- While it is loaded

#if defined(_WIN32)
constexpr char const* EmptyFile = "NUL";
#else
constexpr char const* EmptyFile = "/dev/null";
#endif

struct Loading {
    Loading() {
        std::puts("loaded");
        file = std::fopen(EmptyFile, "r");
        lost = new char[100];
#if !defined(_WIN32)  // where a thread cannot end while the loader unloads
        thread = std::thread([this] {
            while (!ends)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        });
#endif
    }
    ~Loading() {
        ends = true;
        if (thread.joinable())
            thread.join();
        std::fclose(file);
    }

    std::atomic<bool> ends{false};
    std::FILE* file;
    char* lost;
    std::thread thread;
} const loading;

// --- The catalogue

using Plain = Object<Grey>;
Entry<Plain> const blank("Colormaps", " Blank "), twice("Colormaps", "Twice"),
    twiceAgain("Colormaps", "Twice"), control("Colormaps", "Control", "a\nb");

class Fickle : public Plain {
public:
    using Plain::Plain;
    std::string help(HelpType) const override { return std::to_string(++asked_); }

private:
    mutable int asked_ = 0;
};
Entry<Fickle> const fickle("Colormaps", "Fickle help");

/// With a key that is nearly that of another entry.
Entry<Plain> const near(" Colormaps", "Twice");

class Unconcerned : public Plain {
public:
    Unconcerned(std::string const& name, int kind, PreferencesPtr const&)
        : Plain(name, kind, nullptr) {}
};
Entry<Unconcerned> const unconcerned("Colormaps", "Unconcerned");

// --- The parameters

class Unreadable : public Plain {
public:
    using Plain::Plain;
    TypedSlot<double> other{this, "the\tother", 0.0, 0};
};
Entry<Unreadable> const unreadable("Colormaps", "Unreadable");

class BadAdvice : public Plain {
public:
    BadAdvice(std::string const& name, int kind, PreferencesPtr const& preferences)
        : Plain(name, kind, preferences) {
        level.setProperty("min", 2.0);
        level.setProperty("max", 1.0);
    }
};
Entry<BadAdvice> const badAdvice("Colormaps", "Bad advice");

class Picky : public Plain {
public:
    using Plain::Plain;
    bool update(VRequest& request, double precision) override {
        double now = 0;
        level.read(request.pool(), now);
        if (now > 0.9)
            throw std::runtime_error("too much");
        return Plain::update(request, precision);
    }
};
Entry<Picky> const picky("Colormaps", "Picky");

// --- The life cycle

class AlwaysDue : public Plain {
public:
    using Plain::Plain;
    bool must_update(VRequest const&, double) const override { return true; }
};
Entry<AlwaysDue> const alwaysDue("Colormaps", "Always due");

class NeverYounger : public Plain {
public:
    using Plain::Plain;
    bool update(VRequest& request, double) override {
        prism::OutputMap output(*this, request);
        if (output.isEmpty())
            output.hold(new Grey);
        if (auto* const map = output.as<Grey>())
            output.read(level, map->level);
        return output.publish();
    }
};
Entry<NeverYounger> const neverYounger("Colormaps", "Never younger");

/// One map for all pools.
class OneForAll : public Plain {
public:
    using Plain::Plain;
    bool update(VRequest& request, double precision) override {
        if (!map_)
            map_ = new Grey;
        prism::OutputMap output(*this, request);
        if (output.isEmpty())
            output.hold(map_.get());
        output.publish();
        return Plain::update(request, precision);
    }

private:
    ColormapPtr map_;
};
Entry<OneForAll> const oneForAll("Colormaps", "One for all");

class NoCopy : public Plain {
public:
    using Plain::Plain;
    ObjectPtr copy() const override { return {}; }
};
Entry<NoCopy> const noCopy("Colormaps", "No copy");

/// Knows none of its objects but the last.
struct Forgetful : Entry<Plain> {
    using Entry::Entry;
    ObjectPtr create(std::string const& name, Nucleo::Intercube const& context,
                     PreferencesPtr const& preferences) const override {
        for (WeakObjectPtr const& object : instances())
            removeInstance(*object);
        return Entry::create(name, context, preferences);
    }
};
Forgetful const forgetful("Colormaps", "Forgetful");

/// Takes whatever map it finds for one of its own.
class Careless : public Plain {
public:
    using Plain::Plain;
    bool update(VRequest& request, double precision) override {
        ColormapPtr map;
        readParameter(*output(), request.pool(), map);
        if (map)
            level.read(request.pool(), static_cast<Grey*>(map.get())->level);
        return Plain::update(request, precision);
    }
};
Entry<Careless> const careless("Colormaps", "Careless");

/// Shows the map of the first object of its name.
class Namesake : public Plain {
public:
    using Plain::Plain;
    bool update(VRequest& request, double precision) override {
        ColormapPtr map;
        for (WeakObjectPtr const& each : creator()->instances())
            if (each.get() != this && each->Name() == Name())
                readParameter(*dynamic_cast<Tincture&>(*each).output(), request.pool(), map);
        if (!map)
            return Plain::update(request, precision);
        prism::OutputMap output(*this, request);
        output.publishNow(map.get());
        return true;
    }
};
Entry<Namesake> const namesake("Colormaps", "Namesake");

// --- The map

class Locking : public Grey {
public:
    rgba_float_t getColor(double value) const override {
        std::scoped_lock const lock(mutex_);
        return Grey::getColor(value);
    }

private:
    mutable std::mutex mutex_;
};
Entry<Object<Locking>> const locking("Colormaps", "Locking");

class Talking : public Grey {
public:
    rgba_float_t getColor(double value) const override {
        if (value > 1e299)
            std::puts("a large one");
        return Grey::getColor(value);
    }
};
Entry<Object<Talking>> const talking("Colormaps", "Talking");

class OtherBytes : public Grey {
public:
    rgb8_t getColorRGB(int) const override { return {1, 2, 3}; }
};
Entry<Object<OtherBytes>> const otherBytes("Colormaps", "Other bytes");

class Growing : public Grey {
public:
    int getSize() const override { return ++size_; }

private:
    mutable int size_ = 1;
};
Entry<Object<Growing>> const growing("Colormaps", "Growing");

class Infinite : public Grey {
public:
    rgba_float_t getColor(double value) const override {
        return {static_cast<float>(1.0 / value), 0, 0, 1};
    }
};
Entry<Object<Infinite>> const infinite("Colormaps", "Infinite");

class Rounding : public Plain {
public:
    using Plain::Plain;
    bool update(VRequest& request, double precision) override {
        std::fesetround(FE_UPWARD);
        return Plain::update(request, precision);
    }
};
Entry<Rounding> const rounding("Colormaps", "Rounding");

class Dumb : public Grey {
public:
    rgba_float_t getColor(double value) const override {
        if (value > 1e299)
            throw std::out_of_range("no answer");
        return Grey::getColor(value);
    }
};

// --- Memory

/// Takes an object for made that is not.
class Swallowing : public Plain {
public:
    using Plain::Plain;
    bool update(VRequest& request, double precision) override {
        try {
            return Plain::update(request, precision);
        } catch (std::bad_alloc const&) {
            throw 7;
        }
    }
};
Entry<Swallowing> const swallowing("Colormaps", "Swallowing");

class Leaky : public Plain {
public:
    using Plain::Plain;
    char* lost = new char[100];
};
Entry<Leaky> const leaky("Colormaps", "Leaky");

/// Leaves some memory behind for each new value.
class Hoarding : public Plain {
public:
    using Plain::Plain;
    bool update(VRequest& request, double precision) override {
        double now = 0;
        level.read(request.pool(), now);
        if (now != last_)
            lost_ = new char[100];
        last_ = now;
        return Plain::update(request, precision);
    }

private:
    double last_ = 0;
    char* lost_ = nullptr;
};
Entry<Hoarding> const hoarding("Colormaps", "Hoarding");

// --- Threads

/// Starts a thread that outlives the update.
class Threaded : public Plain {
public:
    using Plain::Plain;
    ~Threaded() override {
        ends_ = true;
        if (thread_.joinable())
            thread_.join();
    }
    bool update(VRequest& request, double precision) override {
        if (!thread_.joinable())
            thread_ = std::thread([this] {
                while (!ends_)
                    std::this_thread::sleep_for(std::chrono::milliseconds(1));
            });
        return Plain::update(request, precision);
    }

private:
    std::atomic<bool> ends_{false};
    std::thread thread_;
};
Entry<Threaded> const threaded("Colormaps", "Threaded");

// --- Behind the others, whom it would speak for

Entry<Object<Dumb>> const dumb("Colormaps", "Dumb");

}  // namespace
