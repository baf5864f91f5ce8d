/// Creators by the names of their types.
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "host/pointers/StrongPtr.hpp"

namespace Orlo {

/// Creators of one kind under the names of their types, the latest last.
template <class Creator>
class NamedCreators {
public:
    /// Never destroyed: a plug-in that is torn down at process exit still finds it.
    static NamedCreators& instance() {
        static auto* const all = new NamedCreators;
        return *all;
    }

    using Weak = Nucleo::WeakPtr<Creator, Creator>;

    void enter(std::string const& typeName, Weak const& creator) {
        std::scoped_lock const lock(mutex_);
        byName_[typeName].push_back(creator);
    }

    void remove(Weak const& creator) {
        std::scoped_lock const lock(mutex_);
        for (auto& [name, creators] : byName_)
            std::erase_if(creators, [&](Weak const& each) { return each == creator; });
        std::erase_if(byName_, [](auto const& entry) { return entry.second.empty(); });
    }

    Nucleo::StrongPtr<Creator, Creator> find(std::string const& typeName) {
        std::scoped_lock const lock(mutex_);
        auto const found = byName_.find(typeName);
        if (found == byName_.end())
            return nullptr;
        return found->second.back();
    }

    std::size_t size() {
        std::scoped_lock const lock(mutex_);
        std::size_t sum = 0;
        for (auto const& [name, creators] : byName_)
            sum += creators.size();
        return sum;
    }

private:
    std::mutex mutex_;
    std::map<std::string, std::vector<Weak>> byName_;
};

}  // namespace Orlo
