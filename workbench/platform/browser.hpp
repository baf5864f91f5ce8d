/// The person's own browser.
#pragma once

#include <string>

namespace workbench {

/// Opens an address in the browser, and waits where the system's opener stays until the
/// browser is closed. False if there is no way to open one.
bool openInBrowser(std::string const& address);

}  // namespace workbench
