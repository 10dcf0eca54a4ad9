#include "data/checks/FolderCheck.h"

#include "data/checks/GameTableCheck.h"
#include "data/checks/HistoryFileCheck.h"
#include "data/checks/LeftOvers.h"
#include "data/checks/PickFilesCheck.h"
#include "data/folder/CountText.h"
#include "data/folder/Refusal.h"
#include "history/DrawRecord.h"
#include "platform/files/DurableFile.h"
#include "platform/files/FolderChange.h"
#include "platform/files/Paths.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>

namespace ballhaven::data {

namespace {

/// What the user can do about a file that cannot be read.
std::string WayOut(const FolderFile& file) {
    const bool isOfAllGames = file.name == GameTableFile().name || file.name == ChosenPicksFile().name;
    return isOfAllGames ? "Ballhaven ends with a message when it starts. Make it a file that can be read, or restore a "
                          "copy."
                        : "Ballhaven ends with a message where it needs it; \"ballhaven-data set --shown\" chooses "
                          "another game.";
}

class FolderExamination {
  public:
    explicit FolderExamination(const std::string& folder) : directory(platform::WithSeparator(folder)) {}

    CheckedFolder Run() {
        CheckLeftOvers();
        CheckTable();
        for (const CheckedSlot& slot : slots) {
            Check(HistoryFileOf(slot.slot),
                  [&](const FoundFile& found) { return CheckHistoryFile(found, slot, folderIsMended); });
        }
        for (const CheckedSlot& slot : slots) {
            Check(PlayFileOf(slot.slot), [&](const FoundFile& found) { return CheckPlayFile(found, slot); });
        }
        Check(ChosenPicksFile(), [&](const FoundFile& found) { return CheckChosenPicksFile(found, slots); });
        if (result.fileCount == 0) {
            throw Refusal(directory + " holds no data of Ballhaven. Name the right folder with --folder.");
        }
        return std::move(result);
    }

  private:
    void CheckLeftOvers() {
        try {
            result.leftOvers = FindLeftOvers(directory);
        } catch (const std::filesystem::filesystem_error& error) {
            throw Refusal(error.path1().string() + " cannot be read: " + error.code().message() + ".");
        } catch (const std::system_error& error) {
            throw Refusal(directory + " cannot be read: " + error.code().message() + ".");
        }
        if (platform::HasDecidedChange(directory)) {
            Keep(platform::changeListName, "tells of a change that was decided and not brought to its end",
                 "Some files may be the new ones already; Ballhaven finishes it when it next starts.", Remedy::Mend);
        } else if (std::filesystem::exists(std::filesystem::symlink_status(directory + platform::changeListName))) {
            Keep(platform::changeListName, "bears the name of Ballhaven's list of a change, and is none",
                 "No change of several files can be made beside it. Move it to another place.", Remedy::User);
        }
        for (const std::string& name : result.leftOvers) {
            Keep(name, "was left by a run that did not come to its end", "Nothing reads it.", Remedy::Mend);
        }
    }

    void CheckTable() {
        const int marked = CountMarkedHistories();
        slots = SlotsWithoutTable(SlotUse::Unknown);
        bool isRead = false;
        const bool found = Check(GameTableFile(), [&](const FoundFile& file) {
            isRead = true;
            CheckedTable table = CheckGameTable(file, marked > 0);
            slots = std::move(table.slots);
            folderIsMended = table.folderIsMended;
            return std::move(table.file);
        });
        if (!found) {
            slots = SlotsWithoutTable(SlotUse::Free);
            Keep(GameTableFile().name, "is missing",
                 "Ballhaven begins a new table of unused slots; draws and plays are in files of their own.",
                 Remedy::User);
        }
        if (marked > 0 && !folderIsMended && (isRead || !found)) {
            Keep(GameTableFile().name,
                 "has no mark of a mended folder, though " + CountText(marked, "file") +
                     " of draws keep dates of five digits",
                 "If the folder was a mended one, mark it again with \"ballhaven-data mend\".", Remedy::None);
        }
    }

    /// How many files of draws say that their dates have five digits.
    [[nodiscard]] int CountMarkedHistories() const {
        int count = 0;
        for (int slot = 1; slot <= gameSlots; ++slot) {
            try {
                const auto header = platform::ReadHeadIfThere(directory + HistoryFileOf(slot).name, drawRecordLength);
                count += header && DateDigitsOf(header->bytes) == DateDigits::Five ? 1 : 0;
            } catch (const std::system_error&) {  // its own check tells that it cannot be read
                continue;
            }
        }
        return count;
    }

    /// Looks through a file if it is there. Returns whether it is.
    template <typename FileCheck>
    bool Check(const FolderFile& file, const FileCheck& check) {
        try {
            const auto head = platform::ReadHeadIfThere(directory + file.name, file.FormatLength());
            if (!head) {
                return false;
            }
            Take(file, check(FoundFile{file, head->bytes, head->length}));
        } catch (const std::system_error& error) {
            Keep(file.name, "cannot be read: " + WhyUnreadable(directory + file.name, error), WayOut(file),
                 Remedy::User);
        }
        ++result.fileCount;
        return true;
    }

    void Take(const FolderFile& file, CheckedFile checked) {
        const bool mends =
            std::ranges::find(checked.findings, Remedy::Mend, &Finding::remedy) != checked.findings.end();
        if (mends) {
            result.mended[file.name] = std::move(checked.mended);
        }
        std::ranges::move(checked.findings, std::back_inserter(result.findings));
    }

    void Keep(const std::string& file, const std::string& what, const std::string& meaning, Remedy remedy) {
        result.findings.push_back({file, 0, "", "", what, meaning, remedy});
    }

    std::string directory;
    CheckedFolder result;
    std::vector<CheckedSlot> slots;
    bool folderIsMended = false;
};

}  // namespace

CheckedFolder CheckFolder(const std::string& directory) {
    return FolderExamination(directory).Run();
}

}  // namespace ballhaven::data
