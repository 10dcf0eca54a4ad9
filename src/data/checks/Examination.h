#pragma once

#include "data/checks/Finding.h"
#include "data/folder/FolderFiles.h"
#include "state/GameRecordColumns.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ballhaven::data {

/// A file of the folder as it was found.
struct FoundFile {
    FolderFile form;
    std::string bytes;        ///< up to the last record of the form
    std::int64_t length = 0;  ///< of the whole file
};

/// What came of looking a file through.
struct CheckedFile {
    std::vector<Finding> findings;
    std::string mended;  ///< all records, with everything repaired that can be repaired without a guess
};

/// A field by the name that the user knows it by.
struct NamedField {
    RecordField columns;
    std::string name;
};

/// What kind of bytes a record has.
enum class Bytes { Text, Zeros, NoText };
[[nodiscard]] Bytes BytesOf(std::string_view record);

/// The number of a field that holds digits and blanks around them, and nothing else.
[[nodiscard]] std::optional<int> NumberAmongBlanks(std::string_view field);

/// Bytes of a file in quotation marks, as UTF-8; those that are no text as "\x00".
[[nodiscard]] std::string QuotedBytes(std::string_view bytes);

[[nodiscard]] bool IsBlank(std::string_view text);

/// What becomes of a digit that stands where no field is. One that belongs to a number may have slipped there.
enum class StrayDigits { Blank, Leave };

/// A file that is looked through record by record: the findings so far, and the content with what was repaired. A
/// record that the end of the file has cut is filled up with blanks.
class Examination {
  public:
    explicit Examination(const FoundFile& found);

    [[nodiscard]] std::string Record(int record) const;
    [[nodiscard]] int CurrentRecord() const { return current; }
    [[nodiscard]] std::string Text(int record, RecordField field) const { return FieldText(Record(record), field); }

    /// What the findings in a record say that it is of.
    void BeginRecord(int recordNumber, std::string recordSubject);
    /// From here on findings are about the whole file.
    void EndRecords() { BeginRecord(0, ""); }

    /// Each keeps a finding about the record at hand.
    void Remark(const std::string& what, const std::string& meaning) { Keep("", what, meaning, Remedy::None); }
    void Leave(const std::string& what, const std::string& meaning) { Keep("", what, meaning, Remedy::User); }
    void RemarkField(const NamedField& field, const std::string& wrong, const std::string& meaning);
    void LeaveField(const NamedField& field, const std::string& wrong, const std::string& meaning);
    void Mend(const std::string& what, const std::string& meaning) { Keep("", what, meaning, Remedy::Mend); }

    /// Puts a text into a field of the record at hand, and keeps the finding about what stood there.
    void MendField(const NamedField& field, std::string_view right, const std::string& meaning);

    /// Blanks the columns of the record at hand that no field uses, if anything stands there. Where digits are left, a
    /// record with one among them stays as it is.
    void MendUnused(const std::vector<bool>& usedColumns, StrayDigits digits);

    /// Blanks the records of zero bytes, with a finding for each run of them.
    void MendZeros();

    /// Puts a text in the place of the record at hand where that holds zero bytes alone, and keeps a finding.
    void MendZeroRecord(std::string_view right, const std::string& meaning);

    /// Whether the record at hand is text and can be looked through. Keeps a finding where it is none.
    [[nodiscard]] bool IsText(const std::string& meaningOfNoText);

    void PutRecord(int record, std::string_view text);

    /// The findings so far that the user has to put right.
    [[nodiscard]] std::ptrdiff_t LeftCount() const;

    [[nodiscard]] CheckedFile Result() && { return {std::move(findings), std::move(content)}; }

  private:
    void Keep(std::string place, std::string what, std::string meaning, Remedy remedy);

    FolderFile form;
    std::string content;
    std::vector<Finding> findings;
    int current = 0;
    std::string subject;
};

/// Which columns of a record of a length are used by fields, by column - 1.
[[nodiscard]] std::vector<bool> ColumnsOf(const std::vector<RecordField>& fields, int recordLength);

/// Such as "record 7" or "records 7 to 9".
[[nodiscard]] std::string RecordsText(int first, int last);

/// Keeps what is to be said of the length of a file: empty, of an older form with fewer records, cut, or longer than
/// its form. Returns whether it is to be looked through; one that ends in the middle of a record stays as it is, since
/// nobody can tell what that record held.
[[nodiscard]] bool CheckLength(Examination& examination, const FoundFile& found, int olderRecordCount);

/// Keeps a finding about a cut file, and a remark about one that goes on behind its last record.
void CheckEnd(Examination& examination, const FoundFile& found, const std::string& meaningOfCut);

}  // namespace ballhaven::data
