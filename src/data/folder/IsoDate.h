#pragma once

#include <string>

namespace ballhaven::data {

/// The day of a serial (days since 1 January 1984), such as "2026-11-22".
[[nodiscard]] std::string IsoDate(int serial);

}  // namespace ballhaven::data
