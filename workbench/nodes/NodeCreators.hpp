/// The host's own entries of the catalogue.
#pragma once

#include <memory>

namespace workbench {

/// While one of these stands, the catalogue has the kinds that the host itself
/// provides: `CreateBundle/RadialScalarField`, `Strand/Grid`,
/// `Strand/Scalarfield`, `Display/OrthoSlice`, `Legend/ColorLegend`,
/// `Legend/ShowRange`, `Create/GlobalTime`, `Create/Range100`.
///
/// Its end deletes all their objects that are left, whoever holds them.
/// Threads: construction and destruction are [host].
class NodeCreators {
public:
    NodeCreators();
    NodeCreators(NodeCreators const&) = delete;
    NodeCreators& operator=(NodeCreators const&) = delete;
    ~NodeCreators();

private:
    struct Entries;
    std::unique_ptr<Entries> entries_;
};

}  // namespace workbench
