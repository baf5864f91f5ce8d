/// Tables of colours that were asked for a short while ago.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "prism/tinctures/science/distinctColors.hpp"

namespace prism {

/// Remembers the last few selections, so that an update that finds its parameters
/// as they were need not select anew.
///
/// Bounded: `Places` tables of at most `MostColors` colours. Threads: any, without
/// waiting. A table that somebody is just looking at counts as forgotten for all
/// others; whoever misses one selects it again.
class RecentTables {
public:
    using Table = std::vector<Tessar::rgba_float_t>;

    static constexpr std::size_t Places = 4;
    static constexpr std::size_t MostColors = 4096;

    constexpr RecentTables() noexcept = default;
    RecentTables(RecentTables const&) = delete;
    RecentTables& operator=(RecentTables const&) = delete;
    ~RecentTables();

    /// The table of the very same request, to the last bit of each background.
    std::optional<Table> find(DistinctRequest const& request);

    /// Remembers a table in the place of the one that nobody has asked for the
    /// longest. It does without where there is no memory for it.
    void keep(DistinctRequest const& request, Table const& table) noexcept;

private:
    struct Entry;

    void putInFront(std::unique_ptr<Entry> entry) noexcept;

    /// The latest first. Whoever looks at an entry has taken it out.
    std::array<std::atomic<Entry*>, Places> places_{};
};

}  // namespace prism
