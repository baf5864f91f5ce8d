/// Values that hold a colour map.
#pragma once

#include <mutex>

#include "host/colormap/Colormap.hpp"
#include "host/pointers/threads.hpp"
#include "host/values/VValueParameter.hpp"
#include "runtime/lattice/AgedContent.hpp"

namespace Orlo {

/// A map has no text of its own to be read back from.
template <>
struct VELLUM_API VValueTrait<ColormapPtr> {
    /// Always false.
    static bool setValueFromText(ColormapPtr& value, std::string const& text);
    /// `A Colormap Object.`
    static std::string Text(ColormapPtr const& value);
};

/// The value of a colour-map output or input. The age of its content is that of the
/// map, since maps are rewritten in place.
///
/// Threads: a consumer may read the value while an update puts another map in
/// it, and gets the one or the other.
class VELLUM_API ColormapValue : public VValue<ColormapPtr>, public AgedContent {
public:
    ColormapValue();
    explicit ColormapValue(ColormapPtr const& map);
    ~ColormapValue() override;

    ValuePtr copy() const override;
    bool assign(ValuePtr const& other) override;
    bool differs(ValuePtr const& other) const override;
    bool getValue(ColormapPtr& target) const override;
    bool setValue(ColormapPtr const& source) override;
    /// The age of the map. [any]
    Nucleo::Ageable::Stamp contentAge() const override;

private:
    mutable std::mutex mutex_;  ///< guards the pointer, not the map
};

/// A new parameter that holds a colour map, at first none.
VELLUM_API ParameterPtr makeColormapParameter(std::string const& name);

}  // namespace Orlo
