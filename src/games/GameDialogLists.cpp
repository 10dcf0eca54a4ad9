#include "games/GameDialogLists.h"

#include "forms/NewGameForm.h"
#include "games/ChosenRules.h"
#include "games/GameQuestions.h"
#include "platform/Application.h"
#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "state/modUTILS.h"

#include <string>

namespace ballhaven {

namespace {

using modUTILS::ToInt16;

/// Where a question of the dialog stands.
struct Place {
    GameList list;
    GameQuestion GameQuestions::*question;
    int GameChoices::*choice;
};

constexpr Place places[] = {
    {gameTypeList, &GameQuestions::type, &GameChoices::type},
    {mainCountList, &GameQuestions::mainCount, &GameChoices::mainCount},
    {bonusCountList, &GameQuestions::bonusCount, &GameChoices::bonusCount},
    {orderList, &GameQuestions::order, &GameChoices::order},
    {duplicatesList, &GameQuestions::duplicates, &GameChoices::duplicates},
    {mainLowList, &GameQuestions::mainLow, &GameChoices::mainLow},
    {mainHighList, &GameQuestions::mainHigh, &GameChoices::mainHigh},
    {bonusLowList, &GameQuestions::bonusLow, &GameChoices::bonusLow},
    {bonusHighList, &GameQuestions::bonusHigh, &GameChoices::bonusHigh},
};

void ShowEntries(GameList list, const GameQuestion& question) {
    ListOf(list).Fill(question.entries);
    ListOf(list).Select(question.selected);
}

void ShowQuestion(GameList list, const GameQuestion& question) {
    ShowEntries(list, question);
    ListOf(list).visible = question.shown;
    LabelOf(list).visible = question.shown;
}

/// Shows a rebuilt list of highest numbers, whose window is drawn with the empty one in between.
void ShowHighest(GameList list, const GameQuestion& question) {
    ListOf(list).Fill({});
    platform::ProcessPendingEvents();
    ShowEntries(list, question);
}

void ShowName(const std::string& record) {
    if (!CountsAsFree(record)) {
        frmNewGame.txtNewGame[0].text = modUTILS::Trimmed(GameName(record));
    }
}

GameChoices SelectedChoices() {
    GameChoices choices;
    for (const Place& place : places) {
        choices.*place.choice = ListOf(place.list).Selected();
    }
    return choices;
}

}  // namespace

void FillGameDialog() {
    frmNewGame.filling = true;
    ShowName(appState.gameRecord);
    const AskedGame game = AskAbout(appState.gameRecord, frmNewGame.loading);
    for (const Place& place : places) {
        ShowQuestion(place.list, game.questions.*place.question);
    }
    appState.gameRecord = game.record;
}

void ChangeGameType() {
    appState.gameRecord = BuildDefaultGameRecord(appState.gameDialogSlot, ListOf(gameTypeList).Selected());
    FillGameDialog();
    frmNewGame.filling = false;
}

void ChangeMainCount() {
    frmNewGame.filling = true;
    const GameChoices choices = SelectedChoices();
    const int recorded = FieldValue(appState.gameRecord, gameField::bonusPickCount);
    ShowEntries(bonusCountList, CountBeside(choices.mainCount + 1, choices.bonusCount, recorded));
    RefreshHighestLists();
    frmNewGame.filling = false;
}

void ChangeBonusCount() {
    frmNewGame.filling = true;
    const GameChoices choices = SelectedChoices();
    const int recorded = FieldValue(appState.gameRecord, gameField::mainPickCount);
    ShowEntries(mainCountList, CountBeside(choices.bonusCount + 1, choices.mainCount, recorded));
    RefreshHighestLists();
    frmNewGame.filling = false;
}

void RefreshHighestLists() {
    const GameChoices before = SelectedChoices();
    if (IsCardGame(before.type)) {
        return;
    }
    ShowHighest(mainHighList,
                HighestNumber(before.duplicates != 0, before.mainCount + 1, before.mainLow, before.mainHigh));
    if (before.type == 0) {
        return;
    }
    const GameChoices now = SelectedChoices();
    ShowHighest(bonusHighList, HighestNumber(now.duplicates != 0, now.bonusCount + 1, now.bonusLow, now.bonusHigh));
}

void TakeGameRules() {
    const GameRules rules = RulesOf(SelectedChoices());
    appState.gameRecord = WithRules(appState.gameRecord, frmNewGame.txtNewGame[0].text, rules);
    appState.gameType = ToInt16(rules.gameType);
    appState.mainPickCount = ToInt16(rules.mainPickCount);
    appState.bonusPickCount = ToInt16(rules.bonusPickCount);
    appState.orderMatters = false;
    appState.duplicatesAllowed = rules.duplicatesAllowed;
    appState.mainLow = ToInt16(rules.mainLow);
    appState.mainHigh = ToInt16(rules.mainHigh);
    appState.bonusLow = ToInt16(rules.bonusLow);
    appState.bonusHigh = ToInt16(rules.bonusHigh);
}

}  // namespace ballhaven
