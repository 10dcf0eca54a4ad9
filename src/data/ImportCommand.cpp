#include "data/ImportCommand.h"

#include "data/exchange/CsvText.h"
#include "data/exchange/DrawImport.h"
#include "data/exchange/DrawMerge.h"
#include "data/folder/CountText.h"
#include "data/folder/DrawsOnFile.h"
#include "data/folder/FolderFiles.h"
#include "data/folder/GamesOnFile.h"
#include "data/folder/IsoDate.h"
#include "data/folder/Refusal.h"
#include "state/MendedFolder.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <optional>
#include <span>
#include <system_error>
#include <utility>

namespace ballhaven::data {

namespace {

constexpr std::size_t datesNamed = 20;

/// A game of a folder as it stands before the import.
struct Target {
    GameOnFile game;
    std::optional<std::string> content;  ///< of its file of draws
    DrawsOnFile before;                  ///< with as many digits of its dates as the file is to have
};

Target ReadTarget(const std::string& directory, const std::string& word) {
    const std::vector<GameOnFile> games = ReadGames(directory);
    Target target;
    target.game = FindPlayableGame(games, word);
    target.content = ReadFolderFile(directory, HistoryFileOf(target.game.slot));
    target.before = DrawsOf(target.content.value_or(""), TotalPicksOf(target.game.rules));
    if (IsMended(ReadFolderFile(directory, GameTableFile()).value_or(""))) {
        target.before.digits = DateDigits::Five;
    }
    return target;
}

std::ifstream Opened(const std::string& path) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (!error && std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        throw Refusal(path + " is no file that can be read twice. Save the draws in one, and name that.");
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw Refusal(path + " cannot be opened: " + std::generic_category().message(errno) + ".");
    }
    return file;
}

std::string Range(const std::vector<DrawOnFile>& draws) {
    return draws.empty() ? std::string() : ", " + IsoDate(draws.front().date) + " to " + IsoDate(draws.back().date);
}

std::string Listed(const std::vector<int>& dates) {
    std::string list;
    for (const int date : std::span(dates).first(std::min(dates.size(), datesNamed))) {
        list += (list.empty() ? "" : ", ") + IsoDate(date);
    }
    return list + (dates.size() > datesNamed ? " and " + std::to_string(dates.size() - datesNamed) + " more" : "");
}

/// Tells the faults of a file, and refuses it for them. `canBeHeader` says that its first line was not taken for one,
/// and that the user did not say what it is.
void RefuseForFaults(const std::string& path, const FaultList& faults, bool canBeHeader, std::ostream& notes) {
    if (faults.Count() == 0) {
        return;
    }
    for (const LineFault& fault : faults.First()) {
        notes << path << ", line " << fault.line << ": " << fault.words << '\n';
    }
    const auto others = faults.Count() - std::ssize(faults.First());
    if (others > 0) {
        notes << path << ": and " << CountText(others, "line") << " more\n";
    }
    throw Refusal(path + " has " + CountText(faults.Count(), "line") +
                  " that cannot be taken. Nothing was changed: correct or remove them, and try again." +
                  (canBeHeader && faults.First().front().line == 1 ? " If line 1 is a header, add --header." : ""));
}

struct ImportedFile {
    FileForm form;
    ImportedDraws content;
};

ImportedFile ReadImportedFile(const ImportOptions& options, const Target& target) {
    std::ifstream file = Opened(options.file);
    try {
        const FileForm form = RecognisedForm(file, options.form, target.game.rules);
        return {form, ImportDraws(file, form, target.game.rules, LastDateOf(target.before.digits))};
    } catch (const Refusal& refusal) {
        throw Refusal(options.file + ": " + refusal.what() + ".");
    }
}

std::string AboveText(int records) {
    if (records > 1) {
        return ", " + std::to_string(records) + " lines above the draws";
    }
    return records == 1 ? ", header" : "";
}

void TellOfFile(const ImportOptions& options, const ImportedFile& file, std::ostream& out) {
    out << options.file << " (" << NameOfDelimiter(file.form.delimiter) << AboveText(file.form.recordsAbove)
        << ", dates " << NameOf(file.form.dates) << "): " << CountText(std::ssize(file.content.draws), "draw")
        << Range(file.content.draws) << '\n';
    if (file.content.incomplete > 0) {
        out << "  " << CountText(file.content.incomplete, "draw") << " without all picks\n";
    }
}

/// What stands in the game's file and does not outlast the import.
void TellOfLoss(const Target& target, std::ostream& out) {
    const BesideDraws lost = BesideDrawsOf(target.content.value_or(""), TotalPicksOf(target.game.rules));
    const std::string wayOut = "; ballhaven-data check tells which\n";
    if (lost.recordsWithoutDate > 0) {
        out << "  dropped, since no date can be read in it: " << CountText(lost.recordsWithoutDate, "record") << wayOut;
    }
    if (lost.drawsWithMorePicks > 0) {
        out << "  with more picks than the game draws, which are dropped: "
            << CountText(lost.drawsWithMorePicks, "draw") << '\n';
    }
}

void TellOfMerge(const Target& target, const MergedDraws& merged, bool replaces, std::ostream& out) {
    out << "Slot " << target.game.slot << ", " << target.game.Title() << ": "
        << CountText(std::ssize(target.before.draws), "draw") << " before\n"
        << "  new: " << merged.added << '\n';
    if (!merged.alike.empty()) {
        out << "  there already with the same picks: " << merged.alike.size() << " (" << Listed(merged.alike) << ")\n";
    }
    if (!merged.different.empty()) {
        out << "  there already with other picks, "
            << (replaces ? "replaced" : "left alone (--replace takes those of the file)") << ": "
            << merged.different.size() << " (" << Listed(merged.different) << ")\n";
    }
    if (!merged.leftOut.empty()) {
        out << "  left out, since a game keeps the newest " << historyRows << ": " << merged.leftOut.size()
            << ", up to " << IsoDate(merged.leftOut.back());
        if (merged.leftOutOfGame > 0) {
            out << ", " << merged.leftOutOfGame << " of them from the game";
        }
        out << '\n';
    }
    out << "  then: " << CountText(std::ssize(merged.draws), "draw") << Range(merged.draws) << '\n';
}

}  // namespace

std::string ImportFile(const WorkFolder& folder, const ImportOptions& options, const Console& console) {
    const Target target = ReadTarget(folder.Path(), options.game);
    ImportedFile file = ReadImportedFile(options, target);
    const bool canBeHeader = file.form.recordsAbove == 0 && !options.form.header;
    RefuseForFaults(options.file, file.content.faults, canBeHeader, console.notes);
    TellOfFile(options, file, console.out);
    const MergedDraws merged =
        Merged(target.game.rules, target.before.draws, std::move(file.content.draws), options.replaces);
    TellOfMerge(target, merged, options.replaces, console.out);
    if (merged.changesGame) {
        TellOfLoss(target, console.out);
    } else {
        console.out << "There is nothing to change.\n";
        return {};
    }
    if (!options.applies) {
        console.out << "Nothing was changed: this is what would happen. Add --apply to do it.\n";
        return {};
    }
    const std::string content = ContentOf({target.before.digits, merged.draws}, target.content);
    const std::string copy = folder.Change({{HistoryFileOf(target.game.slot).name, content}}, "import");
    std::string changed = "Done. What the game held before is kept in " + copy + ".";
    console.out << changed << '\n';
    return changed;
}

}  // namespace ballhaven::data
