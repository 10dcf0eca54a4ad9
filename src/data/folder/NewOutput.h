#pragma once

#include <string>
#include <string_view>

namespace ballhaven::data {

/// Makes a file of these bytes under a path that the user named, whole or not at all. Throws Refusal where something
/// stands there already, and where the file cannot be made.
void SaveNewOutput(const std::string& path, std::string_view bytes);

}  // namespace ballhaven::data
