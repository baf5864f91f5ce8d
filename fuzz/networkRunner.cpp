/// Random networks, carried out and drawn.
///
/// Whatever the lines say, the network is carried out to its end, its viewers are
/// drawn, small, and it is saved with the lines that it was read from.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/require.hpp"
#include "workbench/common/errors.hpp"
#include "workbench/network/Network.hpp"
#include "workbench/nodes/NodeCreators.hpp"
#include "workbench/nodes/Viewer.hpp"

using namespace workbench;

namespace {

/// Sets a value, whether the network takes it or not.
void trySet(Network& network, std::string const& place, std::string const& text) {
    try {
        network.set(place, text);
    } catch (CallError const&) {
    }
}

/// Keeps what takes long small: pictures, and the samples of a field.
void makeSmall(Network& network) {
    for (std::string const& name : network.names()) {
        if (network.object(name)->slot("size"))
            trySet(network, name + ".size", "7x5");
        if (network.object(name)->slot("gridsize"))
            trySet(network, name + ".gridsize", "5");
    }
}

void draw(Network& network, std::string const& viewer) {
    try {
        render(*network.object(viewer), network.pool(viewer));
    } catch (WorkError const&) {  // a size that is connected to another
    }
    for (Complaint const& fault : network.faultsBehind(viewer))
        require(!fault.reason.empty() && fault.isFailure, "a fault without a reason", viewer);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    static NodeCreators const kinds;
    std::string const text(reinterpret_cast<char const*>(data), size);
    Network network;
    try {
        network.execute(Script::read(text));
    } catch (WorkError const&) {
        return 0;
    }
    require(network.save() == text, "a network is not saved as it was read", text);
    for (Complaint const& complaint : network.complaints())
        require(complaint.line >= 1 && !complaint.reason.empty(), "a complaint of nothing", text);
    makeSmall(network);
    for (std::string const& viewer : network.viewers())
        draw(network, viewer);
    return 0;
}
