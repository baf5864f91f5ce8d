/// The steps of which the updates of all colour-map objects are made.
#pragma once

#include <typeinfo>

#include "host/object/Tincture.hpp"
#include "host/values/TypedSlot.hpp"

namespace prism {

/// The map in the output of a colour-map object, during one update.
///
/// An update is a composition of these steps; which ones an object takes, and in
/// what order, is what tells the objects apart. Two compositions that several
/// objects share have names: `makeOnce` and `rewrite`, below.
///
///     OutputMap output(*this, request);      // the map that stands there
///     if (output.isEmpty())
///         output.hold(new Ramp);             // or publishNow, the early publish
///     if (auto* map = output.as<Ramp>()) {   // another object's map is left alone
///         output.read(color, map->color);    // the parameters, in their order
///         output.refresh();                  // drop the cache, draw, touch
///     }
///     return output.publish();
class OutputMap {
public:
    /// Reads the map that stands in the output for the request's pool.
    OutputMap(Orlo::Tincture& object, Orlo::VRequest const& request)
        : object_(object), output_(object.output()), pool_(request.pool()) {
        Orlo::readParameter(*output_, pool_, map_);
    }

    /// Whether no live map stands there.
    bool isEmpty() const { return !map_.alive(); }

    /// Puts a new map into the place of the one held here; nobody sees it yet.
    void hold(Orlo::Colormap* fresh) { map_ = fresh; }

    /// The same, and lets everybody see it at once.
    void publishNow(Orlo::Colormap* fresh) {
        hold(fresh);
        publish();
    }

    /// The map as this object's own class, or null if it is another object's.
    ///
    /// Compared by address, which each source's class has for itself. Classes of
    /// several sources have one name, and some compilers' `dynamic_cast` compares
    /// nothing but the names.
    template <class Own>
    Own* as() const {
        Orlo::Colormap* const map = map_.get();
        return map != nullptr && &typeid(*map) == &typeid(Own) ? static_cast<Own*>(map) : nullptr;
    }

    /// Reads a parameter; a slot without a value leaves the field as it was.
    template <class T>
    void read(Orlo::TypedSlot<T> const& slot, T& field) const {
        slot.read(pool_, field);
    }

    /// Whether the slot has changed since the object's last finished update.
    bool hasChanged(Orlo::SlotPtr const& slot) const { return object_.hasChanged(slot, pool_); }

    /// The pool in which this update works.
    Orlo::PoolPtr const& pool() const noexcept { return pool_; }

    /// Drops the cache that a consumer may have left, draws the icon, and makes
    /// the map the youngest of all objects.
    void refresh() const {
        dropCache();
        drawIcon();
        touch();
    }

    // The steps of `refresh`, for the objects that leave one out or take another
    // order, and what some do instead of a touch. They need a map of any
    // class.
    void dropCache() const { map_->cachedChunk = nullptr; }
    void drawIcon() const { object_.createIcon(map_); }
    void touch() const { map_->touch(); }
    /// Makes the map at least as young as the youngest of the object's inputs.
    void raiseAge() const { map_->raiseAge(object_.age(pool_)); }
    /// Makes the map at least as young as one of them.
    void raiseAge(Orlo::SlotPtr const& slot) const { map_->raiseAge(slot->age(pool_)); }

    /// Offers the map to the output, and tells its listeners. Always true, as
    /// the result of an update is.
    bool publish() const {
        Orlo::StrongPtr<Orlo::VTypedValueBase<Orlo::ColormapPtr>, Orlo::VValueBase> const value(
            Orlo::valueInPool(*output_, pool_, output_->keepsLocalValues()));
        if (value && value->setValue(map_))
            output_->notifyValueChange(value, pool_, "", nullptr, nullptr, nullptr);
        return true;
    }

private:
    Orlo::Tincture& object_;
    Orlo::ParameterPtr const output_;
    Orlo::PoolPtr const pool_;
    Orlo::ColormapPtr map_;
};

/// The update of objects without parameters: a map made once serves for ever.
template <class Map>
bool makeOnce(Orlo::Tincture& object, Orlo::VRequest const& request) {
    OutputMap output(object, request);
    if (output.isEmpty())
        output.hold(new Map);
    if (output.as<Map>() != nullptr)
        output.refresh();
    return output.publish();
}

/// The update of objects that rewrite one map: a new one is published at once,
/// and then `readParameters(output, map)` writes into the fields of the map that
/// everybody sees.
template <class Map, class ReadParameters>
bool rewrite(Orlo::Tincture& object, Orlo::VRequest const& request,
             ReadParameters const& readParameters) {
    OutputMap output(object, request);
    if (output.isEmpty())
        output.publishNow(new Map);
    if (Map* const map = output.as<Map>()) {
        readParameters(output, *map);
        output.refresh();
    }
    return output.publish();
}

/// The own `must_update` of most objects: whether no live map stands in the
/// output. That a parameter has changed is for the host to see.
inline bool hasNoMap(Orlo::Tincture const& object, Orlo::VRequest const& request) {
    Orlo::ColormapPtr map;
    Orlo::readParameter(*object.output(), request.pool(), map);
    return !map.alive();
}

}  // namespace prism
