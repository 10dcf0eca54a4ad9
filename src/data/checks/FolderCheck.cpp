#include "data/checks/FolderCheck.h"

#include "data/checks/GameTableCheck.h"
#include "data/checks/HistoryFileCheck.h"
#include "data/checks/LeftOvers.h"
#include "data/checks/PickFilesCheck.h"
#include "data/folder/GamesOnFile.h"
#include "data/folder/Refusal.h"
#include "data/folder/TableOnFile.h"
#include "platform/files/DurableFile.h"
#include "platform/files/Paths.h"
#include "state/MendedFolder.h"

#include <algorithm>
#include <iterator>
#include <system_error>

namespace ballhaven::data {

namespace {

class FolderExamination {
  public:
    explicit FolderExamination(const std::string& folder) : directory(platform::WithSeparator(folder)) {}

    CheckedFolder Run() {
        CheckLeftOvers();
        CheckTable();
        for (const GameOnFile& game : games) {
            Check(HistoryFileOf(game.slot),
                  [&](const FoundFile& found) { return CheckHistoryFile(found, game, folderIsMended); });
        }
        for (const GameOnFile& game : games) {
            Check(PlayFileOf(game.slot), [&](const FoundFile& found) { return CheckPlayFile(found, game); });
        }
        Check(ChosenPicksFile(), [&](const FoundFile& found) { return CheckChosenPicksFile(found, games); });
        if (result.fileCount == 0) {
            throw Refusal(directory + " holds no data of Ballhaven. Name the right folder with --folder.");
        }
        return std::move(result);
    }

  private:
    void CheckLeftOvers() {
        try {
            result.leftOvers = FindLeftOvers(directory);
        } catch (const std::system_error& error) {
            throw Refusal(directory + " cannot be read: " + error.code().message() + ".");
        }
        if (HasDecidedChange(directory)) {
            Keep("CHANGE", "tells of a change that was decided and not brought to its end",
                 "Some files may be the new ones already; Ballhaven finishes it when it next starts.", Remedy::Mend);
        }
        for (const std::string& name : result.leftOvers) {
            Keep(name, "was left by a run that did not come to its end", "Nothing reads it.", Remedy::Mend);
        }
    }

    void CheckTable() {
        std::string table;
        const bool found = Check(GameTableFile(), [&table](const FoundFile& file) {
            table = file.bytes;
            return CheckGameTable(file);
        });
        if (!found) {
            Keep(GameTableFile().name, "is missing",
                 "Ballhaven begins a new table of unused slots; draws and plays are in files of their own.",
                 Remedy::User);
        }
        table = WholeTable(table);
        games = GamesOf(table);
        folderIsMended = IsMended(TableRecord(table, 1));
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
            Keep(
                file.name, "cannot be read: " + error.code().message(),
                "Ballhaven ends with a message where it needs it; \"ballhaven-data set --shown\" chooses another game.",
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
    std::vector<GameOnFile> games;
    bool folderIsMended = false;
};

}  // namespace

CheckedFolder CheckFolder(const std::string& directory) {
    return FolderExamination(directory).Run();
}

}  // namespace ballhaven::data
