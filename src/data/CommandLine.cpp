#include "data/CommandLine.h"

#include "data/GamesCommand.h"
#include "data/folder/Refusal.h"
#include "data/folder/WorkFolder.h"
#include "state/RuntimeFailure.h"

#include <CLI/CLI.hpp>
#include <algorithm>

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

    std::string folder;
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
