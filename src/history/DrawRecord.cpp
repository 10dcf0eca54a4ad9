#include "history/DrawRecord.h"

#include "state/modUTILS.h"

#include <cstddef>

namespace ballhaven {

namespace {

// A mark in the header that only a deletion touches.
constexpr RecordField deletedMark{12, 2};

/// The field of a row's cell behind the date.
constexpr RecordField PickField(std::size_t cell) {
    return drawField::Pick(static_cast<int>(cell));
}

}  // namespace

std::string HistoryFileName(int slot) {
    return "GAME" + modUTILS::ZeroPadded(slot, 2) + ".CDB";
}

DateDigits DateDigitsOf(std::string_view header) {
    return FieldText(header, drawHeaderField::digitsMark) == fiveDigitsMark ? DateDigits::Five : DateDigits::Four;
}

std::string WithFiveDigits(std::string_view header) {
    std::string marked = modUTILS::FixedWidth(header, drawRecordLength);
    SetField(marked, drawHeaderField::digitsMark, fiveDigitsMark);
    return marked;
}

std::string StampedHeader(const std::string& found) {
    return DateDigitsOf(found) == DateDigits::Five ? WithFiveDigits(drawFileStamp)
                                                   : modUTILS::FixedWidth(drawFileStamp, drawRecordLength);
}

std::string WithoutDeletedMark(std::string header) {
    SetField(header, deletedMark, "");
    return header;
}

bool DecodeDraw(std::string_view record, DateDigits digits, std::span<std::int16_t> cells) {
    const std::int64_t date = modUTILS::ValueOf(FieldText(record, drawField::Date(digits)));
    if (date <= 0 || date > LastDateOf(DateDigits::Five)) {
        return false;
    }
    cells[0] = static_cast<std::int16_t>(date);
    for (std::size_t pick = 1; pick < cells.size(); ++pick) {
        cells[pick] = modUTILS::PickOfField(FieldText(record, PickField(pick)));
    }
    return true;
}

std::string EncodeDraw(std::span<const std::int16_t> cells, DateDigits digits) {
    std::string record(static_cast<std::size_t>(drawRecordLength), ' ');
    if (cells.empty() || cells[0] <= 0) {
        return record;
    }
    // QUIRK HISTORY-DATE-FOUR-DIGITS-1: the field has four columns, so a date of five digits, from 19 May 2011 on,
    // loses its last digit and comes back as a date some decades earlier. The file's columns are settled; a fifth digit
    // in the blank column 5 would make files that copies of the program already in use read wrongly. Only a file that
    // says so in its header keeps it there.
    SetField(record, drawField::Date(digits), std::to_string(cells[0]));
    for (std::size_t pick = 1; pick < cells.size(); ++pick) {
        if (cells[pick] > -1) {
            SetField(record, PickField(pick), modUTILS::PickField(cells[pick]));
        }
    }
    return record;
}

}  // namespace ballhaven
