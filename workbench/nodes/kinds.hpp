/// The host's own kinds of objects: entries of the catalogue, one for each
/// source, and host objects.
#pragma once

#include <memory>
#include <string>

#include "host/creators/VSource.hpp"

namespace workbench {

using Entry = std::unique_ptr<Orlo::VCreatorBase>;

/// The entry of the class `X`, in the catalogue until it is deleted.
template <class X>
Entry makeEntry(char const* category, char const* name, char const* description) {
    using namespace Orlo;
    return std::make_unique<Nucleo::Auto<VCreator<X>>>(
        VCreatorProperties(DescriptionIs(description), NameIs(name), CategoryIs(category)), 0,
        PreferencesPtr(), false, InterfaceToken);
}

Entry colorLegendEntry();
Entry globalTimeEntry();
Entry gridEntry();
Entry orthoSliceEntry();
Entry radialScalarFieldEntry();
Entry range100Entry();
Entry scalarfieldEntry();
Entry showRangeEntry();

Orlo::ObjectPtr makeCamera(std::string const& name);
Orlo::ObjectPtr makeChartSelector(std::string const& name);
Orlo::ObjectPtr makeScene(std::string const& name);
Orlo::ObjectPtr makeViewer(std::string const& name);

}  // namespace workbench
