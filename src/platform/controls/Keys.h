#pragma once

namespace ballhaven::platform {

/// The character that the Enter key types.
inline constexpr char enterKey = '\r';

}  // namespace ballhaven::platform
