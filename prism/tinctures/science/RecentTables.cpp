#include "prism/tinctures/science/RecentTables.hpp"

#include <bit>
#include <cstdint>
#include <new>
#include <utility>

namespace prism {

namespace {

/// The backgrounds are compared by their bits: a NaN is like itself, and 0 is not
/// like -0.
using Bits = std::array<std::uint32_t, 4>;

struct Key {
    explicit Key(DistinctRequest const& request)
        : count(request.count),
          steps(request.steps),
          illuminant(request.illuminant.Equal("D50")),
          backgrounds{std::bit_cast<Bits>(request.background1),
                      std::bit_cast<Bits>(request.background2)} {}

    bool operator==(Key const&) const = default;

    int count, steps;
    bool illuminant;
    std::array<Bits, 2> backgrounds;
};

}  // namespace

struct RecentTables::Entry {
    Key key;
    Table table;
};

RecentTables::~RecentTables() {
    for (auto& place : places_)
        delete place.exchange(nullptr);
}

std::optional<RecentTables::Table> RecentTables::find(DistinctRequest const& request) {
    Key const wanted(request);
    for (auto& place : places_) {
        std::unique_ptr<Entry> entry(place.exchange(nullptr));
        if (entry && entry->key == wanted) {
            Table table = entry->table;  // if there is no memory for it, it is forgotten
            putInFront(std::move(entry));
            return table;
        }
        entry.reset(place.exchange(entry.release()));  // what came meanwhile goes
    }
    return std::nullopt;
}

void RecentTables::keep(DistinctRequest const& request, Table const& table) noexcept {
    if (table.size() > MostColors)
        return;
    try {
        putInFront(std::make_unique<Entry>(Entry{Key(request), table}));
    } catch (std::bad_alloc const&) {
        return;  // it is selected again the next time
    }
}

/// The others move one place back, up to the first empty one; the last one goes.
void RecentTables::putInFront(std::unique_ptr<Entry> entry) noexcept {
    for (auto& place : places_) {
        if (!entry)
            return;
        entry.reset(place.exchange(entry.release()));
    }
}

}  // namespace prism
