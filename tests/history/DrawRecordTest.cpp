#include "history/DrawRecord.h"

#include "support/RecordBytes.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace ballhaven {
namespace {

using support::Padded;

const std::string markedHeader = Padded("10-26-2002", 63) + "M";

using Cells = std::array<std::int16_t, 4>;

/// The cells of a row that held 5 in each before, and whether the record is a draw.
struct Decoded {
    bool isDraw;
    Cells cells;

    bool operator==(const Decoded&) const = default;
};

Decoded Decode(const std::string& record, DateDigits digits) {
    Decoded decoded{false, {5, 5, 5, 5}};
    decoded.isDraw = DecodeDraw(record, digits, decoded.cells);
    return decoded;
}

std::string Encode(const Cells& cells, DateDigits digits) {
    return EncodeDraw(cells, digits);
}

// The header

TEST(DrawRecord, AHeaderMarksFiveDigitsInItsLastColumn) {
    EXPECT_EQ(DateDigitsOf(markedHeader), DateDigits::Five);
    EXPECT_EQ(DateDigitsOf(std::string(63, ' ') + "M"), DateDigits::Five);
}

TEST(DrawRecord, AHeaderWithoutTheMarkKeepsFour) {
    EXPECT_EQ(DateDigitsOf(""), DateDigits::Four);
    EXPECT_EQ(DateDigitsOf(Padded("10-26-2002", 64)), DateDigits::Four);
    EXPECT_EQ(DateDigitsOf(std::string(63, 'M') + "m"), DateDigits::Four);
}

TEST(DrawRecord, TheMarkChangesNothingElseOfTheHeader) {
    EXPECT_EQ(WithFiveDigits("10-26-2002"), markedHeader);
    EXPECT_EQ(WithFiveDigits(std::string(64, 'x')), std::string(63, 'x') + "M");
}

TEST(DrawRecord, AFileThatIsFilledUpGetsTheStampAndKeepsItsMark) {
    EXPECT_EQ(StampedHeader("an older stamp"), Padded("10-26-2002", 64));
    EXPECT_EQ(StampedHeader(Padded("an older stamp", 63) + "M"), markedHeader);
}

TEST(DrawRecord, ADeletionBlanksColumns12And13) {
    EXPECT_EQ(WithoutDeletedMark("10-26-2002 ab rest"), "10-26-2002    rest");
}

// Rows

TEST(DrawRecord, FourDigitsStandInColumns1To4) {
    EXPECT_EQ(Decode("70003 3 14", DateDigits::Four), (Decoded{true, {7000, 3, 14, -1}}));
    EXPECT_EQ(Encode({7000, 3, 14, -1}, DateDigits::Four), Padded("7000  3 14", 64));
}

TEST(DrawRecord, FiveDigitsStandInColumns1To5) {
    EXPECT_EQ(Decode("15514 3 14", DateDigits::Five), (Decoded{true, {15514, 3, 14, -1}}));
    EXPECT_EQ(Encode({15514, 3, 14, -1}, DateDigits::Five), Padded("15514 3 14", 64));
}

TEST(DrawRecord, ADateOfFewerDigitsStandsInAFileOfFiveAsInOneOfFour) {
    EXPECT_EQ(Decode("7000  3", DateDigits::Five), (Decoded{true, {7000, 3, -1, -1}}));
    EXPECT_EQ(Encode({9999, 3, -1, -1}, DateDigits::Five), Padded("9999  3", 64));
}

TEST(DrawRecord, TheLargestDateIsTheLargestNumberOf16Bits) {
    EXPECT_EQ(Decode("32767 1", DateDigits::Five), (Decoded{true, {32767, 1, -1, -1}}));
    EXPECT_EQ(Encode({32767, 1, -1, -1}, DateDigits::Five), Padded("32767 1", 64));
    EXPECT_EQ(Decode("32768 1", DateDigits::Five), (Decoded{false, {5, 5, 5, 5}}));
    EXPECT_EQ(Decode("99999 1", DateDigits::Five), (Decoded{false, {5, 5, 5, 5}}));
}

TEST(DrawRecord, ARecordWithoutADateLeavesTheRowAsItIs) {
    for (const DateDigits digits : {DateDigits::Four, DateDigits::Five}) {
        EXPECT_EQ(Decode("0000  1  2  3", digits), (Decoded{false, {5, 5, 5, 5}}));
        EXPECT_EQ(Decode("-100  1  2  3", digits), (Decoded{false, {5, 5, 5, 5}}));
        EXPECT_EQ(Decode("", digits), (Decoded{false, {5, 5, 5, 5}}));
    }
}

TEST(DrawRecord, ARowWithoutADateIsBlank) {
    EXPECT_EQ(Encode({0, 1, 2, 3}, DateDigits::Five), std::string(64, ' '));
    EXPECT_EQ(Encode({-1, 1, 2, 3}, DateDigits::Four), std::string(64, ' '));
    EXPECT_EQ(EncodeDraw({}, DateDigits::Four), std::string(64, ' '));
}

}  // namespace
}  // namespace ballhaven
