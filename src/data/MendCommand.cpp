#include "data/MendCommand.h"

#include "data/folder/DrawsOnFile.h"
#include "data/folder/FolderFiles.h"
#include "data/folder/Refusal.h"
#include "data/folder/TableOnFile.h"
#include "history/DrawRecord.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/MendedFolder.h"

#include <filesystem>

namespace ballhaven::data {

namespace {

constexpr const char* whatIsDifferent =
    "In a mended folder no statistic ends the program, and daily use keeps what was entered:\n"
    "- dates after 18 May 2011 are kept, to 17 September 2073;\n"
    "- a damaged date costs its own draw, and hides or overwrites no other;\n"
    "- a pick that was only typed is saved;\n"
    "- adding a game leaves the other games alone, and a game that was set up is shown anew only once;\n"
    "- a partial wheel follows the plays in use, and printing the plays leaves them as they are;\n"
    "- pairs, repeaters and percentages of many draws are as large as they are.\n"
    "Everything else stays as it is.\n";

/// The files of draws that keep four digits, with the mark of five.
FileContents MarkedHistories(const std::string& directory) {
    FileContents files;
    for (int slot = 1; slot <= gameSlots; ++slot) {
        const FolderFile file = HistoryFileOf(slot);
        const std::optional<std::string> content = ReadFolderFile(directory, file);
        if (content && !content->empty() && DateDigitsOf(*content) == DateDigits::Four) {
            files[file.name] = WithFiveDigitDates(*content);
        }
    }
    return files;
}

/// Whether a folder without a table of games can be one of Ballhaven: a new one, or that of the program.
bool CanBeginHere(const std::string& directory) {
    try {
        return std::filesystem::is_empty(directory) || std::filesystem::exists(directory + "ballhaven");
    } catch (const std::filesystem::filesystem_error& error) {
        throw Refusal(directory + " cannot be read: " + error.code().message() + ".");
    }
}

}  // namespace

std::string MendFolder(const WorkFolder& folder, const Console& console) {
    const std::string tableName = GameTableFile().name;
    const std::optional<std::string> found = ReadFolderFile(folder.Path(), GameTableFile());
    if (!found && !CanBeginHere(folder.Path())) {
        throw Refusal(folder.Path() + " holds other things and no " + tableName +
                      ", so it is no folder of Ballhaven. Name the right one, or an empty one, with --folder.");
    }
    std::string table = WholeTable(found.value_or(""));
    if (IsTableOfMendedFolder(found)) {
        console.out << folder.Path() << " is mended already. Nothing was changed.\n";
        return {};
    }
    PutTableRecord(table, systemRecordNumber, WithMendedMark(TableRecord(table, systemRecordNumber)));
    FileContents files = MarkedHistories(folder.Path());
    files[tableName] = table;
    const std::string copy = folder.Change(files, "mend");
    const std::string isMended = folder.Path() + " is mended now.";
    const std::string isKept = "What was there is kept in " + copy + ".";
    console.out << isMended << '\n'
                << whatIsDifferent << isKept << '\n'
                << "To go back to it, without what is entered from now on:\n  ballhaven-data --folder \""
                << folder.Path() << "\" restore \"" << copy << "\"\n";
    return isMended + " " + isKept;
}

}  // namespace ballhaven::data
