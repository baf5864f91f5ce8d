/// Making objects and bringing them up to date.
#include <mutex>

#include "benchmarks/allocations.hpp"
#include "benchmarks/groups.hpp"
#include "runtime/lattice/Catalogue.hpp"
#include "workbench/session/objects.hpp"

namespace benchmarks {

using namespace Orlo;
using workbench::create;
using workbench::request;

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
    for (WeakCreatorPtr const& entry : catalogue()) {
        std::string const key = entry->keyname("/");
        addBesideAllocations(first, key, [key] { request(*create(key), new ValuePool); });

        PoolPtr const pool = new ValuePool;
        ObjectPtr const object = create(key);
        request(*object, pool);
        addBesideAllocations(again, key, [object, pool] {
            VRequest pull(pool);
            object->update(pull, 0.0);
        });
        asked.rows.push_back({"`" + key + "`",
                              add("request " + key, [object, pool] { request(*object, pool); }),
                              {locked}});
    }
    return {first, again, asked};
}

}  // namespace benchmarks
