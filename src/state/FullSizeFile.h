#pragma once

#include "state/RecordFile.h"

#include <string>

namespace ballhaven {

/// How large a data file of a format is, in records, and how large one of the form before it was.
struct FileSizes {
    int recordLength;  ///< in bytes
    int recordCount;
    int olderRecordCount;
    std::string (*headerFor)(const std::string& found) =
        nullptr;  ///< record 1 of a file that is filled up; null for none
};

/// Opens a data file and sees that it has its full size: a missing or empty one gets blank records in all places, one
/// of the older form or shorter blank records behind the older form's places; either gets the header. It is saved then,
/// and pending events are handled before it is opened again. Raises the file failure.
[[nodiscard]] RecordFile OpenAtFullSize(const std::string& path, const FileSizes& sizes);

}  // namespace ballhaven
