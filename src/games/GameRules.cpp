#include "games/GameRules.h"

#include "forms/NewGameForm.h"
#include "platform/Application.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace ballhaven {

namespace {

constexpr int mostPicks = 10;
constexpr int highestNumber = 99;
constexpr int lowestCard = 1;
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

void Show(GameList list, bool shown) {
    ListOf(list).visible = shown;
    LabelOf(list).visible = shown;
}

void Hide(GameList list) {
    ListOf(list).Select(-1);
    Show(list, false);
}

/// Fills a list with the numbers from 1 to `last`; none where `last` is below 1.
void FillWithNumbers(GameList list, int last) {
    std::vector<std::string> numbers;
    for (int number = 1; number <= last; ++number) {
        numbers.push_back(std::to_string(number));
    }
    ListOf(list).Fill(std::move(numbers));
}

/// The number in a list of numbers from 1, 0 where none is selected.
int SelectedNumber(GameList list) {
    return ListOf(list).Selected() + 1;
}

int RecordValue(RecordField field) {
    return FieldValue(appState.gameRecord, field);
}

bool RecordSays(RecordField field, const char* text) {
    return FieldText(appState.gameRecord, field) == text;
}

void FillName() {
    const std::string name = FieldText(appState.gameRecord, gameField::name);
    if (!name.starts_with(undefinedGameName)) {
        frmNewGame.txtNewGame[0].text = modUTILS::Trimmed(name);
    }
}

void FillGameTypes(int type) {
    ListOf(gameTypeList).Fill({std::begin(gameTypes), std::end(gameTypes)});
    ListOf(gameTypeList).Select(type);
}

void FillCounts(int type) {
    FillWithNumbers(mainCountList, mostPicks);
    ListOf(mainCountList).Select(RecordValue(gameField::mainPickCount) - 1);
    ListOf(bonusCountList).Fill({});
    if (!HasBonus(type)) {
        Hide(bonusCountList);
        return;
    }
    Show(bonusCountList, true);
    FillWithNumbers(bonusCountList, mostPicks - RecordValue(gameField::mainPickCount));
    ListOf(bonusCountList).Select(RecordValue(gameField::bonusPickCount) - 1);
}

void FillOrder() {
    const bool matters = frmNewGame.loading && !RecordSays(gameField::order, "N");
    ListOf(orderList).Fill({"No", "Yes"});
    ListOf(orderList).Select(matters ? 1 : 0);
    SetField(appState.gameRecord, gameField::order, matters ? "Y" : "N");
}

void FillDuplicates(int type) {
    const bool allowed = !IsCardGame(type) && RecordSays(gameField::duplicates, "Y");
    ListOf(duplicatesList).Fill({"No", "Yes"});
    SetField(appState.gameRecord, gameField::duplicates, allowed ? "Y" : "N");
    if (IsCardGame(type)) {
        Hide(duplicatesList);
        return;
    }
    Show(duplicatesList, true);
    ListOf(duplicatesList).Select(allowed ? 1 : 0);
}

void FillMainLow(int type) {
    ListOf(mainLowList).Fill({"0", "1"});
    if (IsCardGame(type)) {
        Hide(mainLowList);
        return;
    }
    Show(mainLowList, true);
    const int low = RecordValue(gameField::mainLow);
    ListOf(mainLowList).Select(low);
    SetFieldValue(appState.gameRecord, gameField::mainLow, low);
}

void FillMainHigh(int type) {
    ListOf(mainHighList).Fill({});
    if (IsCardGame(type)) {
        Hide(mainHighList);
        return;
    }
    Show(mainHighList, true);
    const int limit = HighestNumberLimit(RecordSays(gameField::duplicates, "Y"), RecordValue(gameField::mainPickCount),
                                         RecordValue(gameField::mainLow));
    FillWithNumbers(mainHighList, limit);
    const int entry = std::min(RecordValue(gameField::mainHigh), limit) - 1;
    ListOf(mainHighList).Select(entry);
    SetFieldValue(appState.gameRecord, gameField::mainHigh, entry + 1);
}

void FillBonusLow(int type) {
    ListOf(bonusLowList).Fill({"0", "1"});
    Hide(bonusLowList);
    if (type == sameBonusPool) {
        ListOf(bonusLowList).Select(ListOf(mainLowList).Selected());
    } else if (type == separateBonusPool) {
        Show(bonusLowList, true);
        ListOf(bonusLowList).Select(RecordValue(gameField::bonusLow));
    }
    SetField(appState.gameRecord, gameField::bonusLow, std::to_string(ListOf(bonusLowList).Selected()));
}

void FillBonusHigh(int type) {
    Hide(bonusHighList);
    if (type != sameBonusPool && type != separateBonusPool) {
        SetFieldValue(appState.gameRecord, gameField::bonusHigh, highestCard);
        return;
    }
    const int limit = HighestNumberLimit(RecordSays(gameField::duplicates, "Y"), RecordValue(gameField::bonusPickCount),
                                         RecordValue(gameField::bonusLow));
    FillWithNumbers(bonusHighList, limit);
    if (type == sameBonusPool) {
        ListOf(bonusHighList).Select(ListOf(mainHighList).Selected());
    } else {
        Show(bonusHighList, true);
        ListOf(bonusHighList).Select(std::min(RecordValue(gameField::bonusHigh), limit) - 1);
    }
    SetFieldValue(appState.gameRecord, gameField::bonusHigh, SelectedNumber(bonusHighList));
}

/// Fills the list of the other count with what a changed count leaves of ten picks, and keeps `wanted` in it if it can.
void OfferWhatIsLeft(GameList changed, GameList other, int wanted) {
    const int left = mostPicks - SelectedNumber(changed);
    FillWithNumbers(other, left);
    ListOf(other).Select(std::min(wanted, left) - 1);
}

/// The selected count, or that of the record where none is selected.
int CountOf(GameList list, RecordField field) {
    return ListOf(list).Selected() >= 0 ? SelectedNumber(list) : RecordValue(field);
}

// QUIRK GAME-HIGHEST-1: a highest number that a shorter list cuts off stays cut when the list grows again, and the
// lowest bonus number does not rebuild the bonus list at all. Both are meant: the dialog remembers no number that it
// does not show, and the bonus list follows the answers of column one and its own count.
void RefreshHighest(GameList highest, GameList count, GameList lowest) {
    const int selected = ListOf(highest).Selected();
    const bool duplicates = ListOf(duplicatesList).Selected() != 0;
    const int limit = HighestNumberLimit(duplicates, SelectedNumber(count), ListOf(lowest).Selected());
    ListOf(highest).Fill({});
    platform::ProcessPendingEvents();
    FillWithNumbers(highest, limit);
    ListOf(highest).Select(std::min(selected, limit - 1));
}

void TakeLimits() {
    if (IsCardGame(appState.gameType)) {
        appState.mainLow = lowestCard;
        appState.mainHigh = highestCard;
        appState.bonusLow = lowestCard;
        appState.bonusHigh = highestCard;
    } else {
        // QUIRK GAME-BONUS-LIMITS-1: in a game without bonus nothing is selected in the hidden bonus lists, so the
        // record gets "-" and "00" there; in one with the bonus from the same pool they keep the limits of the last
        // fill, which can differ from changed main limits. Both are meant: games in use have these records, and writing
        // the main limits would change the reach of their bonus picks.
        appState.mainLow = modUTILS::ToInt16(ListOf(mainLowList).Selected());
        appState.mainHigh = modUTILS::ToInt16(SelectedNumber(mainHighList));
        appState.bonusLow = modUTILS::ToInt16(ListOf(bonusLowList).Selected());
        appState.bonusHigh = modUTILS::ToInt16(SelectedNumber(bonusHighList));
    }
    SetField(appState.gameRecord, gameField::mainLow, std::to_string(appState.mainLow));
    SetFieldValue(appState.gameRecord, gameField::mainHigh, appState.mainHigh);
    SetField(appState.gameRecord, gameField::bonusLow, std::to_string(appState.bonusLow));
    SetFieldValue(appState.gameRecord, gameField::bonusHigh, appState.bonusHigh);
}

}  // namespace

int HighestNumberLimit(bool duplicates, int picks, int low) {
    if (!duplicates || picks == 0) {
        return highestNumber;
    }
    const int run = highestNumber / picks;
    return low == 1 ? run : run - picks;
}

void FillGameDialog() {
    const int type = RecordValue(gameField::gameType);
    frmNewGame.filling = true;
    FillName();
    FillGameTypes(type);
    FillCounts(type);
    FillOrder();
    FillDuplicates(type);
    FillMainLow(type);
    FillMainHigh(type);
    FillBonusLow(type);
    FillBonusHigh(type);
}

void ChangeGameType() {
    appState.gameRecord = BuildDefaultGameRecord(appState.gameDialogSlot, ListOf(gameTypeList).Selected());
    FillGameDialog();
    frmNewGame.filling = false;
}

void ChangeMainCount() {
    frmNewGame.filling = true;
    OfferWhatIsLeft(mainCountList, bonusCountList, CountOf(bonusCountList, gameField::bonusPickCount));
    RefreshHighestLists();
    frmNewGame.filling = false;
}

void ChangeBonusCount() {
    frmNewGame.filling = true;
    OfferWhatIsLeft(bonusCountList, mainCountList, CountOf(mainCountList, gameField::mainPickCount));
    RefreshHighestLists();
    frmNewGame.filling = false;
}

void RefreshHighestLists() {
    const int type = ListOf(gameTypeList).Selected();
    if (IsCardGame(type)) {
        return;
    }
    RefreshHighest(mainHighList, mainCountList, mainLowList);
    if (type != 0) {
        RefreshHighest(bonusHighList, bonusCountList, bonusLowList);
    }
}

void TakeGameRules() {
    std::string& record = appState.gameRecord;
    SetField(record, gameField::name, modUTILS::Trimmed(*frmNewGame.txtNewGame[0].text));
    appState.gameType = modUTILS::ToInt16(ListOf(gameTypeList).Selected());
    SetField(record, gameField::gameType, std::to_string(appState.gameType));
    appState.mainPickCount = modUTILS::ToInt16(SelectedNumber(mainCountList));
    SetFieldValue(record, gameField::mainPickCount, appState.mainPickCount);
    appState.bonusPickCount = modUTILS::ToInt16(SelectedNumber(bonusCountList));
    SetField(record, gameField::bonusPickCount, std::to_string(appState.bonusPickCount));
    SetField(record, gameField::order, ListOf(orderList).Selected() == 0 ? "N" : "Y");
    appState.orderMatters = false;
    appState.duplicatesAllowed = !IsCardGame(appState.gameType) && ListOf(duplicatesList).Selected() != 0;
    SetField(record, gameField::duplicates, appState.duplicatesAllowed ? "Y" : "N");
    TakeLimits();
}

}  // namespace ballhaven
