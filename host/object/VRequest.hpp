/// Requests for up-to-date outputs.
#pragma once

#include <cstdint>

#include "host/values/ValuePool.hpp"

namespace Orlo {

/// One request that runs through the network, from consumer to providers.
///
/// It carries the value pool in which values are read and outputs written.
/// Threads: a request belongs to the thread that makes it.
class LATTICE_API VRequest {
public:
    explicit VRequest(PoolPtr const& valuePool);

    PoolPtr const& pool() const noexcept { return values_; }
    /// Unique in the process.
    std::uint64_t number() const noexcept { return id_; }

private:
    friend class VObject;

    PoolPtr values_;
    std::uint64_t id_;
    VObject const* due_ = nullptr;        ///< whose providers are done: its turn is next
    VObject const* unchanged_ = nullptr;  ///< whose inputs were just found unchanged
};

}  // namespace Orlo
