/// What stands at the other end of the streams.
#pragma once

namespace workbench {

/// Whether standard error goes to a terminal, where somebody may watch.
bool errorsGoToTerminal();

}  // namespace workbench
