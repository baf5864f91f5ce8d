/// The person's own browser.
#pragma once

#include <string>

namespace workbench {

/// Opens an address in the browser. False if the system has no way to do so.
bool openInBrowser(std::string const& address);

}  // namespace workbench
