#include "data/CommandLine.h"

#include "data/CheckCommand.h"
#include "data/CopyCommands.h"
#include "data/ExportCommand.h"
#include "data/GamesCommand.h"
#include "data/GuaranteeCommand.h"
#include "data/ImportCommand.h"
#include "data/MendCommand.h"
#include "data/SetCommand.h"
#include "data/WinnersCommand.h"
#include "data/exchange/CsvText.h"
#include "data/exchange/DateForm.h"
#include "data/folder/Refusal.h"
#include "data/folder/WorkFolder.h"
#include "state/AppState.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <optional>
#include <string_view>

namespace ballhaven::data {

namespace {

/// What is wrong with a text for a history set; the empty text for one that can be chosen.
std::string IsHistorySet(const std::string& text) {
    int size = 0;
    const bool isNumber = CLI::detail::lexical_cast(text, size);
    return isNumber && size >= smallestHistorySet && size <= largestHistorySet && size % historySetStep == 0
               ? ""
               : text + " is no history set: 10, 20 and so on to 1000";
}

/// What is wrong with a text that has to name a file or a folder.
std::string IsNamed(const std::string& text) {
    return text.empty() ? "it names nothing" : "";
}

/// What a line asks for: the folder, and one command with its options.
class Commands {
  public:
    Commands(const std::string& ownFolder, const Console& output) : folder(ownFolder), console(output) {
        app.name("ballhaven-data");
        app.require_subcommand(1);
        app.fallthrough();
        app.add_option("--folder", folder, "The folder of the data; without it the one that this program lies in")
            ->type_name("DIRECTORY")
            ->check(IsNamed);
        AddGames();
        AddImport();
        AddExport();
        AddWinners();
        AddGuarantee();
        AddCheck();
        AddBackup();
        AddRestore();
        AddMend();
        AddSet();
    }

    /// Reads the line and runs its command. Throws CLI::ParseError and Refusal.
    ExitCode Run(std::vector<std::string> arguments) {
        std::ranges::reverse(arguments);
        app.parse(std::move(arguments));
        if (!console.out.flush()) {
            TellOfLostOutput();
        }
        return end;
    }

    ExitCode Explain(const CLI::ParseError& error) const {
        return app.exit(error, console.out, console.notes) == 0 ? done : wrongUsage;
    }

  private:
    /// Where the command has changed something, lost words about it are no refusal.
    void TellOfLostOutput() const {
        const std::string words = "The output could not be written to its end";
        if (changed.empty()) {
            throw Refusal(words + ".");
        }
        console.notes << "ballhaven-data: " << words << ", but the command is done: " << changed << '\n';
    }

    /// A command of the line, which runs when the whole line has been read.
    CLI::App& Add(const std::string& name, const std::string& what, const std::string& example) {
        CLI::App& command = *app.add_subcommand(name, what);
        command.footer("Example: ballhaven-data " + example);
        return command;
    }

    void AddGames() {
        CLI::App& games = Add("games", "Lists the games of the folder, with their draws and plays", "games");
        games.callback([this] { ListGames(WorkFolder(folder), console); });
    }

    static void AddGame(CLI::App& command, std::string& game) {
        command.add_option("GAME", game, "The game: the number of its slot, or its name")->type_name("")->required();
    }

    void AddImport() {
        CLI::App& command = Add(
            "import",
            "Brings the draws of a CSV or TSV file into a game; shows only what would happen, unless told to apply it",
            "import Lotto draws.csv --dates d.m.y --apply");
        AddGame(command, importing.game);
        command.add_option("FILE", importing.file, "The file of draws: a date and picks in each line")
            ->type_name("")
            ->required()
            ->check(IsNamed);
        AddChecked(command, "--delimiter",
                   "What divides the fields: comma, semicolon, tab, blank or the character itself",
                   importing.form.delimiter, DelimiterNamed);
        AddChecked(command, "--dates", "The order of the dates: y-m-d, m/d/y or d.m.y", importing.form.dates,
                   OrderNamed);
        command.add_option("--columns", importing.form.columns,
                           "The columns of the date and of the picks, by number or by name in the header: 1,3-8");
        command.add_flag_callback(
            "--header", [this] { importing.form.header = true; }, "The first line is a header");
        command
            .add_flag_callback(
                "--no-header", [this] { importing.form.header = false; }, "The first line is a draw")
            ->excludes("--header");
        command.add_flag("--replace", importing.replaces, "Dates that the game has already take the picks of the file");
        command.add_flag("--apply", importing.applies, "Brings the draws in; without it nothing is changed");
        command.callback([this] { changed = ImportFile(WorkFolder(folder), importing, console); });
    }

    void AddExport() {
        CLI::App& command =
            Add("export", "Writes the draws of a game, or its plays, as CSV", "export Lotto --output draws.csv");
        AddGame(command, exporting.game);
        command.add_flag("--plays", exporting.plays, "The plays in use instead of the draws");
        command.add_option("--output", exporting.output, "A new file instead of the standard output")
            ->option_text("FILE")
            ->check(IsNamed);
        command.callback([this] { ExportGame(WorkFolder(folder), exporting, console); });
    }

    void AddWinners() {
        CLI::App& command = Add("winners", "Tells how often the plays of a game have hit how much in its draws",
                                "winners Lotto --from 2010-01-01 --top 10");
        AddGame(command, winners.game);
        command.add_flag("--draws-as-tickets", winners.drawsAsTickets, "Holds past draws against the draws, not plays");
        AddChecked(command, "--from", "The first day of the draws, such as 2010-01-01", winners.from, SerialNamed);
        AddChecked(command, "--to", "The last day of the draws, such as 2010-12-31", winners.to, SerialNamed);
        command.add_option("--last", winners.last, "Takes of these draws so many of the newest alone")
            ->check(OneOrMore());
        command.add_option("--top", winners.top, "How many winners are told, the best first; else 20, or all as CSV")
            ->check(OneOrMore());
        command.add_flag("--csv", winners.csv, "Tells the winners alone, as CSV");
        command.callback([this] { ShowWinners(folder, winners, console); });
    }

    void AddGuarantee() {
        CLI::App& command =
            Add("guarantee",
                "Reckons what the plays of a game guarantee: the sets of the chosen numbers that no play hits, and "
                "in how many plays the others hit at least",
                "guarantee Lotto --numbers 1-16 --drawn 5 --hits 4 --proof missed.csv");
        AddGame(command, guarantee.game);
        command
            .add_option("--numbers", guarantee.numbers, "The chosen numbers; without it those of the plays: 3,7,20-25")
            ->check(IsNamed);
        command.add_flag("--chosen", guarantee.chosenPicks, "The chosen numbers are those chosen for the wheels")
            ->excludes("--numbers");
        command.add_option("-m,--drawn", guarantee.drawn, "How many of the chosen numbers are drawn")
            ->check(OneOrMore());
        command.add_option("-t,--hits", guarantee.hits, "How many of them a play has to hold")->check(OneOrMore());
        command
            .add_option("--proof", guarantee.proof,
                        "A new file for the sets that no play hits, or, where there are none, for a play of each set")
            ->option_text("FILE")
            ->check(IsNamed)
            ->needs("--drawn")
            ->needs("--hits");
        command.callback([this] { ShowGuarantee(folder, guarantee, console); });
    }

    static CLI::Validator OneOrMore() {
        const auto refuse = [](const std::string& text) {
            const bool isPositive = !text.empty() &&
                                    std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; }) &&
                                    text.find_first_not_of('0') != std::string::npos;
            return isPositive ? std::string() : "\"" + text + "\" is not 1 or more";
        };
        return {refuse, ""};
    }

    /// An option whose text `read` turns into a value; a text that is none is wrong usage.
    template <typename Value>
    static void AddChecked(CLI::App& command, const std::string& name, const std::string& what,
                           std::optional<Value>& value, std::optional<Value> (*read)(std::string_view)) {
        const auto take = [&value, read, name, what](const std::string& text) {
            value = read(text);
            if (!value) {
                throw CLI::ValidationError(name, "\"" + text + "\" is none that it takes. " + what);
            }
        };
        command.add_option_function<std::string>(name, take, what);
    }

    void AddCheck() {
        CLI::App& check = Add("check", "Looks for damage in every file, record and field", "check --mend");
        check.add_flag("--mend", mend, "Repairs what can be repaired without a guess");
        check.callback([this] {
            const CheckOutcome outcome = CheckData(folder, mend, console);
            end = outcome.nothingIsWrong ? done : refused;
            changed = outcome.changed;
        });
    }

    void AddBackup() {
        CLI::App& backup = Add("backup", "Copies all data into a new zip, with checksums", "backup monday.zip");
        AddZip(backup, "The zip, which must not be there yet");
        backup.callback([this] { changed = BackUp(WorkFolder(folder), zip, console); });
    }

    void AddRestore() {
        CLI::App& restore = Add("restore",
                                "Puts the files of a zip back once all of it has been verified; a copy of what "
                                "was there is kept",
                                "restore monday.zip");
        AddZip(restore, "A zip of \"backup\", or one of the folder \"copies\"");
        restore.callback([this] { changed = Restore(WorkFolder(folder), zip, console); });
    }

    void AddZip(CLI::App& command, const std::string& what) {
        command.add_option("FILE", zip, what)->required()->type_name("")->check(IsNamed);
    }

    void AddMend() {
        CLI::App& mending = Add("mend",
                                "Marks the folder as mended, so that it keeps the dates of today, and daily use loses "
                                "nothing that was entered",
                                "mend");
        mending.callback([this] { changed = MendFolder(WorkFolder(folder), console); });
    }

    void AddSet() {
        CLI::App& set = Add("set",
                            "Sets how many draws a game shows, or which game is shown first, where Ballhaven ends "
                            "when it starts",
                            "set \"Three Digits\" --history-set 100");
        CLI::Option* const game =
            set.add_option("GAME", settings.game, "The game of the history set: its name or the number of its slot")
                ->type_name("");
        CLI::Option* const historySet =
            set.add_option("--history-set", settings.historySet, "The last so many draws: 10, 20 and so on to 1000");
        historySet->type_name("N")->check(IsHistorySet)->needs(game);
        game->needs(historySet);
        set.add_option("--shown", settings.shownSlot, "The slot that is shown first: 1 to 20")
            ->type_name("N")
            ->check(CLI::Range(1, gameSlots));
        set.require_option(1, 0);
        set.callback([this] { changed = Set(WorkFolder(folder), settings, console); });
    }

    std::string folder;
    ImportOptions importing;
    ExportOptions exporting;
    WinnersOptions winners;
    GuaranteeOptions guarantee;
    std::string zip;
    bool mend = false;
    SetOptions settings;
    ExitCode end = done;
    std::string changed;  ///< what the command has changed, in words; empty for nothing
    const Console& console;
    CLI::App app{"Takes draws in and out of a Ballhaven folder, checks it and copies it."};
};

}  // namespace

ExitCode RunCommandLine(std::vector<std::string> arguments, const std::string& ownFolder, const Console& console) {
    Commands commands(ownFolder, console);
    try {
        return commands.Run(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return commands.Explain(error);
    } catch (const std::exception& failure) {
        console.notes << "ballhaven-data: " << failure.what() << '\n';
    }
    return refused;
}

}  // namespace ballhaven::data
