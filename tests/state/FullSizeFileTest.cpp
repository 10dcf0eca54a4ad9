#include "state/FullSizeFile.h"

#include "support/PointerKeeper.h"
#include "support/RecordBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

/// The header of these files keeps a "+" in its last column.
std::string HeaderFor(const std::string& found) {
    return found.back() == '+' ? "hea+" : "head";
}

constexpr FileSizes sizes{.recordLength = 4, .recordCount = 5, .olderRecordCount = 3, .headerFor = HeaderFor};
constexpr FileSizes sizesWithoutHeader{.recordLength = 4, .recordCount = 5, .olderRecordCount = 3};

class FullSizeFile : public support::DataFileTest {
  protected:
    [[nodiscard]] std::string Opened(const std::string& bytes, const FileSizes& fileSizes = sizes) {
        directory.Write("FILE", bytes);
        OpenAtFullSize(directory.Path() + "FILE", fileSizes).Close();
        return directory.Read("FILE");
    }
};

const std::string blank = "    ";

TEST_F(FullSizeFile, AMissingOrEmptyFileGetsBlankRecordsAndTheHeader) {
    EXPECT_EQ(Opened(""), "head" + blank + blank + blank + blank);
    OpenAtFullSize(directory.Path() + "MISSING", sizes).Close();
    EXPECT_EQ(directory.Read("MISSING"), "head" + blank + blank + blank + blank);
}

TEST_F(FullSizeFile, AFileOfTheOlderFormKeepsItsRecordsBehindANewHeader) {
    EXPECT_EQ(Opened("old1rec2rec3"), "headrec2rec3" + blank + blank);
    EXPECT_EQ(Opened("old1re"), "headre  " + blank + blank + blank) << "a shorter one likewise";
}

TEST_F(FullSizeFile, TheHeaderMayKeepWhatItFinds) {
    EXPECT_EQ(Opened("old+rec2"), "hea+rec2" + blank + blank + blank);
}

TEST_F(FullSizeFile, WithoutAHeaderTheFirstRecordStays) {
    EXPECT_EQ(Opened("old1rec2rec3", sizesWithoutHeader), "old1rec2rec3" + blank + blank);
    EXPECT_EQ(Opened("", sizesWithoutHeader), blank + blank + blank + blank + blank);
}

TEST_F(FullSizeFile, AFileOfOneByteMoreThanTheOlderFormStaysAsItIs) {
    EXPECT_EQ(Opened("old1rec2rec3r"), "old1rec2rec3r");
}

TEST_F(FullSizeFile, EventsAreLetInOnceTheFileIsWholeAndItIsOpenedAgain) {
    support::PointerKeeper toolkit;
    std::vector<std::string> found;
    toolkit.pendingEvents = [&] {
        found.push_back(directory.Read("FILE"));
        directory.Write("FILE", "head2222333344445555");
    };
    directory.Write("FILE", "");
    const RecordFile file = OpenAtFullSize(directory.Path() + "FILE", sizes);
    EXPECT_EQ(found, (std::vector<std::string>{"head" + blank + blank + blank + blank}));
    EXPECT_EQ(file.Read(2), "2222");
}

TEST_F(FullSizeFile, AFileThatGoesMeanwhileIsFilledUpAgain) {
    support::PointerKeeper toolkit;
    int calls = 0;
    toolkit.pendingEvents = [&] {
        if (++calls == 1) {
            directory.Write("FILE", "");
        }
    };
    EXPECT_EQ(Opened("").size(), 20U);
    EXPECT_EQ(calls, 2);
}

TEST_F(FullSizeFile, NoEventsAreLetInForAFileOfFullSize) {
    support::PointerKeeper toolkit;
    toolkit.pendingEvents = [] { ADD_FAILURE() << "nothing was to be filled up"; };
    EXPECT_EQ(Opened("head2222333344445555"), "head2222333344445555");
}

}  // namespace
}  // namespace ballhaven
