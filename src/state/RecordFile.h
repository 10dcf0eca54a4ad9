#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ballhaven {

/// A data file of fixed-length records without marks between them, counted from 1. It is the only way to a data file.
///
/// Opening reads the file, up to the last record of its format, and creates a missing one empty; a temporary file that
/// a crash left beside it is removed. Nothing reaches the disk before `Close`, which writes only if a byte has changed,
/// and then all or nothing: whatever the moment of a crash or of a full disk, the file is the old one or the new one.
/// What stands behind the format's last record stays. A file that is destroyed without `Close` is left as it was.
///
/// Every error becomes a file failure that names the file and the system's reason; the old file is untouched then.
class RecordFile {
  public:
    /// Opens the file; the length of a record in bytes, and the number of records that the format has.
    RecordFile(std::string filePath, int lengthOfRecord, int countOfRecords);

    /// Length in bytes, with the records written since the opening.
    [[nodiscard]] std::int64_t Length() const { return length; }

    /// A record, exactly as long as the format says: blanks stand where the file has no bytes.
    /// Raises the subscript failure for a record that the format does not have.
    [[nodiscard]] std::string Read(int record) const;

    /// The same, without a copy where the file has the whole record; else `padded` takes it. Valid until the next write
    /// here or to `padded`.
    [[nodiscard]] std::string_view View(int record, std::string& padded) const;

    /// Puts a record, cut or padded with blanks to its length, into its place. A gap before it becomes blanks.
    /// Raises the subscript failure for a record that the format does not have.
    void Write(int record, std::string_view text);

    /// Makes the changes durable, if there are any.
    void Close();

  private:
    [[nodiscard]] std::int64_t FormatLength() const;
    [[nodiscard]] std::size_t OffsetOf(int record) const;

    std::string path;
    int recordLength;
    int recordCount;
    std::string content;      ///< the bytes of the format's records, as far as the file has them
    std::int64_t length = 0;  ///< of the whole file
    bool changed = false;
};

}  // namespace ballhaven
