#include "history/DrawRecord.h"

#include "state/modUTILS.h"

#include <cstddef>

namespace ballhaven {

namespace {

// The header: a stamp of the format, which nothing reads; a mark that only a deletion touches; the mark of five digits.
constexpr std::string_view stamp = "10-26-2002";
constexpr int deletedMarkColumn = 12;
constexpr std::string_view noDeletedMark = "  ";
constexpr int digitsMarkColumn = 64;
constexpr std::string_view fiveDigitsMark = "M";

// A row: the date from column 1 on, pick 1 in columns 6-7, pick 2 in columns 9-10, and so on.
constexpr int dateColumn = 1;
constexpr int pickWidth = 2;

constexpr int PickFieldColumn(std::size_t pick) {
    return 3 * static_cast<int>(pick) + 3;
}

}  // namespace

DateDigits DateDigitsOf(std::string_view header) {
    return modUTILS::Columns(header, digitsMarkColumn, 1) == fiveDigitsMark ? DateDigits::Five : DateDigits::Four;
}

std::string WithFiveDigits(std::string_view header) {
    std::string marked = modUTILS::FixedWidth(header, drawRecordLength);
    modUTILS::SetColumns(marked, digitsMarkColumn, fiveDigitsMark);
    return marked;
}

std::string StampedHeader(const std::string& found) {
    return DateDigitsOf(found) == DateDigits::Five ? WithFiveDigits(stamp)
                                                   : modUTILS::FixedWidth(stamp, drawRecordLength);
}

std::string WithoutDeletedMark(std::string header) {
    modUTILS::SetColumns(header, deletedMarkColumn, noDeletedMark);
    return header;
}

bool DecodeDraw(std::string_view record, DateDigits digits, std::span<std::int16_t> cells) {
    const std::int64_t date = modUTILS::ValueOf(modUTILS::Columns(record, dateColumn, static_cast<int>(digits)));
    if (date <= 0 || date > LastDateOf(DateDigits::Five)) {
        return false;
    }
    cells[0] = static_cast<std::int16_t>(date);
    for (std::size_t pick = 1; pick < cells.size(); ++pick) {
        cells[pick] = modUTILS::PickOfField(modUTILS::Columns(record, PickFieldColumn(pick), pickWidth));
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
    modUTILS::SetColumns(record, dateColumn, std::to_string(cells[0]).substr(0, static_cast<std::size_t>(digits)));
    for (std::size_t pick = 1; pick < cells.size(); ++pick) {
        if (cells[pick] > -1) {
            modUTILS::SetColumns(record, PickFieldColumn(pick), modUTILS::PickField(cells[pick]));
        }
    }
    return record;
}

}  // namespace ballhaven
