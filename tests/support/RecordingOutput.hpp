/// An output that records how an object publishes.
#pragma once

#include <vector>

#include "host/object/Tincture.hpp"

namespace tests {

/// What an object offered to its output, and what stood at that moment.
struct Offer {
    Orlo::ColormapPtr map;
    Nucleo::Ageable::Stamp mapAge;  ///< age of the map when it was offered
    unsigned icons;                 ///< icons that the object had made by then
    int least, greatest;            ///< what the map answered as its domain
    bool labelled;                  ///< whether it had a label or an extra
};

/// Puts a value object of its own into the pool, where the object's output
/// finds it, and listens to the output. Make it before the first update.
///
///     RecordingOutput output(*object, pool);
///     update(*object, pool);
///     EXPECT_EQ(output.offers().size(), 1u);
class RecordingOutput {
public:
    RecordingOutput(Orlo::VObject& object, Orlo::PoolPtr const& pool);
    RecordingOutput(RecordingOutput const&) = delete;
    RecordingOutput& operator=(RecordingOutput const&) = delete;
    ~RecordingOutput();

    /// Puts a map into the output by hand; nothing is recorded.
    void place(Orlo::ColormapPtr const& map);

    /// What `setValue` answers from now on; at first true.
    void answer(bool changed);

    /// The calls of `setValue` since the last `clear`, in their order.
    std::vector<Offer> const& offers() const;
    /// Notifications of this pool's value since the last `clear`.
    int notifications() const;
    /// Icons that the object has made since the last `clear`.
    unsigned icons() const;
    /// The map that stands in the output now.
    Orlo::ColormapPtr map() const;

    /// Forgets what was recorded; the map stays.
    void clear();

private:
    class Value;
    class Listener;

    Orlo::Tincture& object_;
    Nucleo::StrongPtr<Value, Orlo::VValueBase> value_;
    Nucleo::StrongPtr<Listener, Orlo::ValueNotifier> listener_;
    unsigned iconsBefore_ = 0;
};

}  // namespace tests
