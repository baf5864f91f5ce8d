/// A family of counted classes to try the pointers on.
#pragma once

#include <functional>
#include <ostream>

#include "host/pointers/StrongPtr.hpp"

namespace tests {

/// Tells when it is about to go, and when it goes.
class Root : public Nucleo::ReferenceBase<Root> {
public:
    explicit Root(int* deaths = nullptr) : deaths_(deaths) {}
    ~Root() override {
        if (atDeath)
            atDeath();
        if (deaths_ != nullptr)
            ++*deaths_;
    }
    void finalUnction() override {
        if (atUnction)
            atUnction();
    }

    std::function<void()> atUnction;
    std::function<void()> atDeath;

private:
    int* deaths_;
};

class Leaf : public Root {
public:
    using Root::Root;
};

class OtherLeaf : public Root {
public:
    using Root::Root;
};

using StrongRoot = Nucleo::StrongPtr<Root, Root>;
using StrongLeaf = Nucleo::StrongPtr<Leaf, Root>;
using StrongOther = Nucleo::StrongPtr<OtherLeaf, Root>;
using WeakRoot = Nucleo::WeakPtr<Root, Root>;
using WeakLeaf = Nucleo::WeakPtr<Leaf, Root>;
using Block = Nucleo::ControlBlock<Root>;

/// Both counts of a block.
struct Counts {
    int strong, weak;
    bool operator==(Counts const&) const = default;
    friend std::ostream& operator<<(std::ostream& out, Counts const& counts) {
        return out << "strong " << counts.strong << ", weak " << counts.weak;
    }
};

template <class Pointer>
Counts countsOf(Pointer const& pointer) {
    return {pointer.controlBlock()->strongNow(), pointer.controlBlock()->weakNow()};
}

}  // namespace tests
