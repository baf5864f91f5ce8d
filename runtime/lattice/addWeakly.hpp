/// Lists of weak pointers.
#pragma once

#include <cstddef>
#include <vector>

namespace Orlo {

/// Appends a weak pointer to a list and takes the dead ones out before the list
/// grows to more than twice of what was alive at the last sweep. So a pointer
/// costs the same in a long list and a short one, and the dead do not pile up.
/// `sizeAtNextSweep` belongs to the list and starts with 0.
template <class Weak>
void addWeakly(std::vector<Weak>& list, Weak const& fresh, std::size_t& sizeAtNextSweep) {
    if (list.size() >= sizeAtNextSweep) {
        std::erase_if(list, [](Weak const& each) { return !each.alive(); });
        sizeAtNextSweep = 2 * list.size() + 8;
    }
    list.push_back(fresh);
}

}  // namespace Orlo
