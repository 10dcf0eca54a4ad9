#include "games/GameQuestions.h"

#include "games/ChosenRules.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ballhaven {

namespace {

constexpr int highestCard = 52;
constexpr int sameBonusPool = 1;
constexpr int separateBonusPool = 2;

constexpr const char* gameTypes[] = {
    "Number game. No bonus numbers (No bonus, mega, plus..etc.)",
    "Number game with bonus numbers drawn from same number pool",
    "Number game with bonus numbers drawn from separate number pool",
    "Card game. No bonus cards (No bonus, mega, plus..etc.)",
    "Card game with bonus cards drawn from same deck",
    "Card game with bonus cards drawn from separate deck",
};

GameQuestion Question(std::vector<std::string> entries, int selected) {
    const int last = static_cast<int>(entries.size()) - 1;
    return {std::move(entries), std::clamp(selected, -1, last)};
}

GameQuestion Unasked(std::vector<std::string> entries = {}, int selected = -1) {
    GameQuestion question = Question(std::move(entries), selected);
    question.shown = false;
    return question;
}

/// The numbers from 1 to `last`; none where `last` is below 1.
std::vector<std::string> NumbersTo(int last) {
    std::vector<std::string> numbers;
    for (int number = 1; number <= last; ++number) {
        numbers.push_back(std::to_string(number));
    }
    return numbers;
}

bool AllowsDuplicates(const std::string& record) {
    return FieldText(record, gameField::duplicates) == "Y";
}

GameQuestion AskType(int type) {
    return Question({std::begin(gameTypes), std::end(gameTypes)}, type);
}

GameQuestion AskMainCount(const std::string& record) {
    return Question(NumbersTo(mostPicksOfDraw), FieldValue(record, gameField::mainPickCount) - 1);
}

GameQuestion AskBonusCount(const std::string& record, int type) {
    if (!HasBonus(type)) {
        return Unasked();
    }
    const int left = mostPicksOfDraw - FieldValue(record, gameField::mainPickCount);
    return Question(NumbersTo(left), FieldValue(record, gameField::bonusPickCount) - 1);
}

GameQuestion AskOrder(std::string& record, bool opening) {
    const bool matters = opening && FieldText(record, gameField::order) != "N";
    SetField(record, gameField::order, matters ? "Y" : "N");
    return Question({"No", "Yes"}, matters ? 1 : 0);
}

GameQuestion AskDuplicates(std::string& record, int type) {
    const bool allowed = !IsCardGame(type) && AllowsDuplicates(record);
    SetField(record, gameField::duplicates, allowed ? "Y" : "N");
    return IsCardGame(type) ? Unasked({"No", "Yes"}) : Question({"No", "Yes"}, allowed ? 1 : 0);
}

GameQuestion AskMainLow(std::string& record, int type) {
    if (IsCardGame(type)) {
        return Unasked({"0", "1"});
    }
    const int low = FieldValue(record, gameField::mainLow);
    SetFieldValue(record, gameField::mainLow, low);
    return Question({"0", "1"}, low);
}

GameQuestion AskMainHigh(std::string& record, int type) {
    if (IsCardGame(type)) {
        return Unasked();
    }
    const int limit = HighestNumberLimit(AllowsDuplicates(record), FieldValue(record, gameField::mainPickCount),
                                         FieldValue(record, gameField::mainLow));
    const int high = std::min<int>(FieldValue(record, gameField::mainHigh), limit);
    SetFieldValue(record, gameField::mainHigh, high);
    return Question(NumbersTo(limit), high - 1);
}

GameQuestion AskBonusLow(std::string& record, int type, const GameQuestion& mainLow) {
    GameQuestion question = Unasked({"0", "1"});
    if (type == sameBonusPool) {
        question.selected = mainLow.selected;
    } else if (type == separateBonusPool) {
        question = Question({"0", "1"}, FieldValue(record, gameField::bonusLow));
    }
    SetField(record, gameField::bonusLow, std::to_string(question.selected));
    return question;
}

GameQuestion AskBonusHigh(std::string& record, int type, const GameQuestion& mainHigh) {
    if (type != sameBonusPool && type != separateBonusPool) {
        SetFieldValue(record, gameField::bonusHigh, highestCard);
        return Unasked();
    }
    const int limit = HighestNumberLimit(AllowsDuplicates(record), FieldValue(record, gameField::bonusPickCount),
                                         FieldValue(record, gameField::bonusLow));
    const int high = std::min<int>(FieldValue(record, gameField::bonusHigh), limit);
    GameQuestion question =
        type == sameBonusPool ? Unasked(NumbersTo(limit), mainHigh.selected) : Question(NumbersTo(limit), high - 1);
    SetFieldValue(record, gameField::bonusHigh, question.selected + 1);
    return question;
}

}  // namespace

AskedGame AskAbout(std::string record, bool opening) {
    const int type = FieldValue(record, gameField::gameType);
    GameQuestions questions;
    questions.type = AskType(type);
    questions.mainCount = AskMainCount(record);
    questions.bonusCount = AskBonusCount(record, type);
    questions.order = AskOrder(record, opening);
    questions.duplicates = AskDuplicates(record, type);
    questions.mainLow = AskMainLow(record, type);
    questions.mainHigh = AskMainHigh(record, type);
    questions.bonusLow = AskBonusLow(record, type, questions.mainLow);
    questions.bonusHigh = AskBonusHigh(record, type, questions.mainHigh);
    return {std::move(questions), std::move(record)};
}

GameQuestion CountBeside(int changedCount, int selectedEntry, int recordedCount) {
    const int left = mostPicksOfDraw - changedCount;
    const int wanted = selectedEntry >= 0 ? selectedEntry + 1 : recordedCount;
    return Question(NumbersTo(left), std::min(wanted, left) - 1);
}

// QUIRK GAME-HIGHEST-1: a highest number that a shorter list cuts off stays cut when the list grows again, and the
// lowest bonus number does not rebuild the bonus list at all. Habits rest on it.
GameQuestion HighestNumber(bool duplicates, int picks, int low, int selectedEntry) {
    return Question(NumbersTo(HighestNumberLimit(duplicates, picks, low)), selectedEntry);
}

}  // namespace ballhaven
