#include "data/checks/Examination.h"

#include "data/folder/CountText.h"
#include "platform/files/CodePage.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace ballhaven::data {

namespace {

constexpr unsigned char firstCharacter = ' ';
constexpr unsigned char deleteCode = 127;

bool IsCharacter(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code >= firstCharacter && code != deleteCode;
}

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

std::string PlaceOf(int first, int width) {
    return width == 1 ? "column " + std::to_string(first)
                      : "columns " + std::to_string(first) + "-" + std::to_string(first + width - 1);
}

/// What is left of a record that the end of its file has cut.
std::string_view TornRecord(const FoundFile& found) {
    const std::string_view bytes = found.bytes;
    return bytes.substr(bytes.size() - bytes.size() % static_cast<std::size_t>(found.form.recordLength));
}

std::string EndText(const FoundFile& found) {
    return "ends after " + CountText(found.length, "byte") + ", in record " +
           std::to_string(found.length / found.form.recordLength + 1) + " of " + std::to_string(found.form.recordCount);
}

std::string PlaceOf(const NamedField& field) {
    return PlaceOf(field.columns.first, field.columns.width) + " (" + field.name + ")";
}

}  // namespace

Bytes BytesOf(std::string_view record) {
    if (std::ranges::all_of(record, IsCharacter)) {
        return Bytes::Text;
    }
    return std::ranges::all_of(record, [](char byte) { return byte == '\0'; }) ? Bytes::Zeros : Bytes::NoText;
}

std::optional<int> NumberAmongBlanks(std::string_view field) {
    const std::size_t first = field.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view digits = field.substr(first, field.find_last_not_of(' ') + 1 - first);
    if (!std::ranges::all_of(digits, IsDigit)) {
        return std::nullopt;
    }
    return static_cast<int>(modUTILS::ValueOf(digits));
}

std::string QuotedBytes(std::string_view bytes) {
    std::string text = "\"";
    for (const char byte : bytes) {
        if (IsCharacter(byte)) {
            text += platform::ToUtf8(std::string(1, byte));
        } else {
            char code[sizeof "\\x00"];
            const int length = std::snprintf(code, sizeof code, "\\x%02x", static_cast<unsigned char>(byte));
            text.append(code, static_cast<std::size_t>(length));
        }
    }
    return text + '"';
}

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

Examination::Examination(const FoundFile& found) : form(found.form), content(found.bytes) {
    content.resize(static_cast<std::size_t>(form.FormatLength()), ' ');
}

std::string Examination::Record(int record) const {
    const auto length = static_cast<std::size_t>(form.recordLength);
    return content.substr(static_cast<std::size_t>(record - 1) * length, length);
}

void Examination::PutRecord(int record, std::string_view text) {
    const auto length = static_cast<std::size_t>(form.recordLength);
    content.replace(static_cast<std::size_t>(record - 1) * length, length,
                    modUTILS::FixedWidth(text, form.recordLength));
}

void Examination::BeginRecord(int recordNumber, std::string recordSubject) {
    current = recordNumber;
    subject = std::move(recordSubject);
}

void Examination::Keep(std::string place, std::string what, std::string meaning, Remedy remedy) {
    findings.push_back({form.name, current, subject, std::move(place), std::move(what), std::move(meaning), remedy});
}

void Examination::RemarkField(const NamedField& field, const std::string& wrong, const std::string& meaning) {
    Keep(PlaceOf(field), "holds " + QuotedBytes(Text(current, field.columns)) + ", which is " + wrong, meaning,
         Remedy::None);
}

void Examination::LeaveField(const NamedField& field, const std::string& wrong, const std::string& meaning) {
    Keep(PlaceOf(field), "holds " + QuotedBytes(Text(current, field.columns)) + ", which is " + wrong, meaning,
         Remedy::User);
}

void Examination::MendField(const NamedField& field, std::string_view right, const std::string& meaning) {
    std::string record = Record(current);
    Keep(PlaceOf(field), "holds " + QuotedBytes(FieldText(record, field.columns)) + " and not " + QuotedBytes(right),
         meaning, Remedy::Mend);
    SetField(record, field.columns, right);
    PutRecord(current, record);
}

void Examination::MendUnused(const std::vector<bool>& usedColumns, StrayDigits digits) {
    std::string record = Record(current);
    std::string places;
    bool leaves = false;
    for (std::size_t place = 0; place < record.size(); ++place) {
        if (!usedColumns[place] && record[place] != ' ') {
            places +=
                (places.empty() ? "" : ", ") + std::to_string(place + 1) + " " + QuotedBytes(record.substr(place, 1));
            leaves = leaves || (digits == StrayDigits::Leave && IsDigit(record[place]));
            record[place] = ' ';
        }
    }
    if (places.empty()) {
        return;
    }
    const std::string what = "something stands in columns that are blank in such a record: " + places;
    if (leaves) {
        Leave(what,
              "Nothing reads it, and Ballhaven drops it when it next saves the file. Look whether a number has "
              "slipped.");
        return;
    }
    Mend(what, "Nothing reads it.");
    PutRecord(current, record);
}

void Examination::MendZeros() {
    const auto holdsZeros = [this](int record) {
        return record <= form.recordCount && BytesOf(Record(record)) == Bytes::Zeros;
    };
    for (int record = 1; record <= form.recordCount; ++record) {
        const int first = record;
        for (; holdsZeros(record); ++record) {
            PutRecord(record, "");
        }
        if (record > first) {
            EndRecords();
            Mend("holds zero bytes and no text in " + RecordsText(first, record - 1),
                 "Nothing is left of what stood there, if anything did.");
        }
    }
}

void Examination::MendZeroRecord(std::string_view right, const std::string& meaning) {
    if (BytesOf(Record(current)) == Bytes::Zeros) {
        Mend("holds zero bytes and no text", meaning);
        PutRecord(current, right);
    }
}

bool Examination::IsText(const std::string& meaningOfNoText) {
    const std::string record = Record(current);
    if (BytesOf(record) == Bytes::Text) {
        return true;
    }
    Leave("holds bytes that are no text: " + QuotedBytes(record), meaningOfNoText);
    return false;
}

std::ptrdiff_t Examination::LeftCount() const {
    return std::ranges::count(findings, Remedy::User, &Finding::remedy);
}

std::vector<bool> ColumnsOf(const std::vector<RecordField>& fields, int recordLength) {
    std::vector<bool> used(static_cast<std::size_t>(recordLength));
    for (const RecordField& field : fields) {
        std::fill_n(used.begin() + field.first - 1, field.width, true);
    }
    return used;
}

std::string RecordsText(int first, int last) {
    return first == last ? "record " + std::to_string(first)
                         : "records " + std::to_string(first) + " to " + std::to_string(last);
}

bool CheckLength(Examination& examination, const FoundFile& found, int olderRecordCount) {
    if (found.length == 0) {
        examination.Remark("is empty", "Ballhaven fills it with blank records when its game is shown.");
        return false;
    }
    if (found.length == std::int64_t{olderRecordCount} * found.form.recordLength) {
        examination.Remark("is of the older form, with " + std::to_string(olderRecordCount) + " records",
                           "Ballhaven brings it to the present form when its game is shown.");
        return true;
    }
    if (const std::string_view torn = TornRecord(found); found.length < found.form.FormatLength() && !IsBlank(torn)) {
        examination.Leave(EndText(found) + ", which was cut in the middle: " + QuotedBytes(torn),
                          "The file was not looked at any further. Restore a copy; or look at the record in Ballhaven, "
                          "put it right, save it, and check again.");
        return false;
    }
    CheckEnd(examination, found, "Blanks take the place of what is missing; a copy may still have it.");
    return true;
}

void CheckEnd(Examination& examination, const FoundFile& found, const std::string& meaningOfCut) {
    const std::int64_t whole = found.form.FormatLength();
    if (found.length < whole) {
        examination.Mend(EndText(found), meaningOfCut);
    } else if (found.length > whole) {
        examination.Remark("goes on for " + CountText(found.length - whole, "byte") + " behind its last record",
                           "Ballhaven neither reads nor changes them.");
    }
}

}  // namespace ballhaven::data
