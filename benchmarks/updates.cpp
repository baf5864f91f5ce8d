/// Making objects and bringing them up to date.
#include <mutex>

#include "benchmarks/allocations.hpp"
#include "benchmarks/groups.hpp"
#include "benchmarks/objects.hpp"
#include "runtime/lattice/Catalogue.hpp"

namespace benchmarks {

using namespace Orlo;

std::vector<std::string> keys() {
    std::vector<std::string> found;
    for (WeakCreatorPtr const& creator : catalogue())
        found.push_back(creator->keyname("/"));
    return found;
}

PoolPtr makePool() {
    return new ValuePool;
}

ObjectPtr create(std::string const& key) {
    return findCreator(key)->create({}, Nucleo::Intercube(), nullptr);
}

ColormapPtr update(VObject& object, PoolPtr const& pool) {
    VRequest request(pool);
    object.request(request, 0.0, nullptr, nullptr);
    ColormapPtr map;
    readParameter(*dynamic_cast<Tincture&>(object).output(), pool, map);
    return map;
}

namespace {

template <class Operation>
std::string add(std::string const& name, Operation operation) {
    benchmark::RegisterBenchmark(name.c_str(), [operation](benchmark::State& state) {
        for ([[maybe_unused]] auto _ : state)
            operation();
        state.SetItemsProcessed(state.iterations());
    });
    return name;
}

/// An operation beside nothing but its allocations.
template <class Operation>
void addBesideAllocations(Group& group, std::string const& key, Operation operation) {
    operation();  // what is made once in a process
    std::vector<std::size_t> const sizes = allocationsOf(operation);
    std::string const name = group.title + " " + key;
    group.rows.push_back({"`" + key + "`, " + std::to_string(sizes.size()) + " allocations",
                          add(name, operation),
                          {add(name + ", floor", [sizes] { allocateAgain(sizes); })}});
}

}  // namespace

std::vector<Group> updates() {
    Group first{"Create and update for the first time", {"its allocations alone"}, {}};
    Group again{"Update without a change", {"its allocations alone"}, {}};
    Group asked{"Request without a change", {"lock and unlock of a mutex"}, {}};
    std::string const locked = add(
        "mutex", [mutex = std::make_shared<std::mutex>()] { std::scoped_lock const lock(*mutex); });
    for (std::string const& key : keys()) {
        addBesideAllocations(first, key, [key] { update(*create(key), makePool()); });

        PoolPtr const pool = makePool();
        ObjectPtr const object = create(key);
        update(*object, pool);
        addBesideAllocations(again, key, [object, pool] {
            VRequest request(pool);
            object->update(request, 0.0);
        });
        asked.rows.push_back({"`" + key + "`",
                              add("request " + key,
                                  [object, pool] {
                                      VRequest request(pool);
                                      object->request(request, 0.0, nullptr, nullptr);
                                  }),
                              {locked}});
    }
    return {first, again, asked};
}

}  // namespace benchmarks
