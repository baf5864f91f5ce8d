#include "host/object/VRequest.hpp"

#include <atomic>

namespace Orlo {

VRequest::VRequest(PoolPtr const& valuePool) : values_(valuePool) {
    static std::atomic<std::uint64_t> count{0};
    id_ = ++count;
}

}  // namespace Orlo
