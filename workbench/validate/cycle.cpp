/// The life cycle: updates, pools, copies, and the end of objects and maps.
#include <algorithm>
#include <array>

#include "workbench/platform/FailingAllocation.hpp"
#include "workbench/validate/Host.hpp"
#include "workbench/validate/colours.hpp"
#include "workbench/validate/texts.hpp"

namespace workbench::validate {

namespace {

using namespace Orlo;

/// Some scalars that say whether a map is what it was.
std::vector<double> const& fewScalars() {
    static std::vector<double> const all = scalarsTo(257);
    return all;
}

/// A map that no object of the plug-in has made. Where others have their numbers it has
/// some too, so that it is seen if somebody takes it for his own and writes into it.
class ForeignMap : public Colormap {
public:
    ForeignMap() { numbers_.fill(Number); }
    int getMin() const override { return 0; }
    int getMax() const override { return 1; }
    int getSize() const override { return 2; }
    rgba_float_t getColor(double) const override {
        bool const whole =
            std::ranges::all_of(numbers_, [](double number) { return number == Number; });
        return {0.25F, 0.5F, 0.75F, whole ? 1.0F : 0.0F};
    }
    std::string getLabel() const override { return {}; }
    std::intptr_t getExtra() const override { return 0; }

private:
    static constexpr double Number = 0.375;
    std::array<double, 128> numbers_;
};

/// Puts a map into the object's output for a pool.
void place(VObject const& object, PoolPtr const& pool, ColormapPtr const& map) {
    for (SlotPtr const& slot : mapOutputsOf(object)) {
        ValuePtr const value = valueInPool(*slot->ownParameter(), pool, true);
        StrongPtr<VTypedValueBase<ColormapPtr>, VValueBase> const output(value);
        output->setValue(map);
    }
}

/// Deletes all objects of an entry, of which this is one.
void deleteAll(VCreatorBase const& entry, VObject const& one) {
    entry.deleteAllInstances(typeid(one));
}

void publishes(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        VRequest request(pool);
        require(object->request(request, 0, nullptr, nullptr), "it does not answer a request");
        require(bool(mapOf(*object, pool)), "a request leaves no map in its output");
        require(forceUpdate(*object, pool), "update gives false");
        require(bool(mapOf(*object, pool)), "after a second update its output holds no map");
    });
}

void mustUpdate(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        VRequest request(pool);
        require(object->must_update(request, 0), "a fresh object says that no update is due");
        updated(*object, pool);
        VRequest again(pool);
        require(!object->must_update(again, 0), "an update is due still when one was just done");
    });
}

void idle(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        ColormapPtr const map = updated(*object, pool);
        Colours const before = coloursOf(*map, fewScalars());
        Nucleo::Ageable::Stamp const age = map->age();
        for (int i = 0; i < 3; ++i) {
            ColormapPtr const again = updated(*object, pool);
            require(again.get() == map.get() && again->age() == age,
                    "a request without any change makes another map, or an older one younger");
        }
        for (int i = 0; i < 3; ++i) {
            forceUpdate(*object, pool);
            std::string const change = difference(*mapOf(*object, pool), fewScalars(), before);
            require(change.empty(), "after an update without need " + change);
        }
    });
}

void pools(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const one = newPool(), two = newPool();
        ColormapPtr const first = updated(*object, one);
        ColormapPtr const second = updated(*object, two);
        require(first.get() != second.get(), "two pools have one map");
        Colours const before = coloursOf(*first, fewScalars());
        for (SlotPtr const& slot : inputsOf(*object))
            if (std::string const other = otherText(*slot->ownParameter()); !other.empty())
                setParameter(*object, slot->name(), other, two);
        updated(*object, two);
        std::string const change = difference(*first, fewScalars(), before);
        require(change.empty(), "after parameters were set in another pool " + change);
        require(mapOf(*object, one).get() == first.get(),
                "after an update in another pool another map stands in the output");
    });
}

void age(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        for (SlotPtr const& slot : inputsOf(*object)) {
            std::string const other = otherText(*slot->ownParameter());
            if (other.empty())
                continue;
            ColormapPtr const map = updated(*object, pool);
            Nucleo::Ageable::Stamp const before = map->age();
            setParameter(*object, slot->name(), other);
            ColormapPtr const now = updated(*object, pool);
            require(now.get() != map.get() || now->age() > before,
                    "when the parameter " + inQuotes(slot->name()) +
                        " changes, the same map stands there and is no younger");
        }
    });
}

void foreignMap(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const&, ObjectPtr const& object) {
        PoolPtr const pool = newPool();
        ColormapPtr const foreign(new ForeignMap);
        Colours const before = coloursOf(*foreign, fewScalars());
        place(*object, pool, foreign);
        for (int i = 0; i < 3; ++i)
            forceUpdate(*object, pool);
        std::string const change = difference(*foreign, fewScalars(), before);
        require(change.empty(), "of a map of another object " + change);
        require(bool(mapOf(*object, pool)), "its output holds no map");
        place(*object, pool, nullptr);
        require(bool(updated(*object, pool)), "no map comes when the foreign one has gone");
    });
}

void mapOutlives(Trial& trial) {
    withEntries(trial, [](WeakCreatorPtr const& entry) {
        for (bool const byCreator : {false, true}) {
            ColormapPtr map;
            Colours before;
            SpoiledMemory const spoils;
            {
                ObjectPtr object = create(entry);
                if (mapOutputsOf(*object).empty())
                    return;
                map = updated(*object, newPool());
                before = coloursOf(*map, fewScalars());
                if (byCreator)
                    deleteAll(*entry, *object);
            }
            // Where the memory of the object is not spoiled, others take it.
            std::vector<std::string> others;
            for (std::size_t size = 16; size < 4096; size += 16)
                others.emplace_back(size, '\xdb');
            std::string const change = difference(*map, fewScalars(), before);
            require(change.empty(), "after its object was deleted, " + change);
            static_cast<void>(map->getLabel());
        }
    });
}

void deletesAll(Trial& trial) {
    withEntries(trial, [](WeakCreatorPtr const& entry) {
        ObjectPtr const objects[] = {create(entry), create(entry), create(entry)};
        deleteAll(*entry, *objects[0]);
        for (ObjectPtr const& object : objects)
            require(!object, "an object lives on when its creator has deleted all");
        require(entry->instances().empty(), "the entry still knows objects that it has deleted");
        require(bool(create(entry)), "it makes no object when it has deleted all");
    });
}

void objectsGo(Trial& trial) {
    withEntries(trial, [](WeakCreatorPtr const& entry) {
        for (bool const poolGoesFirst : {false, true}) {
            ObjectPtr object = create(entry);
            PoolPtr pool = newPool();
            update(*object, pool);
            if (poolGoesFirst)
                pool = nullptr;
            object = nullptr;
            require(entry->instances().empty(), "an object lives on when nobody holds it");
        }
    });
}

void sameName(Trial& trial) {
    withMaps(trial, [](WeakCreatorPtr const& entry, ObjectPtr const&) {
        ObjectPtr const one = create(entry, "twin"), two = create(entry, "twin");
        PoolPtr const pool = newPool();
        ColormapPtr const map = updated(*one, pool);
        Colours const before = coloursOf(*map, fewScalars());
        for (SlotPtr const& slot : inputsOf(*two))
            if (std::string const other = otherText(*slot->ownParameter()); !other.empty())
                setParameter(*two, slot->name(), other, pool);
        require(updated(*two, pool).get() != map.get(), "two objects of one name have one map");
        updated(*one, pool);
        std::string const change = difference(*mapOf(*one, pool), fewScalars(), before);
        require(change.empty(), "when another object of the same name is set, " + change);
    });
}

void copies(Trial& trial) {
    withEntries(trial, [&](WeakCreatorPtr const& entry) {
        ObjectPtr const object = create(entry);
        for (SlotPtr const& slot : inputsOf(*object))
            setParameter(*object, slot->name(), randomText(*slot->ownParameter(), trial));
        ObjectPtr const copy = object->copy();
        require(copy && copy.get() != object.get(), "it makes no copy of its object");
        require(copy->type_key() == object->type_key(), "a copy is of another entry");
        for (SlotPtr const& slot : inputsOf(*object)) {
            SlotPtr const other = copy->slot(slot->name());
            require(bool(other), "a copy lacks the parameter " + inQuotes(slot->name()));
            require(other->ownParameter()->ownValue()->text() ==
                        slot->ownParameter()->ownValue()->text(),
                    "a copy has another value of " + inQuotes(slot->name()));
        }
    });
}

}  // namespace

std::vector<Test> cycleTests() {
    return {
        {"cycle/publishes",
         "An update that is asked for returns true and leaves a map in the output.",
         {"catalogue/creates"},
         publishes},
        {"cycle/must-update",
         "An update is due of a fresh object, and not after it was done.",
         {"cycle/publishes"},
         mustUpdate},
        {"cycle/objects-go",
         "An object goes when nobody holds it any more, and its pool may go first.",
         {"cycle/publishes"},
         objectsGo},
        {"cycle/deletes-all",
         "An entry deletes all its objects, whoever holds them.",
         {"cycle/objects-go"},
         deletesAll},
        {"cycle/idle",
         "A request without a change does nothing, and an update without need changes no colour.",
         {"map/same-twice"},
         idle},
        {"cycle/pools",
         "Each value pool has a map of its own.",
         {"cycle/map-outlives-object"},
         pools},
        {"cycle/age",
         "When a parameter changes, consumers find another map or a younger one.",
         {"map/same-twice"},
         age},
        {"cycle/foreign-map",
         "A map of another object in the output is left as it is.",
         {"map/same-twice"},
         foreignMap},
        {"cycle/map-outlives-object",
         "A map that a consumer holds answers the same when its object has gone.",
         {"map/same-twice"},
         mapOutlives},
        {"cycle/same-name",
         "Two objects of one name are two objects.",
         {"cycle/map-outlives-object"},
         sameName},
        {"cycle/copies",
         "A copy of an object has its entry and its values.",
         {"catalogue/creates"},
         copies},
    };
}

}  // namespace workbench::validate
