#pragma once

#include "state/modUTILS.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ballhaven {

/// A field of a record: its first column, counted from 1, and its width in columns.
struct RecordField {
    int first;
    int width;
};

/// The text of a field; blanks where the record is shorter.
[[nodiscard]] inline std::string FieldText(std::string_view record, RecordField field) {
    return modUTILS::Columns(record, field.first, field.width);
}

/// The number in a field by the value rule. No field that holds a number is wide enough to overflow.
[[nodiscard]] inline std::int16_t FieldValue(std::string_view record, RecordField field) {
    return modUTILS::ValueOf16(FieldText(record, field));
}

/// Puts a text into a field, cut or padded with blanks to its width.
inline void SetField(std::string& record, RecordField field, std::string_view text) {
    modUTILS::SetColumns(record, field.first, modUTILS::FixedWidth(text, field.width));
}

/// Puts a number into a field, with leading zeros, cut to its last digits.
inline void SetFieldValue(std::string& record, RecordField field, std::int64_t value) {
    SetField(record, field, modUTILS::ZeroPadded(value, field.width));
}

}  // namespace ballhaven
