#pragma once

#include <cstdint>
#include <string>

namespace ballhaven::data {

/// So many of a thing, such as "1 draw" or "2 draws".
[[nodiscard]] std::string CountText(std::int64_t count, const std::string& one);

}  // namespace ballhaven::data
