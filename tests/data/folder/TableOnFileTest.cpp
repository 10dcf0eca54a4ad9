#include "data/folder/TableOnFile.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

const std::string unusedSlot20 = "20/un-defined            /010/0/1/99/ / /N/N/10/0/N /  /1/99/   ";

TEST(TableOnFileTest, ATableThatTheProgramBuildsAnewIsBuiltHere) {
    for (const std::string& content : {std::string(), std::string(64, 'x')}) {
        const std::string table = WholeTable(content);
        EXPECT_EQ(table.size(), 1344U);
        EXPECT_EQ(TableRecord(table, 1), "01/1/1/000000" + std::string(51, ' '));
        EXPECT_EQ(TableRecord(table, 2), "1 /un-defined            /010/0/1/99/ / /N/N/10/0/N /  /1/99/   ");
        EXPECT_EQ(TableRecord(table, 21), unusedSlot20);
    }
}

TEST(TableOnFileTest, AWholeTableStaysAsItIs) {
    const std::string table(1344, 'x');
    EXPECT_EQ(WholeTable(table), table);
}

TEST(TableOnFileTest, ARecordThatIsCutGetsBlanksAndMissingOnesAreUnused) {
    const std::string table = WholeTable(std::string(130, 'x'));
    EXPECT_EQ(table.size(), 1344U);
    EXPECT_EQ(TableRecord(table, 2), std::string(64, 'x'));
    EXPECT_EQ(TableRecord(table, 3), "xx" + std::string(62, ' '));
    EXPECT_EQ(TableRecord(table, 4), "3 /un-defined            /010/0/1/99/ / /N/N/10/0/N /  /1/99/   ");
    EXPECT_EQ(TableRecord(table, 21), unusedSlot20);
    EXPECT_EQ(TableRecord(WholeTable("x"), 1), "x" + std::string(63, ' '));
}

TEST(TableOnFileTest, ARecordIsPutAtItsFullLength) {
    std::string table(1344, 'x');
    PutTableRecord(table, 21, "short");
    EXPECT_EQ(table, std::string(1280, 'x') + "short" + std::string(59, ' '));
}

}  // namespace
}  // namespace ballhaven::data
