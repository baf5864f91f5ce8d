/// The name under which plug-in and host know their interface.
#pragma once

namespace Orlo {

/// The interface token: these sixteen characters themselves, not the value of
/// the macro that bears the name. It is never expanded.
inline constexpr char InterfaceToken[] = "TELM_API_VERSION";

}  // namespace Orlo
