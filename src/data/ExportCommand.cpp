#include "data/ExportCommand.h"

#include "data/exchange/DrawExport.h"
#include "data/exchange/PlayExport.h"
#include "data/folder/DrawsOnFile.h"
#include "data/folder/GamesOnFile.h"
#include "data/folder/NewOutput.h"
#include "data/folder/PlaysOnFile.h"

namespace ballhaven::data {

void ExportGame(const WorkFolder& folder, const ExportOptions& options, const Console& console) {
    const std::vector<GameOnFile> games = ReadGames(folder.Path());
    const GameOnFile& game = FindPlayableGame(games, options.game);
    const std::string csv = options.plays ? CsvOfPlays(game.rules, ReadPlays(folder.Path(), game.slot))
                                          : CsvOfDraws(game.rules, ReadDraws(folder.Path(), game).draws);
    if (!options.output.empty()) {
        SaveNewOutput(folder.Path(), options.output, csv);
        return;
    }
    console.out << csv;
}

}  // namespace ballhaven::data
