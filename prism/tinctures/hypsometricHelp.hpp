/// The help text that the maps of elevation tints give.
#pragma once

#include <string>

#include "host/object/VObject.hpp"

namespace prism {

/// A link, a long text with that link, or a short text. The blanks, the double
/// ones included, are part of the texts.
inline std::string hypsometricHelp(Orlo::VObject::HelpType type) {
    std::string link = "https://en.wikipedia.org/wiki/Hypsometric_tints";
    std::string shortText =
        "A colormap specifically useful for Bathymetric and topographic displays, providing  "
        "bluish colors for low values and green/yellow/brownish tones for large values. ";
    switch (type) {
    case Orlo::VObject::HelpLink:
        return link;
    case Orlo::VObject::LongHelp:
        return shortText + " This color scheme is known as <A HREF=\"" + link +
               "\"> hypsometric tints</A>.<BR> ";
    default:
        return shortText;
    }
}

}  // namespace prism
