#include "runtime/lattice/TypeRegistry.hpp"

#include <algorithm>
#include <map>
#include <mutex>

namespace Orlo {

namespace {

/// Creators of one kind under the names of their types, the latest last.
template <class Creator>
class Registry {
public:
    using Weak = WeakPtr<Creator, Creator>;

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

    StrongPtr<Creator, Creator> find(std::string const& typeName) {
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

/// Never destroyed: a plug-in that is torn down at process exit still finds it.
template <class Creator>
Registry<Creator>& registry() {
    static auto* const instance = new Registry<Creator>;
    return *instance;
}

}  // namespace

VValueCreator::VValueCreator() = default;

VValueCreator::~VValueCreator() {
    registry<VValueCreator>().remove(WeakPtr<VValueCreator, VValueCreator>(this));
}

void VValueCreator::registerCreator(WeakPtr<VValueCreator, VValueCreator> const& creator,
                                    std::string const& typeName) {
    registry<VValueCreator>().enter(typeName, creator);
}

TypedSlotCreator::TypedSlotCreator() = default;
TypedSlotCreator::~TypedSlotCreator() = default;

std::atomic<unsigned> TypedSlotCreator::InternalTypeCreatorAccessory{0};

void TypedSlotCreator::registerTypedSlotCreator(std::type_info const&, Weak const& creator,
                                                std::string const& typeName) {
    registry<TypedSlotCreator>().enter(typeName, creator);
}

void TypedSlotCreator::unregisterTypedSlotCreator(std::type_info const&, Weak const& creator,
                                                  std::string const&) {
    registry<TypedSlotCreator>().remove(creator);
}

StrongPtr<VValueCreator, VValueCreator> findValueCreator(std::string const& typeName) {
    return registry<VValueCreator>().find(typeName);
}

StrongPtr<TypedSlotCreator, TypedSlotCreator> findSlotCreator(std::string const& typeName) {
    return registry<TypedSlotCreator>().find(typeName);
}

std::size_t typeCreatorCount() {
    return registry<VValueCreator>().size() + registry<TypedSlotCreator>().size();
}

}  // namespace Orlo
