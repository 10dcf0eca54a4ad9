#include "tools/NewFolder.h"

#include "state/AppState.h"
#include "support/Games.h"
#include "support/RecordBytes.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace ballhaven::tools {
namespace {

using Files = std::map<std::string, std::string>;

std::string FreeRecords() {
    std::string records;
    for (int slot = 1; slot <= 20; ++slot) {
        records +=
            support::Padded(std::to_string(slot), 2) + "/un-defined            /010/0/1/99/ / /N/N/10/0/N /  /1/99/   ";
    }
    return records;
}

class NewFolder : public testing::Test {
  protected:
    support::TemporaryDirectory folder;
};

TEST_F(NewFolder, AnOrdinaryOneHasTheTableOfGamesThatAFirstStartMakes) {
    EXPECT_EQ(BeginFolder(folder.Path(), FolderKind::Ordinary), "");
    EXPECT_EQ(folder.Files(), (Files{{"LOTTOSYS", support::Padded("01/1/1/000000", 64) + FreeRecords()}}));
    EXPECT_EQ(appState.programDirectory, folder.Path());
}

TEST_F(NewFolder, AMendedOneHasTheMarkBesides) {
    EXPECT_EQ(BeginFolder(folder.Path(), FolderKind::Mended), "");
    EXPECT_EQ(folder.Files(), (Files{{"LOTTOSYS", support::MendedSystemRecord() + FreeRecords()}}));
    EXPECT_EQ(appState.systemRecord, support::MendedSystemRecord());
}

TEST_F(NewFolder, AFolderWithAnyDataFileStaysAsItIs) {
    for (const std::string name :
         {"LOTTOSYS", "SHUFFLE.CDB", "GAME01.CDB", "GAME20.CDB", "PLAYS01.CDB", "PLAYS20.CDB"}) {
        const support::TemporaryDirectory used;
        used.Write(name, "");
        used.Write("GAME21.CDB", "is no data file");
        const Files before = used.Files();
        EXPECT_EQ(BeginFolder(used.Path(), FolderKind::Mended),
                  used.Path() + " has a " + name + " already; its games stay as they are.");
        EXPECT_EQ(used.Files(), before);
    }
}

TEST_F(NewFolder, AFolderThatIsMissingIsNotMade) {
    EXPECT_EQ(BeginFolder(folder / "nowhere", FolderKind::Mended), (folder / "nowhere") + " is no folder.");
    EXPECT_TRUE(folder.Files().empty());
}

}  // namespace
}  // namespace ballhaven::tools
