#include "state/MendedFolder.h"

#include "state/AppState.h"
#include "state/GameTable.h"
#include "support/RecordBytes.h"

#include <gtest/gtest.h>

#include <string>

namespace ballhaven {
namespace {

using support::Padded;

TEST(MendedFolder, AnMInColumn64OfTheRecordMarksIt) {
    EXPECT_TRUE(IsMended("01/1/1/000000" + std::string(50, ' ') + "M"));
}

TEST(MendedFolder, AnythingElseThereMarksNothing) {
    EXPECT_FALSE(IsMended(""));
    EXPECT_FALSE(IsMended(Padded("01/1/1/000000", 64)));
    EXPECT_FALSE(IsMended(std::string(63, 'M') + " "));
    EXPECT_FALSE(IsMended(std::string(63, ' ') + "m"));
    EXPECT_FALSE(IsMended(std::string(62, ' ') + "M"));
}

TEST(MendedFolder, TheMarkChangesNothingElseOfTheRecord) {
    EXPECT_EQ(WithMendedMark("07/0/1/101010"), "07/0/1/101010" + std::string(50, ' ') + "M");
    EXPECT_EQ(WithMendedMark(std::string(64, 'x')), std::string(63, 'x') + "M");
}

class MendedFolderFile : public support::DataFileTest {};

TEST_F(MendedFolderFile, AFolderIsMendedAsItsGameTableSays) {
    OpenGameTable();
    EXPECT_FALSE(FolderIsMended());
    appState.systemRecord = WithMendedMark(appState.systemRecord);
    SaveSystemRecord();
    appState.systemRecord.clear();
    OpenGameTable();
    EXPECT_TRUE(FolderIsMended());
    EXPECT_EQ(directory.Read("LOTTOSYS").substr(0, 64), "01/1/1/000000" + std::string(50, ' ') + "M");
}

}  // namespace
}  // namespace ballhaven
