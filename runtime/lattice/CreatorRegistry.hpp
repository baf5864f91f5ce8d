/// All creators of the process.
#pragma once

#include <map>
#include <mutex>
#include <typeindex>
#include <vector>

#include "host/creators/VCreatorBase.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// The creators that stand, and those of them that are registered as sources
/// of values, by type. Never destroyed: a plug-in that is torn down at process
/// exit still finds it. [any]
struct CreatorRegistry {
    std::mutex mutex;
    std::vector<WeakCreatorPtr> creators;
    std::map<std::type_index, std::vector<WeakInputCreatorPtr>> inputs;
};

CreatorRegistry& creatorRegistry();

}  // namespace Orlo
