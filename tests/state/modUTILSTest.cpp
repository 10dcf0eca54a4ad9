#include "state/modUTILS.h"

#include "state/RuntimeFailure.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <string>

namespace ballhaven::modUTILS {
namespace {

RuntimeFailure::Kind KindOfFailure(const std::function<void()>& work) {
    try {
        work();
    } catch (const RuntimeFailure& failure) {
        return failure.GetKind();
    }
    ADD_FAILURE() << "nothing failed";
    return RuntimeFailure::Kind::FileError;
}

TEST(ValueOf, NoDigitsGiveZero) {
    EXPECT_EQ(ValueOf(""), 0);
    EXPECT_EQ(ValueOf("   "), 0);
    EXPECT_EQ(ValueOf("un-defined"), 0);
}

TEST(ValueOf, BlanksBeforeAndBehindTheDigitsAreSkipped) {
    EXPECT_EQ(ValueOf("  12"), 12);
    EXPECT_EQ(ValueOf("9 "), 9);
}

TEST(ValueOf, BlanksBetweenTheDigitsAreSkipped) {
    EXPECT_EQ(ValueOf("1 2 3"), 123);
    EXPECT_EQ(ValueOf(" 4  2 x7"), 42);
}

TEST(ValueOf, AnyOtherCharacterEndsTheNumber) {
    EXPECT_EQ(ValueOf("12/34"), 12);
    EXPECT_EQ(ValueOf("12:34"), 12);
    EXPECT_EQ(ValueOf("7.9"), 7);
    EXPECT_EQ(ValueOf("5\t6"), 5);
}

TEST(ValueOf, ASignIsNoDigit) {
    EXPECT_EQ(ValueOf("-5"), 0);
    EXPECT_EQ(ValueOf("+5"), 0);
}

TEST(ValueOf, LeadingZerosCountForNothing) {
    EXPECT_EQ(ValueOf("000"), 0);
    EXPECT_EQ(ValueOf("010"), 10);
}

TEST(ValueOf, AValueBeyondTheWidestTypeIsHeldAtItsLargest) {
    EXPECT_EQ(ValueOf("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(ValueOf("9223372036854775808"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(ValueOf(std::string(400, '9')), std::numeric_limits<std::int64_t>::max());
}

RC_GTEST_PROP(ValueOf, ReadsBackEveryNumber, ()) {
    const auto value = *rc::gen::inRange<std::int64_t>(0, std::numeric_limits<std::int64_t>::max());
    RC_ASSERT(ValueOf(std::to_string(value)) == value);
}

RC_GTEST_PROP(ValueOf, IsTheNumberOfTheDigitsInFrontOfTheFirstOtherCharacter, (const std::string& text)) {
    std::string digits;
    for (const char character : text) {
        if (character == ' ') {
            continue;
        }
        if (std::string("0123456789").find(character) == std::string::npos) {
            break;
        }
        digits += character;
    }
    RC_PRE(digits.size() < 19);
    RC_ASSERT(ValueOf(text) == (digits.empty() ? 0 : std::stoll(digits)));
}

TEST(ValueOf16, IsAnOverflowAboveTheLargestInteger) {
    EXPECT_EQ(ValueOf16("32767"), 32767);
    EXPECT_EQ(KindOfFailure([] { (void)ValueOf16("32768"); }), RuntimeFailure::Kind::Overflow);
}

TEST(ToInt16, HoldsTheWholeRangeOfTheType) {
    EXPECT_EQ(ToInt16(32767), 32767);
    EXPECT_EQ(ToInt16(-32768), -32768);
}

TEST(ToInt16, IsAnOverflowBeyondTheRange) {
    EXPECT_EQ(KindOfFailure([] { (void)ToInt16(32768); }), RuntimeFailure::Kind::Overflow);
    EXPECT_EQ(KindOfFailure([] { (void)ToInt16(-32769); }), RuntimeFailure::Kind::Overflow);
}

TEST(Divide, CutsOffTheFractionTowardsZero) {
    EXPECT_EQ(Divide(99, 6), 16);
    EXPECT_EQ(Divide(-7, 2), -3);
    EXPECT_EQ(Divide(7, -2), -3);
}

TEST(Divide, FailsForADivisorOfZero) {
    EXPECT_EQ(KindOfFailure([] { (void)Divide(1, 0); }), RuntimeFailure::Kind::DivisionByZero);
}

TEST(Divide, IsAnOverflowForAQuotientBeyondTheRange) {
    EXPECT_EQ(Divide(65534, 2), 32767);
    EXPECT_EQ(KindOfFailure([] { (void)Divide(65536, 2); }), RuntimeFailure::Kind::Overflow);
    EXPECT_EQ(KindOfFailure([] { (void)Divide(std::numeric_limits<std::int64_t>::min(), -1); }),
              RuntimeFailure::Kind::Overflow);
}

TEST(FixedWidth, CutsOrPadsAtTheEnd) {
    EXPECT_EQ(FixedWidth("", 3), "   ");
    EXPECT_EQ(FixedWidth("ab", 3), "ab ");
    EXPECT_EQ(FixedWidth("abc", 3), "abc");
    EXPECT_EQ(FixedWidth("abcd", 3), "abc");
}

TEST(Trimmed, TakesTheBlanksOffBothEndsOnly) {
    EXPECT_EQ(Trimmed("  Pick 6  "), "Pick 6");
    EXPECT_EQ(Trimmed("Pick 6"), "Pick 6");
    EXPECT_EQ(Trimmed("    "), "");
    EXPECT_EQ(Trimmed(""), "");
}

TEST(LowerCase, ChangesTheLettersOfASCIIOnly) {
    EXPECT_EQ(LowerCase('A'), 'a');
    EXPECT_EQ(LowerCase('Z'), 'z');
    for (const char kept : {'a', '@', '[', '0', ' ', '\xC4'}) {
        EXPECT_EQ(LowerCase(kept), kept);
    }
}

TEST(UpperCase, ChangesTheLettersOfASCIIOnly) {
    EXPECT_EQ(UpperCase('a'), 'A');
    EXPECT_EQ(UpperCase('z'), 'Z');
    for (const char kept : {'A', '`', '{', '0', ' ', '\xE4'}) {
        EXPECT_EQ(UpperCase(kept), kept);
    }
}

TEST(ZeroPadded, PutsZerosInFront) {
    EXPECT_EQ(ZeroPadded(7, 2), "07");
    EXPECT_EQ(ZeroPadded(0, 3), "000");
    EXPECT_EQ(ZeroPadded(20, 3), "020");
    EXPECT_EQ(ZeroPadded(1986, 4), "1986");
}

TEST(ZeroPadded, KeepsTheLastDigitsOfANumberThatIsTooLong) {
    EXPECT_EQ(ZeroPadded(123, 2), "23");
    EXPECT_EQ(ZeroPadded(1000, 3), "000");
    EXPECT_EQ(ZeroPadded(12, 1), "2");
}

TEST(PickField, PutsThePickAtTheRightOfTwoColumns) {
    EXPECT_EQ(PickField(0), " 0");
    EXPECT_EQ(PickField(7), " 7");
    EXPECT_EQ(PickField(14), "14");
}

TEST(PickField, KeepsTheFirstTwoDigitsOfALongerNumber) {
    EXPECT_EQ(PickField(100), "10");
    EXPECT_EQ(PickField(32767), "32");
}

TEST(PickOfField, IsAnEmptyCellForTwoBlanks) {
    EXPECT_EQ(PickOfField("  "), -1);
}

TEST(PickOfField, ReadsThePickWhereverItStandsInTheField) {
    EXPECT_EQ(PickOfField(" 7"), 7);
    EXPECT_EQ(PickOfField("7 "), 7);
    EXPECT_EQ(PickOfField("07"), 7);
    EXPECT_EQ(PickOfField(" 0"), 0);
    EXPECT_EQ(PickOfField("99"), 99);
}

TEST(PickOfField, ReadsLettersAsZeroAndNotAsAnEmptyCell) {
    EXPECT_EQ(PickOfField("ab"), 0);
    EXPECT_EQ(PickOfField("5b"), 5);
    EXPECT_EQ(PickOfField("\t\t"), 0);
}

TEST(Columns, CountFromOne) {
    EXPECT_EQ(Columns("abcdef", 1, 2), "ab");
    EXPECT_EQ(Columns("abcdef", 5, 2), "ef");
}

TEST(Columns, AreBlankWhereTheRecordIsShorter) {
    EXPECT_EQ(Columns("abc", 3, 2), "c ");
    EXPECT_EQ(Columns("abc", 4, 2), "  ");
    EXPECT_EQ(Columns("", 60, 3), "   ");
}

TEST(SetColumns, OverwritesAndKeepsTheLengthOfTheRecord) {
    std::string record = "abcdef";
    SetColumns(record, 2, "XY");
    EXPECT_EQ(record, "aXYdef");
}

TEST(SetColumns, DropsWhatWouldStandBehindTheRecord) {
    std::string record = "abcdef";
    SetColumns(record, 6, "XY");
    EXPECT_EQ(record, "abcdeX");
    SetColumns(record, 7, "XY");
    EXPECT_EQ(record, "abcdeX");
}

}  // namespace
}  // namespace ballhaven::modUTILS
