#include "prism/tinctures/science/plainFarthestPoints.hpp"

namespace prism {

std::vector<RgbTriple> plainGrid(RgbGrid const& grid) {
    std::vector<RgbTriple> points;
    for (int i = 0; i < grid.steps(); ++i)
        for (int j = 0; j < grid.steps(); ++j)
            for (int k = 0; k < grid.steps(); ++k)
                points.push_back({grid.channel(i), grid.channel(j), grid.channel(k)});
    return points;
}

namespace {

/// One pass over all candidates with a colour just taken: `best` ends at the
/// candidate that is the farthest from all taken ones.
void plainPass(std::vector<LabPoint>& candidates, LabPoint const taken, std::size_t& best) {
    double greatest = 0.0;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        LabPoint& candidate = candidates[i];
        double const a = taken.a - candidate.a;
        double const L = taken.L - candidate.L;
        double const b = taken.b - candidate.b;
        double const d = (a * a + L * L) + b * b;
        if (candidate.nearest > d)
            candidate.nearest = d;
        if (candidate.nearest > greatest) {
            greatest = candidate.nearest;
            best = i;
        }
    }
}

}  // namespace

std::vector<std::size_t> plainFarthestPoints(std::vector<LabPoint> candidates,
                                             std::vector<LabPoint> const& backgrounds,
                                             std::size_t count) {
    std::vector<std::size_t> picks;
    std::size_t best = 0;
    for (LabPoint const& background : backgrounds)
        plainPass(candidates, background, best);
    while (picks.size() < count) {
        picks.push_back(best);
        plainPass(candidates, candidates[best], best);
    }
    return picks;
}

}  // namespace prism
