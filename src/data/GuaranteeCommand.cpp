#include "data/GuaranteeCommand.h"

#include "data/ProgressBar.h"
#include "data/folder/ChosenPicksOnFile.h"
#include "data/folder/GamesOnFile.h"
#include "data/folder/NewOutput.h"
#include "data/folder/Picks.h"
#include "data/folder/PlaysOnFile.h"
#include "data/folder/Refusal.h"
#include "data/folder/WorkFolder.h"
#include "data/guarantee/Guarantees.h"
#include "data/guarantee/NamedNumbers.h"
#include "data/guarantee/ProofText.h"
#include "data/guarantee/Questions.h"
#include "data/guarantee/Wheel.h"
#include "plays/PlaySlips.h"

#include <iomanip>
#include <optional>

namespace ballhaven::data {

namespace {

struct GameWheel {
    GameOnFile game;
    Wheel wheel;

    [[nodiscard]] int Numbers() const { return static_cast<int>(wheel.numbers.size()); }
};

std::vector<int> ChosenBy(const GuaranteeOptions& options, const GameOnFile& game, const std::string& directory) {
    if (!options.chosenPicks) {
        return options.numbers.empty() ? std::vector<int>() : NamedNumbers(game.rules, options.numbers);
    }
    std::vector<int> chosen = ChosenNumbers(game.rules, ReadChosenPicks(directory, game.slot));
    if (chosen.empty()) {
        throw Refusal("No picks are chosen for the wheels of " + game.Title() +
                      ". Choose some in Ballhaven's \"Wheel and Shuffle\", or name them with --numbers.");
    }
    return chosen;
}

GameWheel ReadWheel(const std::string& directory, const GuaranteeOptions& options) {
    const WorkFolder folder(directory);
    const std::vector<GameOnFile> games = ReadGames(folder.Path());
    const GameOnFile& game = FindPlayableGame(games, options.game);
    if (game.rules.duplicatesAllowed) {
        throw Refusal("In " + game.Title() +
                      " a number can be drawn twice, and guarantees are reckoned for different numbers alone.");
    }
    Wheel wheel = WheelOf(game.rules, ReadPlays(folder.Path(), game.slot), ChosenBy(options, game, folder.Path()));
    if (wheel.plays.empty()) {
        throw Refusal(game.Title() + " has no play with all its main picks. Make some in Ballhaven first.");
    }
    return {game, std::move(wheel)};
}

void TellWheel(const GameWheel& of, const Console& console) {
    const GameRules& rules = of.game.rules;
    console.out << of.game.Title() << ", " << rules.mainPickCount << " picks a play. Plays: " << of.wheel.plays.size()
                << ". Chosen picks: " << of.Numbers() << ", " << PickTexts(rules, of.wheel.numbers) << '\n';
    if (!of.wheel.partPlays.empty()) {
        console.notes << "Plays without all their main picks are left out:";
        for (const int play : of.wheel.partPlays) {
            console.notes << ' ' << NameOfPlay(play);
        }
        console.notes << '\n';
    }
    if (rules.orderMatters) {
        console.notes << "The order of the picks is left aside.\n";
    }
}

void TellLine(const GameWheel& of, const Guarantee& guarantee, const Console& console) {
    console.out << std::setw(5) << guarantee.drawn << std::setw(6) << guarantee.hits << std::setw(7)
                << (guarantee.missed == 0 ? "yes" : "no") << std::setw(12) << guarantee.sets << std::setw(12)
                << guarantee.missed << std::setw(13) << guarantee.leastPlays << "  "
                << PickTexts(of.game.rules, NumbersAt(of.wheel, guarantee.weakest)) << '\n';
}

std::vector<Guarantee> Answer(const Question& question, const PlayBits& plays, const Console& console) {
    if (TakesAWhile(question)) {
        console.notes << "Looking at " << SizeText(question, plays.Numbers()) << ".\n";
    }
    ProgressBar bar(console, std::to_string(question.drawn) + " out of " + std::to_string(plays.Numbers()));
    return FindGuarantees(plays, question.drawn, question.fewestHits, question.mostHits,
                          [&bar](double share) { bar.Show(share); });
}

void WriteProof(const GameWheel& of, const Guarantee& guarantee, NewOutput& file, const std::string& path,
                const Console& console) {
    const ProofOf kind = guarantee.missed > 0 ? ProofOf::MissedSets : ProofOf::HitSets;
    TellProof(of.game.rules, of.wheel, guarantee.drawn, guarantee.hits, kind,
              [&file](std::string_view line) { file.Add(line); });
    file.Save();
    console.notes << path << " lists "
                  << (kind == ProofOf::MissedSets ? "the sets that no play hits.\n"
                                                  : "every set with a play that hits it.\n");
}

}  // namespace

void ShowGuarantee(const std::string& folder, const GuaranteeOptions& options, const Console& console) {
    const GameWheel of = ReadWheel(folder, options);
    const Questions questions = QuestionsFor(of.Numbers(), of.game.rules.mainPickCount, options.drawn, options.hits);
    std::optional<NewOutput> proof;
    if (!options.proof.empty()) {
        proof.emplace(folder, options.proof);
    }
    TellWheel(of, console);
    const PlayBits plays(of.Numbers(), of.wheel.holds);
    console.out << "drawn  hits  holds        sets      missed  least plays  for\n";
    for (const Question& question : questions.asked) {
        for (const Guarantee& guarantee : Answer(question, plays, console)) {
            TellLine(of, guarantee, console);
            if (proof) {
                WriteProof(of, guarantee, *proof, options.proof, console);
            }
        }
    }
    for (const Question& question : questions.leftOut) {
        console.notes << "Left out: " << SizeText(question, of.Numbers()) << ". Ask for them with --drawn "
                      << question.drawn << ", or name fewer numbers with --numbers.\n";
    }
}

}  // namespace ballhaven::data
