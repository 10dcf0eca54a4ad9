#include "data/CommandLine.h"

#include "data/ExportCommand.h"
#include "data/GamesCommand.h"
#include "data/ImportCommand.h"
#include "data/exchange/CsvText.h"
#include "data/folder/Refusal.h"
#include "data/folder/WorkFolder.h"
#include "state/RuntimeFailure.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <optional>
#include <string_view>

namespace ballhaven::data {

namespace {

/// What a line asks for: the folder, and one command with its options.
class Commands {
  public:
    Commands(const std::string& ownFolder, const Console& output) : folder(ownFolder), console(output) {
        app.name("ballhaven-data");
        app.require_subcommand(1);
        app.fallthrough();
        app.add_option("--folder", folder, "The folder of the data; without it the one that this program lies in")
            ->type_name("DIRECTORY");
        AddGames();
        AddImport();
        AddExport();
    }

    /// Reads the line and runs its command. Throws CLI::ParseError and Refusal.
    void Run(std::vector<std::string> arguments) {
        std::ranges::reverse(arguments);
        app.parse(std::move(arguments));
    }

    ExitCode Explain(const CLI::ParseError& error) const {
        return app.exit(error, console.out, console.notes) == 0 ? done : wrongUsage;
    }

  private:
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
            ->required();
        AddChecked(command, "--delimiter", "comma, semicolon, tab or the character that divides the fields",
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
        command.callback([this] { ImportFile(WorkFolder(folder), importing, console); });
    }

    void AddExport() {
        CLI::App& command =
            Add("export", "Writes the draws of a game, or its plays, as CSV", "export Lotto --output draws.csv");
        AddGame(command, exporting.game);
        command.add_flag("--plays", exporting.plays, "The plays in use instead of the draws");
        command.add_option("--output", exporting.output, "A new file instead of the standard output")
            ->option_text("FILE");
        command.callback([this] { ExportGame(WorkFolder(folder), exporting, console); });
    }

    /// An option whose text `read` turns into a value; a text that is none is wrong usage.
    template <typename Value>
    static void AddChecked(CLI::App& command, const std::string& name, const std::string& what,
                           std::optional<Value>& value, std::optional<Value> (*read)(std::string_view)) {
        const auto take = [&value, read, name](const std::string& text) {
            value = read(text);
            if (!value) {
                throw CLI::ValidationError(name, "\"" + text + "\" is none that it takes");
            }
        };
        command.add_option_function<std::string>(name, take, what);
    }

    std::string folder;
    ImportOptions importing;
    ExportOptions exporting;
    const Console& console;
    CLI::App app{"Takes draws in and out of a Ballhaven folder, checks it and copies it."};
};

}  // namespace

ExitCode RunCommandLine(std::vector<std::string> arguments, const std::string& ownFolder, const Console& console) {
    Commands commands(ownFolder, console);
    try {
        commands.Run(std::move(arguments));
        return done;
    } catch (const CLI::ParseError& error) {
        return commands.Explain(error);
    } catch (const Refusal& refusal) {
        console.notes << "ballhaven-data: " << refusal.what() << '\n';
    } catch (const RuntimeFailure& failure) {
        console.notes << "ballhaven-data: " << failure.what() << '\n';
    }
    return refused;
}

}  // namespace ballhaven::data
