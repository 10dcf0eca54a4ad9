#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace ballhaven::data {

/// What files of a folder hold, by their names; none for one that is not there.
using FileContents = std::map<std::string, std::optional<std::string>>;

/// A zip of files. Its first entry, "CONTENTS", tells of each file its length and its checksum, and which ones were not
/// there, so that the copy can be verified and put back just as it was.
[[nodiscard]] std::string ArchiveOf(const FileContents& files);

/// The files of such a zip, every byte of it verified: names are those of files of a Ballhaven folder, none is longer
/// than its format, checksums are right, and nothing is missing. Throws Refusal with what is wrong with the zip, which
/// `name` names.
[[nodiscard]] FileContents FilesOf(std::string_view archive, const std::string& name);

}  // namespace ballhaven::data
