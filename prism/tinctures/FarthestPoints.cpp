#include "prism/tinctures/FarthestPoints.hpp"

namespace prism {

namespace {

/// The plain form: one pass over all candidates for each colour taken.
class Search {
public:
    explicit Search(std::vector<LabPoint>& candidates) : candidates_(candidates) {}

    /// Takes a colour, and finds the candidate that is the farthest from all
    /// taken ones. The order of the sums and the strict comparisons decide ties.
    void take(LabPoint const taken) {
        double greatest = 0.0;
        for (std::size_t i = 0; i < candidates_.size(); ++i) {
            LabPoint& candidate = candidates_[i];
            double const a = taken.a - candidate.a;
            double const L = taken.L - candidate.L;
            double const b = taken.b - candidate.b;
            double const d = (a * a + L * L) + b * b;
            if (candidate.nearest > d)
                candidate.nearest = d;
            if (candidate.nearest > greatest) {
                greatest = candidate.nearest;
                best_ = i;
            }
        }
        exhausted_ = greatest == 0.0;
    }

    /// The candidate found; before and without any, the first.
    std::size_t best() const noexcept { return best_; }
    /// Whether all candidates coincide with taken colours, so that no further
    /// colour can change the best.
    bool isExhausted() const noexcept { return exhausted_; }

private:
    std::vector<LabPoint>& candidates_;
    std::size_t best_ = 0;
    bool exhausted_ = false;
};

}  // namespace

std::vector<std::size_t> farthestPoints(std::vector<LabPoint> candidates,
                                        std::vector<LabPoint> const& backgrounds,
                                        std::size_t count) {
    std::vector<std::size_t> picks;
    if (candidates.empty() || count == 0)
        return picks;
    picks.reserve(count);
    Search search(candidates);
    for (LabPoint const& background : backgrounds)
        search.take(background);
    picks.push_back(search.best());
    while (picks.size() < count && !search.isExhausted()) {
        search.take(candidates[search.best()]);
        picks.push_back(search.best());
    }
    picks.resize(count, search.best());
    return picks;
}

}  // namespace prism
