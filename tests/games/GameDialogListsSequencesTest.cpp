#include "forms/MainForm.h"
#include "forms/NewGameForm.h"
#include "forms/SelectorLists.h"
#include "history/GameSwitch.h"
#include "state/AppState.h"
#include "state/GameTable.h"
#include "support/RulesDialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::Choose;
using support::gameLists;
using support::SavedRecord;
using support::TypeName;

/// A choice as a place in a list: the first entry, the last one, or one in between.
struct Choice {
    GameList list;
    int entry;
};

std::string Words(const std::vector<Choice>& choices) {
    std::string words;
    for (const Choice& choice : choices) {
        words += "list " + std::to_string(choice.list) + " entry " + std::to_string(choice.entry) + "; ";
    }
    return words;
}

/// No sequence of choices may end the program, and each leads to a game that can be shown.
class ChoicesInTheGameDialog : public support::RulesDialog {
  protected:
    ChoicesInTheGameDialog() { LayOutMainForm(); }

    /// The dialog on a slot that nothing has been set up in, with a kind of game chosen.
    void OpenWithKind(int kind) {
        Open(BuildDefaultGameRecord(1, 0));
        TypeName("Any game");
        Choose(gameTypeList, kind);
    }

    void Make(const std::vector<Choice>& choices) {
        for (const Choice& choice : choices) {
            const int entries = static_cast<int>(ListOf(choice.list).Entries().size());
            if (*ListOf(choice.list).visible && choice.entry < entries) {
                Choose(choice.list, choice.entry);
                CheckCounts(choices);
            }
        }
    }

    static void CheckCounts(const std::vector<Choice>& choices) {
        const int main = ListOf(mainCountList).Selected() + 1;
        const int bonus = ListOf(bonusCountList).Selected() + 1;
        ASSERT_FALSE(frmNewGame.filling);
        ASSERT_LE(main + bonus, 10) << Words(choices);
        for (const GameList list : gameLists) {
            ASSERT_LT(ListOf(list).Selected(), static_cast<int>(ListOf(list).Entries().size())) << Words(choices);
        }
    }

    static void CheckGame(const std::vector<Choice>& choices) {
        ASSERT_GE(appState.mainPickCount, 1) << Words(choices);
        ASSERT_LE(appState.mainHigh, 99) << Words(choices);
        ASSERT_LE(appState.bonusHigh, 99) << Words(choices);
        if (appState.duplicatesAllowed && appState.mainHigh > 0) {
            const int run = appState.mainHigh + (appState.mainLow == 0 ? 1 : 0);
            ASSERT_LE(appState.mainPickCount * run, 99) << "cells of the main picks after " << Words(choices);
        }
    }

    /// Saves the game, and switches to it if no game like it has been shown before.
    void SaveAndShow(const std::vector<Choice>& choices) {
        const std::string record = SavedRecord();
        CheckGame(choices);
        if (!shownRecords.insert(record).second) {
            return;
        }
        appState.currentGame = appState.gameDialogSlot;
        ListGames();
        try {
            SwitchGame();
        } catch (const std::exception& failure) {
            FAIL() << failure.what() << " after " << Words(choices);
        }
        EXPECT_EQ(appState.gameRecord, record);
    }

    std::set<std::string> shownRecords;
};

TEST_F(ChoicesInTheGameDialog, AllPairsOfChoicesLeadToAGameThatCanBeShown) {
    std::vector<Choice> all;
    for (const GameList list : gameLists) {
        for (const int entry : {0, 1, 5, 8, 98}) {
            all.push_back({list, entry});
        }
    }
    for (int kind = 0; kind <= 5; ++kind) {
        for (const Choice& first : all) {
            OpenWithKind(kind);
            if (first.entry >= static_cast<int>(ListOf(first.list).Entries().size())) {
                continue;
            }
            const std::string opened = appState.gameRecord;
            for (const Choice& second : all) {
                Choose(gameTypeList, kind);
                ASSERT_EQ(appState.gameRecord, opened);
                Make({first, second});
                SaveAndShow({{gameTypeList, kind}, first, second});
                if (HasFatalFailure()) {
                    return;
                }
            }
        }
    }
    EXPECT_GT(shownRecords.size(), 200U);
}

TEST_F(ChoicesInTheGameDialog, ThousandsOfRandomSequencesLeadToGamesThatCanBeShown) {
    constexpr int sequences = 3000;
    constexpr int longest = 12;
    constexpr unsigned shown = 20;  // one in so many is switched to
    std::mt19937 chance(2002);
    for (int sequence = 0; sequence < sequences; ++sequence) {
        if (sequence % 100 == 0) {
            OpenWithKind(static_cast<int>(chance() % 6));
        }
        std::vector<Choice> choices(1 + chance() % longest);
        for (Choice& choice : choices) {
            choice = {gameLists[chance() % gameLists.size()],
                      static_cast<int>(chance() % (chance() % 2 == 0 ? 10 : 99))};
        }
        Make(choices);
        if (chance() % shown == 0) {
            SaveAndShow(choices);
        }
        if (HasFatalFailure()) {
            return;
        }
    }
    EXPECT_GT(shownRecords.size(), 100U);
}

}  // namespace
}  // namespace ballhaven
