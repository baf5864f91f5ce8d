/// The base of colour-map objects.
#pragma once

#include <memory>
#include <string>

#include "host/colormap/Colormap.hpp"
#include "host/object/VObject.hpp"
#include "host/pointers/threads.hpp"

namespace Orlo {

/// A node with one output, a `ColormapPtr`.
///
/// The map that an object publishes lives in the value pool of the request, so
/// that there is one for each pool; the object keeps none itself.
class VELLUM_API Tincture : public VObject {
public:
    Tincture(std::string const& name, int kind, PreferencesPtr const& preferences,
             std::string const& outputName);
    ~Tincture() override;

    /// Renders the icon of the given map. An empty map gives an empty icon.
    /// [updater]
    void createIcon(ColormapPtr const& map);
    /// The icon made last, as the text of an XPM image. [any]
    std::string xpm_icon() const override;
    /// How many icons were made so far. [any]
    unsigned iconCount() const noexcept;

    /// The output. It exists for every constructed object.
    ParameterPtr const& output() const noexcept { return colormapOutput; }

protected:
    ParameterPtr colormapOutput;

private:
    struct Icon;
    std::unique_ptr<Icon> icon_;
};

}  // namespace Orlo
