#include "games/GameDialogLists.h"

#include "forms/NewGameForm.h"
#include "platform/files/FileSystem.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "support/PointerKeeper.h"
#include "support/RecordBytes.h"
#include "support/RulesDialog.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::Choose;
using support::ChooseText;
using support::SavedRecord;
using support::TypeName;
using support::WithColumns;
using Texts = std::vector<std::string>;

// The records of a slot that no game has been set up in, by kind of game.
//                                    1         2         3         4         5         6
//                           1234567890123456789012345678901234567890123456789012345678901234
const Texts defaultRecords = {"1 /un-defined            /010/0/1/99/ / /N/N/10/0/N /  /1/99/   ",
                              "1 /un-defined            /010/1/1/99/ / /N/N/9 /1/N /  /1/99/   ",
                              "1 /un-defined            /010/2/1/99/ / /N/N/9 /1/N /  /1/99/   ",
                              "1 /un-defined            /010/3/1/52/ / /N/N/10/0/N /  /1/52/   ",
                              "1 /un-defined            /010/4/1/52/ / /N/N/9 /1/N /  /1/52/   ",
                              "1 /un-defined            /010/5/1/52/ / /N/N/9 /1/N /  /1/52/   "};
const std::string sixOf49 = "1 /Six of 49             /050/0/1/49/ / /N/N/06/0/N /  /-/00/   ";
const std::string fiveAndOne = "1 /Five and one          /000/2/1/69/ / /N/Y/05/1/N /  /0/26/   ";

const Texts kinds = {"Number game. No bonus numbers (No bonus, mega, plus..etc.)",
                     "Number game with bonus numbers drawn from same number pool",
                     "Number game with bonus numbers drawn from separate number pool",
                     "Card game. No bonus cards (No bonus, mega, plus..etc.)",
                     "Card game with bonus cards drawn from same deck",
                     "Card game with bonus cards drawn from separate deck"};

Texts NumbersTo(int last) {
    Texts numbers;
    for (int number = 1; number <= last; ++number) {
        numbers.push_back(std::to_string(number));
    }
    return numbers;
}

/// What the lists in sight show, as "index: text", the kind of game left out.
Texts ShownChoices() {
    Texts shown;
    for (const GameList list : support::gameLists) {
        if (list == gameTypeList) {
            continue;
        }
        EXPECT_EQ(*ListOf(list).visible, *LabelOf(list).visible) << list;
        if (*ListOf(list).visible) {
            shown.push_back(std::to_string(list) + ": " + ListOf(list).Text());
        }
    }
    return shown;
}

/// The dialog without a window, open on slot 1 of a game table of the test's own.
class GameDialogLists : public support::RulesDialog {};

using QuirkGameBonusLimits1 = GameDialogLists;
using QuirkGameHighest1 = GameDialogLists;
using QuirkUndefinedName1 = GameDialogLists;

// The fill

TEST_F(GameDialogLists, ListsTheSixKindsOfGame) {
    Open(sixOf49);
    EXPECT_EQ(ListOf(gameTypeList).Entries(), kinds);
}

TEST_F(GameDialogLists, ShowsForEachKindItsOwnQuestionsWithTheDefaults) {
    const std::vector<Texts> expected = {
        {"1: 10", "3: No", "4: No", "5: 1", "6: 99"},
        {"1: 9", "2: 1", "3: No", "4: No", "5: 1", "6: 99"},
        {"1: 9", "2: 1", "3: No", "4: No", "5: 1", "6: 99", "9: 1", "10: 99"},
        {"1: 10", "3: No"},
        {"1: 9", "2: 1", "3: No"},
        {"1: 9", "2: 1", "3: No"},
    };
    for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
        Open(defaultRecords[kind]);
        EXPECT_EQ(ListOf(gameTypeList).Text(), kinds[kind]);
        EXPECT_EQ(ShownChoices(), expected[kind]) << kinds[kind];
    }
}

TEST_F(GameDialogLists, ShowsWhatAConfiguredGameHas) {
    Open(fiveAndOne);
    EXPECT_EQ(*frmNewGame.txtNewGame[0].text, "Five and one");
    EXPECT_EQ(ShownChoices(), (Texts{"1: 5", "2: 1", "3: Yes", "4: No", "5: 1", "6: 69", "9: 0", "10: 26"}));
    EXPECT_EQ(appState.gameRecord, fiveAndOne);
}

TEST_F(GameDialogLists, OffersTheEntriesOfEachList) {
    Open(fiveAndOne);
    EXPECT_EQ(ListOf(mainCountList).Entries(), NumbersTo(10));
    EXPECT_EQ(ListOf(bonusCountList).Entries(), NumbersTo(5));
    EXPECT_EQ(ListOf(orderList).Entries(), (Texts{"No", "Yes"}));
    EXPECT_EQ(ListOf(duplicatesList).Entries(), (Texts{"No", "Yes"}));
    EXPECT_EQ(ListOf(mainLowList).Entries(), (Texts{"0", "1"}));
    EXPECT_EQ(ListOf(mainHighList).Entries(), NumbersTo(99));
    EXPECT_EQ(ListOf(bonusLowList).Entries(), (Texts{"0", "1"}));
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(99));
}

TEST_F(GameDialogLists, TheNameBoxStaysEmptyForAnUndefinedSlot) {
    Open(defaultRecords[0]);
    EXPECT_EQ(*frmNewGame.txtNewGame[0].text, "");
}

TEST_F(GameDialogLists, AGameWithoutBonusHasNothingSelectedInTheHiddenLists) {
    Open(sixOf49);
    EXPECT_EQ(ListOf(bonusCountList).Selected(), -1);
    EXPECT_TRUE(ListOf(bonusCountList).Entries().empty());
    EXPECT_EQ(ListOf(bonusLowList).Selected(), -1);
    EXPECT_EQ(ListOf(bonusHighList).Selected(), -1);
    EXPECT_EQ(appState.gameRecord, WithColumns(sixOf49, {{59, "52"}}));
}

TEST_F(GameDialogLists, ABonusFromTheSamePoolTakesTheMainLimitsAtTheFill) {
    Open(WithColumns(defaultRecords[1], {{33, "0"}, {35, "36"}}));
    EXPECT_EQ(ListOf(bonusLowList).Text(), "0");
    EXPECT_EQ(ListOf(bonusHighList).Text(), "36");
    EXPECT_EQ(appState.gameRecord, WithColumns(defaultRecords[1], {{33, "0"}, {35, "36"}, {57, "0"}, {59, "36"}}));
}

TEST_F(GameDialogLists, ACardGameHasNothingSelectedInTheHiddenListsAndNoDuplicates) {
    Open(WithColumns(defaultRecords[3], {{42, "Y"}}));
    for (const GameList list : {duplicatesList, mainLowList, mainHighList, bonusLowList, bonusHighList}) {
        EXPECT_EQ(ListOf(list).Selected(), -1) << list;
    }
    EXPECT_EQ(appState.gameRecord.substr(41, 1), "N");
    EXPECT_EQ(appState.gameRecord.substr(58, 2), "52");
}

TEST_F(GameDialogLists, AnAnswerOfTheRecordThatIsNeitherYesNorNoCountsAsYesForTheOrderAndNoForDuplicates) {
    Open(WithColumns(sixOf49, {{42, "?"}, {44, "?"}}));
    EXPECT_EQ(ListOf(orderList).Text(), "Yes");
    EXPECT_EQ(ListOf(duplicatesList).Text(), "No");
    EXPECT_EQ(appState.gameRecord.substr(41, 3), "N/Y");
}

TEST_F(GameDialogLists, AHighestNumberAboveItsLimitIsCutAtTheFill) {
    Open(WithColumns(sixOf49, {{42, "Y"}}));
    EXPECT_EQ(ListOf(mainHighList).Entries(), NumbersTo(16));
    EXPECT_EQ(ListOf(mainHighList).Text(), "16");
    EXPECT_EQ(appState.gameRecord.substr(34, 2), "16");

    Open(WithColumns(fiveAndOne, {{42, "Y"}, {46, "05"}, {49, "3"}}));
    EXPECT_EQ(ListOf(mainHighList).Text(), "19");
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(30));
    EXPECT_EQ(ListOf(bonusHighList).Text(), "26");

    Open(WithColumns(fiveAndOne, {{42, "Y"}, {46, "05"}, {49, "5"}}));
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(14));
    EXPECT_EQ(ListOf(bonusHighList).Text(), "14");
    EXPECT_EQ(appState.gameRecord.substr(58, 2), "14");
}

TEST_F(GameDialogLists, ABonusCountOf0HasTheLimitWithoutDuplicates) {
    Open(WithColumns(fiveAndOne, {{42, "Y"}, {49, "0"}}));
    EXPECT_EQ(ListOf(bonusCountList).Selected(), -1);
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(99));
}

TEST_F(GameDialogLists, DamagedRecordsAreHeldInsideTheLists) {
    std::mt19937 chance(1912);
    const std::string letters = "0123456789 NYC-/?";
    for (int attempt = 0; attempt < 500; ++attempt) {
        std::string record(64, ' ');
        for (char& letter : record) {
            letter = letters[chance() % letters.size()];
        }
        Open(record);
        for (const GameList list : support::gameLists) {
            EXPECT_LT(ListOf(list).Selected(), static_cast<int>(ListOf(list).Entries().size())) << record;
        }
        TypeName("Mended");
        const std::string saved = SavedRecord();
        EXPECT_EQ(saved.size(), 64U);
        EXPECT_GE(appState.gameType, 0) << record;
        EXPECT_LE(appState.gameType, 5) << record;
        EXPECT_LE(appState.mainPickCount, 10) << record;
        EXPECT_LE(appState.mainHigh, 99) << record;
        EXPECT_LE(appState.mainLow, 1) << record;
    }
}

// The changes

TEST_F(GameDialogLists, ChangingTheTypeResetsCountsAndLimitsWhileTheTypedNameStays) {
    Open(fiveAndOne);
    TypeName("Half typed");
    Choose(gameTypeList, 1);
    EXPECT_EQ(ShownChoices(), (Texts{"1: 9", "2: 1", "3: No", "4: No", "5: 1", "6: 99"}));
    EXPECT_EQ(appState.gameRecord, defaultRecords[1]);
    Choose(gameTypeList, 5);
    EXPECT_EQ(ShownChoices(), (Texts{"1: 9", "2: 1", "3: No"}));
    EXPECT_EQ(*frmNewGame.txtNewGame[0].text, "Half typed");
    EXPECT_FALSE(frmNewGame.filling);
}

TEST_F(GameDialogLists, ChoosingTheSameTypeAgainFallsBackToItsDefaultsToo) {
    Open(fiveAndOne);
    Choose(gameTypeList, 2);
    EXPECT_EQ(ShownChoices(), (Texts{"1: 9", "2: 1", "3: No", "4: No", "5: 1", "6: 99", "9: 1", "10: 99"}));
}

TEST_F(GameDialogLists, TheDefaultsAreThoseOfTheDialogsSlot) {
    Open(fiveAndOne);
    appState.gameDialogSlot = 12;
    Choose(gameTypeList, 2);
    EXPECT_EQ(appState.gameRecord, WithColumns(defaultRecords[2], {{1, "12"}}));
}

TEST_F(GameDialogLists, EachCountsListOffersOnlyWhatTheOtherLeaves) {
    Open(fiveAndOne);
    ChooseText(mainCountList, "7");
    EXPECT_EQ(ListOf(bonusCountList).Entries(), NumbersTo(3));
    EXPECT_EQ(ListOf(bonusCountList).Text(), "1");
    ChooseText(bonusCountList, "3");
    EXPECT_EQ(ListOf(mainCountList).Entries(), NumbersTo(7));
    EXPECT_EQ(ListOf(mainCountList).Text(), "7");
    EXPECT_FALSE(frmNewGame.filling);
}

TEST_F(GameDialogLists, AListsOwnEntriesStayWhenOneOfThemIsChosen) {
    Open(WithColumns(fiveAndOne, {{49, "5"}}));
    ChooseText(mainCountList, "8");
    EXPECT_EQ(ListOf(mainCountList).Entries(), NumbersTo(10));
    EXPECT_EQ(ListOf(bonusCountList).Text(), "2") << "cut to what is left";
    Open(WithColumns(fiveAndOne, {{49, "5"}}));
    ChooseText(bonusCountList, "4");
    EXPECT_EQ(ListOf(bonusCountList).Entries(), NumbersTo(5));
    EXPECT_EQ(ListOf(mainCountList).Entries(), NumbersTo(6));
}

TEST_F(GameDialogLists, ListsThatTheKindOfGameDoesNotAskForStayEmpty) {
    Open(defaultRecords[3]);
    ChooseText(mainCountList, "4");
    EXPECT_TRUE(ListOf(mainHighList).Entries().empty()) << "of a card game";
    Open(sixOf49);
    ChooseText(duplicatesList, "Yes");
    EXPECT_TRUE(ListOf(bonusHighList).Entries().empty()) << "of a game without bonus";
}

TEST_F(GameDialogLists, ABonusCountAboveWhatALargerMainCountLeavesIsCutToThat) {
    Open(fiveAndOne);
    ChooseText(bonusCountList, "5");
    ChooseText(mainCountList, "2");
    ChooseText(bonusCountList, "8");
    EXPECT_EQ(ListOf(mainCountList).Entries(), NumbersTo(2));
    EXPECT_EQ(ListOf(mainCountList).Text(), "2");
    Open(WithColumns(fiveAndOne, {{46, "05"}, {49, "5"}}));
    ChooseText(mainCountList, "8");
    EXPECT_EQ(ListOf(bonusCountList).Entries(), NumbersTo(2));
    EXPECT_EQ(ListOf(bonusCountList).Text(), "2");
}

TEST_F(GameDialogLists, AMainCountOf10WithABonusTypeEmptiesTheBonusListAndSavesABonusCountOf0) {
    Open(fiveAndOne);
    ChooseText(mainCountList, "10");
    EXPECT_TRUE(ListOf(bonusCountList).Entries().empty());
    EXPECT_EQ(ListOf(bonusCountList).Selected(), -1);
    SavedRecord();
    EXPECT_EQ(appState.bonusPickCount, 0);
    EXPECT_EQ(Stored(1).substr(45, 4), "10/0");
}

TEST_F(GameDialogLists, ABonusListThatWasEmptiedComesBackWithTheCountOfTheRecord) {
    Open(WithColumns(fiveAndOne, {{49, "3"}}));
    ChooseText(mainCountList, "10");
    ChooseText(mainCountList, "4");
    EXPECT_EQ(ListOf(bonusCountList).Entries(), NumbersTo(6));
    EXPECT_EQ(ListOf(bonusCountList).Text(), "3");
}

TEST_F(GameDialogLists, SixPicksWithDuplicatesEndTheHighestListAt16AndFromLowest0At10) {
    Open(sixOf49);
    ChooseText(duplicatesList, "Yes");
    EXPECT_EQ(ListOf(mainHighList).Entries(), NumbersTo(16));
    ChooseText(mainLowList, "0");
    EXPECT_EQ(ListOf(mainHighList).Entries(), NumbersTo(10));
    EXPECT_EQ(ListOf(mainHighList).Text(), "10");
}

// Not a bug: GAME-HIGHEST-1 in docs/not-bugs.md.
TEST_F(QuirkGameHighest1, AHighestOf49IsCutTo16ByDuplicatesAndDoesNotGrowBack) {
    Open(sixOf49);
    ChooseText(duplicatesList, "Yes");
    EXPECT_EQ(ListOf(mainHighList).Text(), "16");
    ChooseText(duplicatesList, "No");
    EXPECT_EQ(ListOf(mainHighList).Entries(), NumbersTo(99));
    EXPECT_EQ(ListOf(mainHighList).Text(), "16");
}

TEST_F(QuirkGameHighest1, TheLowestBonusNumberDoesNotRebuildTheBonusList) {
    Open(WithColumns(fiveAndOne, {{57, "1"}, {49, "3"}}));
    ChooseText(duplicatesList, "Yes");
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(33));
    ChooseText(bonusLowList, "0");
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(33));
    ChooseText(bonusCountList, "4");
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(20));
}

TEST_F(GameDialogLists, BothHighestListsFollowTheirCountsWhereNumbersCanRepeat) {
    Open(fiveAndOne);
    ChooseText(duplicatesList, "Yes");
    EXPECT_EQ(ListOf(mainHighList).Entries(), NumbersTo(19));
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(98));
    ChooseText(mainCountList, "3");
    EXPECT_EQ(ListOf(mainHighList).Entries(), NumbersTo(33));
    EXPECT_EQ(ListOf(mainHighList).Text(), "19");
    ChooseText(bonusCountList, "7");
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(7));
    EXPECT_EQ(ListOf(bonusHighList).Text(), "7");
}

TEST_F(GameDialogLists, TheHiddenHighestBonusNumberFollowsItsCountInAGameOfOnePool) {
    Open(defaultRecords[1]);
    TypeName("Same pool");
    ChooseText(duplicatesList, "Yes");
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(99)) << "of one bonus pick";
    ChooseText(mainCountList, "6");
    ChooseText(bonusCountList, "3");
    EXPECT_EQ(ListOf(bonusHighList).Entries(), NumbersTo(33)) << "99 / 3, from 1 on";
    EXPECT_EQ(ListOf(bonusHighList).Text(), "33");
    EXPECT_FALSE(ListOf(bonusHighList).visible);
    EXPECT_EQ(SavedRecord().substr(56, 4), "1/33");
}

TEST_F(GameDialogLists, TenPicksFromLowest0LeaveNoHighestNumberWhereNumbersCanRepeat) {
    Open(defaultRecords[0]);
    ChooseText(mainLowList, "0");
    ChooseText(duplicatesList, "Yes");
    EXPECT_TRUE(ListOf(mainHighList).Entries().empty());
    TypeName("None");
    SavedRecord();
    EXPECT_EQ(appState.mainHigh, 0);
}

TEST_F(GameDialogLists, OrderAndTheHighestNumbersChangeNothingElse) {
    Open(fiveAndOne);
    ChooseText(orderList, "No");
    ChooseText(mainHighList, "40");
    ChooseText(bonusLowList, "1");
    ChooseText(bonusHighList, "9");
    EXPECT_EQ(ShownChoices(), (Texts{"1: 5", "2: 1", "3: No", "4: No", "5: 1", "6: 40", "9: 1", "10: 9"}));
    EXPECT_EQ(appState.gameRecord, fiveAndOne) << "the record takes them at the save";
}

TEST_F(GameDialogLists, TheListsDoNotAnswerWhileTheDialogIsBeingFilled) {
    Open(sixOf49);
    frmNewGame.filling = true;
    Choose(gameTypeList, 4);
    ChooseText(mainCountList, "3");
    EXPECT_EQ(appState.gameRecord, WithColumns(sixOf49, {{59, "52"}}));
    EXPECT_TRUE(ListOf(bonusCountList).Entries().empty());
}

TEST_F(GameDialogLists, ARebuiltListOfHighestNumbersIsEmptyWhileTheScreenFollows) {
    /// A toolkit that looks at the lists whenever it is given a turn.
    class Onlooker : public support::PointerKeeper {
      public:
        void ProcessPendingEvents() override {
            seen.push_back(ListOf(mainHighList).Entries().size());
            seen.push_back(ListOf(bonusHighList).Entries().size());
        }
        std::vector<std::size_t> seen;
    };
    Open(fiveAndOne);
    Onlooker onlooker;
    ChooseText(duplicatesList, "Yes");
    EXPECT_EQ(onlooker.seen, (std::vector<std::size_t>{0, 99, 19, 0}));
}

// The save

TEST_F(GameDialogLists, AGameWithoutBonusIsSavedFieldByField) {
    Open(defaultRecords[0]);
    TypeName("Pick Six");
    ChooseText(mainCountList, "6");
    ChooseText(mainHighList, "49");
    EXPECT_EQ(SavedRecord(), "1 /Pick Six              /010/0/1/49/ / /N/N/06/0/N /  /-/00/   ");
    EXPECT_EQ(appState.gameType, 0);
    EXPECT_EQ(appState.mainPickCount, 6);
    EXPECT_EQ(appState.bonusPickCount, 0);
    EXPECT_FALSE(appState.duplicatesAllowed);
    EXPECT_EQ(appState.mainLow, 1);
    EXPECT_EQ(appState.mainHigh, 49);
    EXPECT_EQ(appState.bonusLow, -1);
    EXPECT_EQ(appState.bonusHigh, 0);
}

TEST_F(GameDialogLists, AGameWithItsBonusFromAPoolOfItsOwnIsSavedFieldByField) {
    Open(defaultRecords[2]);
    TypeName("Five and one");
    ChooseText(mainCountList, "5");
    ChooseText(mainHighList, "69");
    ChooseText(orderList, "Yes");
    ChooseText(bonusLowList, "0");
    ChooseText(bonusHighList, "26");
    EXPECT_EQ(SavedRecord(), "1 /Five and one          /010/2/1/69/ / /N/Y/05/1/N /  /0/26/   ");
    EXPECT_EQ(appState.gameType, 2);
    EXPECT_EQ(appState.mainPickCount, 5);
    EXPECT_EQ(appState.bonusPickCount, 1);
    EXPECT_EQ(appState.mainHigh, 69);
    EXPECT_EQ(appState.bonusLow, 0);
    EXPECT_EQ(appState.bonusHigh, 26);
}

TEST_F(GameDialogLists, AGameWithDuplicatesIsSavedFieldByField) {
    Open(defaultRecords[0]);
    TypeName("Daily 3");
    ChooseText(mainCountList, "3");
    ChooseText(mainLowList, "0");
    ChooseText(duplicatesList, "Yes");
    ChooseText(mainHighList, "9");
    ChooseText(orderList, "Yes");
    EXPECT_EQ(SavedRecord(), "1 /Daily 3               /010/0/0/09/ / /Y/Y/03/0/N /  /-/00/   ");
    EXPECT_TRUE(appState.duplicatesAllowed);
    EXPECT_EQ(appState.mainLow, 0);
    EXPECT_EQ(appState.mainHigh, 9);
}

TEST_F(GameDialogLists, CardGamesAreSavedFieldByField) {
    const Texts expected = {"1 /Cards                 /010/3/1/52/ / /N/N/05/0/N /  /1/52/   ",
                            "1 /Cards                 /010/4/1/52/ / /N/N/05/1/N /  /1/52/   ",
                            "1 /Cards                 /010/5/1/52/ / /N/N/05/1/N /  /1/52/   "};
    for (int kind = 3; kind <= 5; ++kind) {
        Open(defaultRecords[0]);
        TypeName("Cards");
        Choose(gameTypeList, kind);
        ChooseText(mainCountList, "5");
        EXPECT_EQ(SavedRecord(), expected[static_cast<std::size_t>(kind - 3)]);
        EXPECT_EQ(appState.mainLow, 1);
        EXPECT_EQ(appState.mainHigh, 52);
        EXPECT_EQ(appState.bonusLow, 1);
        EXPECT_EQ(appState.bonusHigh, 52);
    }
}

TEST_F(GameDialogLists, SavingACardGameStores1And52InBothPairsWhateverTheRecordHeld) {
    Open(WithColumns(defaultRecords[5], {{33, "0"}, {35, "17"}, {42, "Y"}, {57, "7"}, {59, "03"}}));
    TypeName("Cards");
    EXPECT_EQ(SavedRecord(), "1 /Cards                 /010/5/1/52/ / /N/N/09/1/N /  /1/52/   ");
    EXPECT_FALSE(appState.duplicatesAllowed);
}

TEST_F(GameDialogLists, ANameOf25CharactersIsStoredAsItsFirst20) {
    Open(defaultRecords[0]);
    TypeName("abcdefghijklmnopqrstuvwxy");
    EXPECT_EQ(SavedRecord().substr(3, 22), "abcdefghijklmnopqrst  ");
}

TEST_F(GameDialogLists, ANameIsStoredWithoutTheBlanksAroundIt) {
    Open(defaultRecords[0]);
    TypeName("  Pick 6  ");
    EXPECT_EQ(SavedRecord().substr(3, 22), "Pick 6                ");
}

TEST_F(GameDialogLists, WhatTheDialogDoesNotShowStaysInTheRecord) {
    Open(WithColumns(fiveAndOne, {{51, "Y "}, {54, "ab"}, {62, "xyz"}}));
    EXPECT_EQ(SavedRecord(), "1 /Five and one          /000/2/1/69/ / /N/Y/05/1/Y /ab/0/26/xyz");
}

TEST_F(GameDialogLists, TheOrderCountsAsNotMatteringUntilTheNextLoad) {
    Open(fiveAndOne);
    SavedRecord();
    EXPECT_FALSE(appState.orderMatters);
    LoadGameRecord(1);
    EXPECT_TRUE(appState.orderMatters);
}

// Not a bug: GAME-BONUS-LIMITS-1 in docs/not-bugs.md.
TEST_F(QuirkGameBonusLimits1, AGameWithoutBonusHasAMinusAndZerosAsItsBonusLimits) {
    Open(defaultRecords[0]);
    TypeName("Plain");
    EXPECT_EQ(SavedRecord(), "1 /Plain                 /010/0/1/99/ / /N/N/10/0/N /  /-/00/   ");
    LoadGameRecord(1);
    EXPECT_EQ(appState.bonusLow, 0);
    EXPECT_EQ(appState.bonusHigh, 0);
}

TEST_F(QuirkGameBonusLimits1, ABonusFromTheSamePoolKeepsTheLimitsOfTheFill) {
    Open(defaultRecords[1]);
    TypeName("Same pool");
    ChooseText(mainCountList, "5");
    ChooseText(mainLowList, "0");
    ChooseText(mainHighList, "35");
    EXPECT_EQ(SavedRecord(), "1 /Same pool             /010/1/0/35/ / /N/N/05/1/N /  /1/99/   ");
    EXPECT_EQ(appState.bonusLow, 1);
    EXPECT_EQ(appState.bonusHigh, 99);
}

// Not a bug: UNDEFINED-NAME-1 in docs/not-bugs.md.
TEST_F(QuirkUndefinedName1, ANameThatBeginsWithUndefinedIsNotOffered) {
    Open(WithColumns(sixOf49, {{4, "un-defined too"}}));
    EXPECT_EQ(*frmNewGame.txtNewGame[0].text, "");
}

}  // namespace
}  // namespace ballhaven
