#include "wheels/ShuffleRun.h"

#include "forms/PlaysForm.h"
#include "platform/Services.h"
#include "plays/PlayMethodCode.h"
#include "support/Combinations.h"
#include "support/Games.h"
#include "support/MessageScript.h"
#include "support/Plays.h"
#include "support/PointerKeeper.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>
#include <numeric>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ballhaven {
namespace {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using support::BonusPool;
using support::CardGame;
using support::Game;
using support::NumberGame;
using support::PicksText;
using support::PlaysInUse;
using support::PutPicks;

using End = RunResult::End;

const std::string clearFirst = "Would you like to clear all of the Play Slips first?";
const std::string badTotal = "Total Plays:\n\nEnter a number from 1 To 5000";
const std::string noRoomToShuffle =
    "You do not have enough empty plays to do this shuffle\nPlease erase some plays and try again";
const std::string noRoomToWheel =
    "You do not have enough empty plays to do this wheel\nPlease erase some plays and try again";
const std::string tooManyForTheSlips =
    "The number of plays required to do a full wheel\nexceeds the total number of plays allowed.\nDo you wish to "
    "continue?";
const std::string tooManyForTheRest =
    "There are not enough empty plays to do a full wheel.\n\nDo you wish to continue?";

std::string TooFew(int needed, const std::string& kind) {
    return "You need to select at least " + std::to_string(needed) + " " + kind + " picks to shuffle or wheel.";
}

std::vector<int> Cells(int first, int count) {
    std::vector<int> cells(static_cast<std::size_t>(count));
    std::iota(cells.begin(), cells.end(), first);
    return cells;
}

void Choose(PickColumn list, const std::vector<int>& cells) {
    auto slot = appState.ShuffleTable.Slots(list).begin();
    for (const int cell : cells) {
        *slot++ = static_cast<std::int16_t>(cell);
    }
}

class Run : public testing::Test {
  protected:
    /// A game, and its chosen picks by their cells, -1 for a hole.
    void Use(const Game& game, const std::vector<int>& mainCells, const std::vector<int>& bonusCells = {}) {
        SetUpGame(game);
        Choose(mainPicks, mainCells);
        Choose(bonusPicks, bonusCells);
    }

    void UsePlays(int first, int last) {
        for (int play = first; play <= last; ++play) {
            PutPicks(appState.PlayTable, mainPicks, play, {60, 61});
        }
    }

    void ExpectTold(const std::string& text, BoxIcon icon = BoxIcon::None) {
        boxes.Expect("Ballhaven", text, BoxButtons::Ok, icon);
    }
    void ExpectAsked(const std::string& text, BoxAnswer answer) {
        boxes.Expect("Ballhaven", text, BoxButtons::YesNo, BoxIcon::Question, answer);
    }

    /// The question whether to empty the plays, which stands on No.
    void ExpectClearQuestion(BoxAnswer answer) { boxes.ExpectBeforeLoss(clearFirst, BoxIcon::Question, answer); }

    static std::string Told(const RunResult& result) {
        return result.firstPlay + " to " + result.lastPlay + ", " + result.plays;
    }

    static std::string Main(int first, int last) { return PicksText(appState.PlayTable, mainPicks, first, last); }
    static std::string Bonus(int first, int last) { return PicksText(appState.PlayTable, bonusPicks, first, last); }

    support::MessageScript boxes;
};

// How many picks are wanted

TEST_F(Run, AsManyChosenPicksAsAPlayHasAreTooFew) {
    Use(NumberGame().Picks(6), Cells(0, 6));
    const PlayPicks before = appState.PlayTable;
    ExpectTold("You need to select at least 7 main picks to shuffle or wheel.");
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "").end, End::Refused);
    EXPECT_TRUE(appState.PlayTable == before);
    EXPECT_FALSE(appState.playsDirty);
}

TEST_F(Run, OneMoreThanAPlayHasIsEnough) {
    Use(NumberGame().Picks(6), Cells(0, 7));
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::FullWheel, "")), "1.A to 2.B, 7");
}

TEST_F(Run, NoModeDoesWithFewerPicks) {
    Use(NumberGame().Picks(2), {1, 2});
    for (const WheelMode mode : {WheelMode::Shuffle, WheelMode::PartialWheel, WheelMode::FullWheel}) {
        ExpectTold(TooFew(3, "main"));
        EXPECT_EQ(RunShuffleOrWheel(mode, "5").end, End::Refused);
    }
}

TEST_F(Run, BonusPicksAreWantedInTheSameWay) {
    Use(NumberGame().Picks(2).Bonus(2, BonusPool::Separate), {1, 2, 3}, {4, 5});
    ExpectTold("You need to select at least 3 bonus picks to shuffle or wheel.");
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "").end, End::Refused);
    Choose(bonusPicks, {4, 5, 6});
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "").end, End::Done);
}

TEST_F(Run, TooFewMainPicksComeBeforeTooFewBonusPicksAndBothBeforeTheTotal) {
    Use(CardGame().Picks(2).Bonus(1, BonusPool::Same), {1, 2}, {});
    ExpectTold(TooFew(3, "main"));
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "").end, End::Refused);
    Choose(mainPicks, {1, 2, 3});
    ExpectTold(TooFew(2, "bonus"));
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "").end, End::Refused);
    Choose(bonusPicks, {1, 2});
    ExpectTold(badTotal);
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "").end, End::BadTotal);
}

TEST_F(Run, HolesDoNotCountAndVanish) {
    Use(NumberGame().Picks(2), {5, -1, 6, -1, -1, 4});
    RunShuffleOrWheel(WheelMode::FullWheel, "");
    EXPECT_EQ(Main(1, 4), "5 6|5 4|6 4|");
}

TEST_F(Run, OfAListAsManySlotsAreReadAsTheGameHasNumbers) {
    std::vector<int> cells(12, -1);
    cells[0] = 20;
    cells[8] = 21;
    cells[9] = 22;
    cells[10] = 23;
    Use(NumberGame().Picks(1).From(1).To(9).WithDuplicates(), cells);
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "").plays, "2");
    Use(NumberGame().Picks(1).From(0).To(9).WithDuplicates(), cells);
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "").plays, "3");
    EXPECT_EQ(Main(1, 4), "20|21|22|");
}

TEST_F(Run, TheBonusListIsReadByItsOwnLimits) {
    Use(NumberGame().Picks(1).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(2), Cells(0, 6), {4, 5, 6, 7});
    RunShuffleOrWheel(WheelMode::FullWheel, "");
    EXPECT_EQ(Bonus(1, 7), "4|5|6|4|5|6|");
    Use(NumberGame().Picks(1).Bonus(1, BonusPool::Separate).BonusFrom(1).BonusTo(2), Cells(0, 6), {4, 5, 6, 7});
    RunShuffleOrWheel(WheelMode::FullWheel, "");
    EXPECT_EQ(Bonus(1, 7), "4|5|4|5|4|5|");
}

TEST_F(Run, AGameWithoutBonusNeedsNoBonusPicksWhateverItsRecordSays) {
    for (const int gameType : {0, 3}) {
        Use(NumberGame().Picks(2), {1, 2, 3});
        appState.gameType = static_cast<std::int16_t>(gameType);
        appState.bonusPickCount = 2;
        EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "").end, End::Done) << gameType;
        EXPECT_EQ(PlaysInUse(appState.PlayTable, bonusPicks), 0) << gameType;
    }
}

TEST_F(Run, ABonusKindThatDrawsNoBonusPicksNeedsNone) {
    Use(NumberGame().Picks(2).Bonus(0, BonusPool::Separate), {1, 2, 3}, {4, 5});
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "").plays, "3");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, bonusPicks), 0);
}

TEST_F(Run, ADamagedCountOfPicksIsWantedAsItStandsAndWritesBesideNoPlay) {
    Use(NumberGame().Picks(15).To(99), Cells(0, 15));
    ExpectTold(TooFew(16, "main"));
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "").end, End::Refused);
    Use(NumberGame().Picks(11).To(99), Cells(0, 12));
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "").plays, "66");
    EXPECT_EQ(Main(1, 2), "0 1 2 3 4 5 6 7 8 9|0 1 2 3 4 5 6 7 8 10");
    EXPECT_EQ(Main(66, 67), "2 3 4 5 6 7 8 9 10 11|");
    EXPECT_EQ(appState.PlayTable(mainPicks, 67, 0), 0);
    EXPECT_EQ(PlaysInUse(appState.PlayTable, bonusPicks), 0);
}

TEST_F(Run, ADamagedCountOfNoPicksWantsOneChosenPick) {
    Use(NumberGame().Picks(0).To(99), {});
    for (const WheelMode mode : {WheelMode::Shuffle, WheelMode::PartialWheel, WheelMode::FullWheel}) {
        ExpectTold(TooFew(1, "main"));
        EXPECT_EQ(RunShuffleOrWheel(mode, "3").end, End::Refused);
    }
}

TEST_F(Run, AWheelOfNoPicksIsOneEmptyPlay) {
    for (const auto& [mode, method] :
         {std::pair{WheelMode::PartialWheel, byPartialWheel}, std::pair{WheelMode::FullWheel, byFullWheel}}) {
        Use(NumberGame().Picks(0).To(99), {4, 5});
        EXPECT_EQ(Told(RunShuffleOrWheel(mode, "3")), "1.A to 1.A, 1");
        EXPECT_EQ(appState.PlayTable(mainPicks, 1, 0), method);
        EXPECT_EQ(appState.PlayTable(mainPicks, 2, 0), byHand);
        EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 0);
    }
}

TEST_F(Run, AShuffleOfNoPicksFindsEveryPlayFull) {
    Use(NumberGame().Picks(0).To(99), {4});
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::Shuffle, "3")), "1.A to 1.C, 3");
    EXPECT_EQ(Main(1, 5), "|4|4|4|");
    EXPECT_EQ(appState.PlayTable(mainPicks, 3, 0), byShuffle);
    EXPECT_EQ(appState.PlayTable(mainPicks, 4, 0), byHand);
}

// The total

TEST_F(Run, ATotalOfOneIsRefusedAndTwoGivesTwoPlays) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    ExpectTold(badTotal);
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "1").end, End::BadTotal);
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 0);
    EXPECT_FALSE(appState.playsDirty);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::Shuffle, "2")), "1.A to 1.B, 2");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 2);
}

TEST_F(Run, FiveThousandOnEmptySlipsFillThemAllAndOneMoreIsRefused) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    ExpectTold(badTotal);
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "5001").end, End::BadTotal);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::Shuffle, "5000")), "1.A to 1000.E, 5000");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 5000);
}

TEST_F(Run, LettersAndAnEmptyBoxAreRefusedInBothModesThatReadIt) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    for (const WheelMode mode : {WheelMode::Shuffle, WheelMode::PartialWheel}) {
        for (const char* text : {"", "many", "-5", "1e3", "999999999999"}) {
            ExpectTold(badTotal);
            EXPECT_EQ(RunShuffleOrWheel(mode, text).end, End::BadTotal) << text;
        }
    }
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 0);
}

TEST_F(Run, AHalfGoesToTheEvenNumber) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "2.5").plays, "2");
    ExpectClearQuestion(BoxAnswer::Yes);
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "3.5").plays, "4");
}

TEST_F(Run, AHalfIsRoundedTogetherWithThePlaysInUse) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    UsePlays(1, 1);
    ExpectClearQuestion(BoxAnswer::No);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::Shuffle, "2.5")), "1.B to 1.D, 3");
}

TEST_F(Run, AFullWheelReadsNoTotal) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "-1").plays, "3");
}

// Plays in use

TEST_F(Run, WithoutAPlayInUseNothingIsAsked) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "3").end, End::Done);
    EXPECT_EQ(boxes.Answered(), 0U);
}

TEST_F(Run, YesEmptiesEveryPlayAndTheNewOnesBeginWithTheFirst) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    UsePlays(1, 4);
    UsePlays(4000, 4000);
    PutPicks(appState.PlayTable, bonusPicks, 4500, {9});
    ExpectClearQuestion(BoxAnswer::Yes);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::FullWheel, "")), "1.A to 1.C, 3");
    EXPECT_EQ(Main(1, 4), "1 2|1 3|2 3|");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 3);
    EXPECT_EQ(PlaysInUse(appState.PlayTable, bonusPicks), 0);
}

TEST_F(Run, WaitingEventsAreLetInAfterAYesAlone) {
    support::PointerKeeper toolkit;
    int calls = 0;
    int inUse = -1;
    toolkit.pendingEvents = [&] {
        ++calls;
        inUse = PlaysInUse(appState.PlayTable, mainPicks);
    };
    Use(NumberGame().Picks(2), {1, 2, 3});
    RunShuffleOrWheel(WheelMode::FullWheel, "");
    ExpectClearQuestion(BoxAnswer::No);
    RunShuffleOrWheel(WheelMode::FullWheel, "");
    EXPECT_EQ(calls, 0);
    ExpectClearQuestion(BoxAnswer::Yes);
    RunShuffleOrWheel(WheelMode::FullWheel, "");
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(inUse, 0);
}

class RunLettingEventsIn : public Run {
  protected:
    /// What waits while the plays in use are cleared, and the run that clears them.
    RunResult RunMeeting(std::function<void()> events) {
        toolkit.pendingEvents = std::move(events);
        Use(NumberGame().Picks(2), {1, 2, 3});
        UsePlays(1, 4);
        appState.shuffleWindowOpen = true;
        ExpectClearQuestion(BoxAnswer::Yes);
        return RunShuffleOrWheel(WheelMode::FullWheel, "");
    }

    support::PointerKeeper toolkit;
};

TEST_F(RunLettingEventsIn, ARunWithinARunIsRefusedWithoutAWord) {
    RunResult inner{.end = End::Done};
    const RunResult outer = RunMeeting([&inner] { inner = RunShuffleOrWheel(WheelMode::Shuffle, "40"); });
    EXPECT_EQ(inner.end, End::Refused);
    EXPECT_EQ(boxes.Answered(), 1U);
    EXPECT_EQ(Told(outer), "1.A to 1.C, 3");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 3);
}

TEST_F(RunLettingEventsIn, TheNextRunIsNoneWithinARun) {
    RunMeeting([] {});
    ExpectClearQuestion(BoxAnswer::No);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::FullWheel, "")), "1.D to 2.A, 3");
}

TEST_F(RunLettingEventsIn, AfterAFailureTheNextRunIsNoneWithinARunEither) {
    EXPECT_THROW(RunMeeting([] { throw std::runtime_error("of an event"); }), std::runtime_error);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::FullWheel, "")), "1.A to 1.C, 3");
}

TEST_F(RunLettingEventsIn, AnotherGameGetsNoPlaysOfThePicksOfTheOneBefore) {
    const RunResult result = RunMeeting([] {
        SetUpGame(NumberGame().Picks(2).InSlot(2));
        PutPicks(appState.PlayTable, mainPicks, 7, {8, 9});
    });
    EXPECT_EQ(result.end, End::Refused);
    EXPECT_EQ(Main(1, 8), "||||||8 9|");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 1);
}

TEST_F(RunLettingEventsIn, OtherRulesOfTheGameEndTheRun) {
    EXPECT_EQ(RunMeeting([] { appState.mainPickCount = 3; }).end, End::Refused);
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 0);
}

TEST_F(RunLettingEventsIn, WithoutItsWindowTheRunEnds) {
    EXPECT_EQ(RunMeeting([] { appState.shuffleWindowOpen = false; }).end, End::Refused);
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 0);
}

TEST_F(Run, NoPutsTheNewPlaysBehindTheLastOneInUse) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    UsePlays(1, 10);
    ExpectClearQuestion(BoxAnswer::No);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::Shuffle, "3")), "3.A to 3.C, 3");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 13);
    EXPECT_EQ(Main(10, 10), "60 61");
    EXPECT_NE(Main(13, 13), "");
}

TEST_F(Run, GapsBelowTheLastPlayInUseStayGaps) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    UsePlays(7, 7);
    ExpectClearQuestion(BoxAnswer::No);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::FullWheel, "")), "2.C to 2.E, 3");
    EXPECT_EQ(Main(1, 11), "||||||60 61|1 2|1 3|2 3|");
}

TEST_F(Run, TheLastPlaysAreFilledExactlyAndNoneBehindThem) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    UsePlays(4998, 4998);
    const PlayPicks before = appState.PlayTable;
    ExpectClearQuestion(BoxAnswer::No);
    ExpectTold(noRoomToShuffle, BoxIcon::Information);
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "3").end, End::Refused);
    EXPECT_TRUE(appState.PlayTable == before);
    EXPECT_FALSE(appState.playsDirty);
    ExpectClearQuestion(BoxAnswer::No);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::Shuffle, "2")), "1000.D to 1000.E, 2");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 3);
}

TEST_F(Run, AWheelWithoutRoomIsToldAsAWheel) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    UsePlays(5000, 5000);
    for (const WheelMode mode : {WheelMode::PartialWheel, WheelMode::FullWheel}) {
        ExpectClearQuestion(BoxAnswer::No);
        ExpectTold(noRoomToWheel, BoxIcon::Information);
        EXPECT_EQ(RunShuffleOrWheel(mode, "2").end, End::Refused);
    }
}

TEST_F(Run, AfterAYesThereIsRoomForAsManyAsThereAre) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    UsePlays(5000, 5000);
    ExpectClearQuestion(BoxAnswer::Yes);
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "5000").plays, "5000");
}

TEST_F(Run, APlayWithBonusPicksAloneOrInSlotsThatTheGameDoesNotHaveIsNotInUse) {
    Use(NumberGame().Picks(2).Bonus(1, BonusPool::Separate), {1, 2, 3}, {4, 5});
    PutPicks(appState.PlayTable, bonusPicks, 3, {8});
    PutPicks(appState.PlayTable, mainPicks, 6, {-1, -1, 9});
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::PartialWheel, "2")), "1.A to 1.B, 2");
}

// Not a bug: SHUFFLE-FULL-PLAY-1 in docs/not-bugs.md.
TEST_F(Run, QuirkShuffleFullPlay1AShuffleOverAPlayWithItsBonusPickMovesOnToTheNext) {
    Use(NumberGame().Picks(1).Bonus(1, BonusPool::Separate), {1, 2}, {4, 5});
    PutPicks(appState.PlayTable, bonusPicks, 1, {30});
    std::deque<float> numbers = {0, 0, 0, 0.9F, 0.9F, 0};
    platform::services.drawByChance = [&numbers] {
        const float number = numbers.front();
        numbers.pop_front();
        return number;
    };
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::Shuffle, "3").plays, "3");
    EXPECT_EQ(Main(1, 3), "1|1|1");
    // What is drawn for play 1 fills play 2, and so on to the one behind the last.
    EXPECT_EQ(Bonus(1, 5), "30|5|5|4|");
}

// What is made

TEST_F(Run, AShuffleDealsPicksInTheOrderInWhichTheyAreDrawn) {
    Use(NumberGame().Picks(3), {10, 20, 30, 40});
    std::deque<float> numbers = {0.5F, 0.5F, 0.0F, 0.75F, 0.25F, 0.5F, 0.0F};
    platform::services.drawByChance = [&numbers] {
        const float number = numbers.front();
        numbers.pop_front();
        return number;
    };
    RunShuffleOrWheel(WheelMode::Shuffle, "2");
    EXPECT_EQ(Main(1, 3), "30 10 40|20 30 10|");
    EXPECT_EQ(appState.PlayTable(mainPicks, 2, 0), byShuffle);
    EXPECT_TRUE(numbers.empty());
}

TEST_F(Run, EightFavouritesOfSixMakeTwentyEightPlays) {
    Use(NumberGame().Picks(6), {6, 12, 18, 24, 30, 36, 42, 48});
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::FullWheel, "")), "1.A to 6.C, 28");
    EXPECT_EQ(Main(1, 3), "6 12 18 24 30 36|6 12 18 24 30 42|6 12 18 24 30 48");
    EXPECT_EQ(Main(28, 29), "18 24 30 36 42 48|");
    EXPECT_EQ(appState.PlayTable(mainPicks, 28, 0), byFullWheel);
}

TEST_F(Run, BonusPicksGoRoundBesideAFullWheel) {
    Use(NumberGame().Picks(6).Bonus(1, BonusPool::Separate), Cells(0, 8), {20, 21, 22});
    EXPECT_EQ(RunShuffleOrWheel(WheelMode::FullWheel, "").plays, "28");
    EXPECT_EQ(Bonus(1, 7), "20|21|22|20|21|22|20");
    EXPECT_EQ(Bonus(28, 29), "20|");
}

TEST_F(Run, APartialWheelTakesEveryOtherCombinationFirst) {
    Use(NumberGame().Picks(2).Bonus(1, BonusPool::Separate), {1, 2, 3, 4}, {24, 25, 26});
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::PartialWheel, "5")), "1.A to 1.E, 5");
    EXPECT_EQ(Main(1, 6), "1 2|1 4|2 4|1 3|2 3|");
    EXPECT_EQ(Bonus(1, 6), "24|26|25|25|24|");
    EXPECT_EQ(appState.PlayTable(mainPicks, 5, 0), byPartialWheel);
}

TEST_F(Run, APartialWheelThatIsCompleteBeforeItsTotalIsReportedAsFarAsItGoes) {
    Use(NumberGame().Picks(2), {1, 2, 3, 4});
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::PartialWheel, "9")), "1.A to 2.A, 6");
}

// Not a bug: PARTIAL-WHEEL-PLACE-1 in docs/not-bugs.md.
TEST_F(Run, QuirkPartialWheelPlace1APartialWheelBehindPlaysInUseReplacesTheFirstOnes) {
    Use(NumberGame().Picks(2), {1, 2, 3, 4});
    UsePlays(1, 10);
    ExpectClearQuestion(BoxAnswer::No);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::PartialWheel, "3")), "3.A to 3.C, 3");
    EXPECT_EQ(Main(1, 4), "1 2|1 4|1 3|60 61");
    EXPECT_EQ(Main(10, 14), "60 61||||");
}

TEST_F(Run, QuirkPartialWheelPlace1InAMendedFolderAPartialWheelFollowsThePlaysInUse) {
    Use(NumberGame().Picks(2).Bonus(1, BonusPool::Separate), {1, 2, 3, 4}, {24, 25, 26});
    support::MendFolder();
    UsePlays(1, 10);
    ExpectClearQuestion(BoxAnswer::No);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::PartialWheel, "3")), "3.A to 3.C, 3");
    EXPECT_EQ(Main(1, 4), "60 61|60 61|60 61|60 61");
    EXPECT_EQ(Main(10, 14), "60 61|1 2|1 4|1 3|");
    EXPECT_EQ(Bonus(10, 14), "|24|26|25|");
}

TEST_F(Run, QuirkPartialWheelPlace1InAMendedFolderAPartialWheelOnClearedSlipsBeginsWithTheFirst) {
    Use(NumberGame().Picks(2), {1, 2, 3, 4});
    support::MendFolder();
    UsePlays(1, 10);
    ExpectClearQuestion(BoxAnswer::Yes);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::PartialWheel, "3")), "1.A to 1.C, 3");
    EXPECT_EQ(Main(1, 5), "1 2|1 4|1 3||");
}

TEST_F(Run, AFullWheelThatDoesNotFitStopsAtTheLastPlayAfterAYes) {
    Use(NumberGame().Picks(6), Cells(0, 16));
    ExpectAsked(tooManyForTheSlips, BoxAnswer::Yes);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::FullWheel, "")), "1.A to 1000.E, 5000");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 5000);
}

TEST_F(Run, AFullWheelBehindPlaysInUseFillsTheRestAfterAYes) {
    Use(NumberGame().Picks(2), Cells(0, 6));
    UsePlays(4989, 4989);
    ExpectClearQuestion(BoxAnswer::No);
    ExpectAsked(tooManyForTheRest, BoxAnswer::Yes);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::FullWheel, "")), "998.E to 1000.E, 11");
    EXPECT_EQ(Main(4988, 4991), "|60 61|0 1|0 2");
    EXPECT_NE(Main(5000, 5000), "");
}

TEST_F(Run, ADeclinedFullWheelMakesNoPlayAndLeavesTheLabelsBlank) {
    Use(NumberGame().Picks(6), Cells(0, 16));
    ExpectAsked(tooManyForTheSlips, BoxAnswer::No);
    const RunResult result = RunShuffleOrWheel(WheelMode::FullWheel, "");
    EXPECT_EQ(result.end, End::Done);
    EXPECT_EQ(Told(result), " to , ");
    EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), 0);
    EXPECT_TRUE(appState.playsDirty);
}

// Not a bug: FULL-WHEEL-NO-1 in docs/not-bugs.md.
TEST_F(Run, QuirkFullWheelNo1WithABonusAndPlaysInUseADeclinedWheelIsReportedWithATotalOfZero) {
    Use(NumberGame().Picks(6).Bonus(1, BonusPool::Separate), Cells(0, 16), {1, 2});
    UsePlays(1, 10);
    const PlayPicks before = appState.PlayTable;
    ExpectClearQuestion(BoxAnswer::No);
    ExpectAsked(tooManyForTheRest, BoxAnswer::No);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::FullWheel, "")), "3.A to 2.E, 0");
    EXPECT_TRUE(appState.PlayTable == before);
}

TEST_F(Run, WithABonusOnEmptySlipsADeclinedWheelLeavesTheLabelsBlank) {
    Use(NumberGame().Picks(6).Bonus(1, BonusPool::Separate), Cells(0, 16), {1, 2});
    ExpectAsked(tooManyForTheSlips, BoxAnswer::No);
    EXPECT_EQ(Told(RunShuffleOrWheel(WheelMode::FullWheel, "")), " to , ");
}

TEST_F(Run, TheChosenPicksStayAsTheyAre) {
    Use(NumberGame().Picks(2).Bonus(1, BonusPool::Same), {1, -1, 2, 3}, {4, 5});
    appState.ShuffleTable(mainPicks, 0) = 3;
    const ChosenPicks before = appState.ShuffleTable;
    RunShuffleOrWheel(WheelMode::FullWheel, "");
    EXPECT_TRUE(appState.ShuffleTable == before);
    EXPECT_TRUE(appState.playsDirty);
}

// The Play Slips window

class RunWithSlipsOpen : public Run {
  protected:
    std::string SlipAfter(int slipBefore, int lastUsedPlay, const std::string& total) {
        Use(NumberGame().Picks(2), {1, 2, 3});
        UsePlays(lastUsedPlay, lastUsedPlay);
        appState.playsWindowOpen = true;
        appState.currentSlip = static_cast<std::int16_t>(slipBefore);
        ExpectClearQuestion(BoxAnswer::No);
        RunShuffleOrWheel(WheelMode::Shuffle, total);
        return std::to_string(appState.currentSlip) + *frmPlays.lblPlaySlip.text;
    }
};

TEST_F(RunWithSlipsOpen, ASlipAmongTheNewPlaysStays) {
    EXPECT_EQ(SlipAfter(3, 10, "11"), "3 3 Play Slip  ");
    EXPECT_EQ(SlipAfter(4, 10, "11"), "4 4 Play Slip  ");
    EXPECT_EQ(SlipAfter(5, 10, "11"), "5 5 Play Slip  ");
}

TEST_F(RunWithSlipsOpen, AnyOtherGivesWayToTheFirstSlipOfTheNewPlays) {
    EXPECT_EQ(SlipAfter(2, 10, "11"), "3 3 Play Slip  ");
    EXPECT_EQ(SlipAfter(6, 10, "11"), "3 3 Play Slip  ");
}

TEST_F(RunWithSlipsOpen, ClosedTheWindowKeepsItsSlip) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    appState.currentSlip = 9;
    RunShuffleOrWheel(WheelMode::FullWheel, "");
    EXPECT_EQ(appState.currentSlip, 9);
    EXPECT_EQ(*frmPlays.lblPlaySlip.text, "");
}

TEST_F(RunWithSlipsOpen, ARefusedRunKeepsItsSlip) {
    Use(NumberGame().Picks(2), {1, 2, 3});
    appState.playsWindowOpen = true;
    appState.currentSlip = 9;
    ExpectTold(badTotal);
    RunShuffleOrWheel(WheelMode::Shuffle, "");
    EXPECT_EQ(appState.currentSlip, 9);
}

TEST_F(RunWithSlipsOpen, WithATotalOfZeroItGoesToTheSlipBehindThePlaysInUse) {
    Use(NumberGame().Picks(6).Bonus(1, BonusPool::Separate), Cells(0, 16), {1, 2});
    UsePlays(1, 10);
    appState.playsWindowOpen = true;
    ExpectClearQuestion(BoxAnswer::No);
    ExpectAsked(tooManyForTheRest, BoxAnswer::No);
    RunShuffleOrWheel(WheelMode::FullWheel, "");
    EXPECT_EQ(appState.currentSlip, 3);
}

// Not a bug: SLIP-0-1 in docs/not-bugs.md.
TEST_F(RunWithSlipsOpen, QuirkSlip01AfterADeclinedWheelOnEmptySlipsItGoesToSlipZero) {
    Use(NumberGame().Picks(6), Cells(0, 16));
    appState.playsWindowOpen = true;
    ExpectAsked(tooManyForTheSlips, BoxAnswer::No);
    RunShuffleOrWheel(WheelMode::FullWheel, "");
    EXPECT_EQ(appState.currentSlip, 0);
    EXPECT_EQ(*frmPlays.lblPlaySlip.text, " 0 Play Slip  ");
}

// Beside a plain reckoning

// The proof that users care for: of the chosen picks each combination stands in one play, and none in two.
TEST_F(Run, AFullWheelHoldsEveryCombinationOnceForAllPicksThatFit) {
    int wheels = 0;
    for (int k = 1; k <= picksPerPlay; ++k) {
        for (int v = k + 1; v <= 99 && support::CombinationCount(v, k) <= playCount; ++v) {
            Use(NumberGame().Picks(k).To(99), Cells(0, v));
            const int plays = std::stoi(RunShuffleOrWheel(WheelMode::FullWheel, "").plays);
            support::Combinations combinations;
            for (int play = 1; play <= plays; ++play) {
                const auto picks = appState.PlayTable.Slots(mainPicks, play).first(static_cast<std::size_t>(k));
                combinations.emplace_back(picks.begin(), picks.end());
            }
            support::ExpectEachOnce(combinations, v, k);
            EXPECT_EQ(PlaysInUse(appState.PlayTable, mainPicks), plays) << k << " of " << v;
            ++wheels;
        }
    }
    // Pools with 5000 combinations or fewer, of one pick to ten.
    EXPECT_EQ(wheels, 98 + 97 + 29 + 16 + 11 + 8 + 7 + 6 + 5 + 5);
}

/// Numbers from 0 up to 1, the same again for the same seed.
class Numbers {
  public:
    explicit Numbers(unsigned seed) : source(seed) {}
    float operator()() { return static_cast<float>(source() >> 8U) / 16777216.0F; }

  private:
    std::mt19937 source;
};

/// A run as a person would do it with a pencil: everything it needs to know, and the plays that it leaves.
struct PlainRun {
    WheelMode mode;
    PlayPicks plays;
    int first;
    int last;
    int aimed;

    void Put(PickColumn list, int play, int method, const std::vector<int>& picks) {
        plays(list, play, 0) = static_cast<std::int16_t>(method);
        PutPicks(plays, list, play, picks);
    }

    /// False where the user has to be asked.
    bool FullWheel(PickColumn list, const std::vector<int>& pool, int k) {
        const auto rows = support::AllCombinations(pool, k);
        const bool fits = static_cast<int>(rows.size()) <= last + 1 - first;
        if (list == mainPicks && fits) {
            last = first + static_cast<int>(rows.size()) - 1;
        }
        for (int play = first; play <= last; ++play) {
            Put(list, play, 3, rows[static_cast<std::size_t>(play - first) % rows.size()]);
        }
        return fits;
    }

    void PartialWheel(PickColumn list, const std::vector<int>& pool, int k) {
        const auto rows = support::AllCombinations(pool, k);
        if (list == mainPicks) {
            last = std::min(last, first + static_cast<int>(rows.size()) - 1);
        }
        int play = 0;
        for (const int start : {0, 1}) {
            for (int row = start; row <= last - first; row += 2) {
                Put(list, ++play, 2, rows[static_cast<std::size_t>(row) % rows.size()]);
            }
        }
    }

    void Shuffle(PickColumn list, const std::vector<int>& pool, int k, Numbers& numbers) {
        int play = first;
        while (play <= last) {
            plays(mainPicks, play, 0) = 1;
            const int drawn =
                pool[static_cast<std::size_t>(static_cast<double>(numbers()) * static_cast<double>(pool.size()))];
            int hole = 0;
            bool isThere = false;
            for (int slot = k; slot >= 1; --slot) {
                hole = plays(list, play, slot) == -1 ? slot : hole;
                isThere = isThere || plays(list, play, slot) == drawn;
            }
            if (hole == 0) {
                ++play;
                if (play <= 5000) {
                    plays(list, play, 1) = static_cast<std::int16_t>(drawn);
                }
            } else if (!isThere) {
                plays(list, play, hole) = static_cast<std::int16_t>(drawn);
                play += hole == k ? 1 : 0;
            }
        }
    }
};

/// The different picks of a list in its slots up to a highest, with holes among them.
std::vector<int> AnyList(int count, int slots, int first) {
    std::vector<int> cells = Cells(first, count);
    std::mt19937 source(*rc::gen::arbitrary<unsigned>());
    std::ranges::shuffle(cells, source);
    cells.resize(static_cast<std::size_t>(slots), -1);
    std::ranges::shuffle(cells, source);
    return cells;
}

std::vector<int> WithoutHoles(std::vector<int> cells) {
    std::erase(cells, -1);
    return cells;
}

RC_GTEST_FIXTURE_PROP(Run, GivesWhatAPlainReckoningGives, ()) {
    const bool hasBonus = *rc::gen::arbitrary<bool>();
    const int k = *rc::gen::inRange(1, 7);
    const int bonusK = *rc::gen::inRange(1, 4);
    const int high = *rc::gen::inRange(14, 60);
    Game game = NumberGame().Picks(k).To(high);
    if (hasBonus) {
        game.Bonus(bonusK, BonusPool::Separate).BonusTo(9);
    }
    const std::vector<int> mainCells = AnyList(*rc::gen::inRange(k + 1, 14), high, 0);
    const std::vector<int> bonusCells = AnyList(*rc::gen::inRange(bonusK + 1, 8), 9, 0);
    Use(game, mainCells, hasBonus ? bonusCells : std::vector<int>());
    const PlayPicks empty = appState.PlayTable;
    const auto method = *rc::gen::element(WheelMode::Shuffle, WheelMode::PartialWheel, WheelMode::FullWheel);
    for (int used = *rc::gen::inRange(0, 6); used > 0; --used) {
        const int play = *rc::gen::oneOf(rc::gen::inRange(1, 30), rc::gen::inRange(4700, 4951));
        const auto list = hasBonus ? *rc::gen::element(mainPicks, bonusPicks) : mainPicks;
        std::vector<int> picks = Cells(70, *rc::gen::inRange(1, 11));
        picks[*rc::gen::inRange<std::size_t>(0, picks.size())] = -1;
        PutPicks(appState.PlayTable, list, play, picks);
    }

    int lastUsed = 5000;
    while (lastUsed > 0 && WithoutHoles({appState.PlayTable.Slots(mainPicks, lastUsed).begin(),
                                         appState.PlayTable.Slots(mainPicks, lastUsed).begin() + k})
                               .empty()) {
        --lastUsed;
    }
    const bool clears = lastUsed > 0 && *rc::gen::arbitrary<bool>();
    const int total = *rc::gen::inRange(2, 50);
    if (lastUsed > 0) {
        ExpectClearQuestion(clears ? BoxAnswer::Yes : BoxAnswer::No);
    }
    const int used = clears ? 0 : lastUsed;
    PlainRun plain{method, clears ? empty : appState.PlayTable, used + 1, used + total, used + total};
    const auto seed = *rc::gen::arbitrary<unsigned>();
    Numbers forPlain(seed);
    for (const PickColumn list : {mainPicks, bonusPicks}) {
        const std::vector<int> pool = WithoutHoles(list == mainPicks ? mainCells : bonusCells);
        const int picks = list == mainPicks ? k : bonusK;
        if (list == bonusPicks && !hasBonus) {
            continue;
        }
        if (method == WheelMode::Shuffle) {
            plain.Shuffle(list, pool, picks, forPlain);
        } else if (method == WheelMode::PartialWheel) {
            plain.PartialWheel(list, pool, picks);
        } else {
            plain.last = list == mainPicks ? 5000 : plain.last;
            const bool fits = plain.FullWheel(list, pool, picks);
            if (list == mainPicks && !fits) {
                ExpectAsked(used == 0 ? tooManyForTheSlips : tooManyForTheRest, BoxAnswer::Yes);
            }
        }
    }

    Numbers forRun(seed);
    platform::services.drawByChance = std::ref(forRun);
    const RunResult result = RunShuffleOrWheel(method, std::to_string(total));

    RC_ASSERT(result.plays == std::to_string(plain.last + 1 - plain.first));
    RC_ASSERT(appState.PlayTable == plain.plays);
    RC_ASSERT(boxes.Left() == 0U);
}

// Any number of chosen picks in any kind of game, any text, plays in use anywhere, any answer.
RC_GTEST_FIXTURE_PROP(Run, NoInputEndsTheProgramOrLeavesAPlayHalfWritten, ()) {
    const int k = *rc::gen::inRange(1, 11);
    const int gameType = *rc::gen::inRange(0, 6);
    Use(NumberGame().Picks(k).From(*rc::gen::inRange(0, 2)).To(99), {});
    appState.gameType = static_cast<std::int16_t>(gameType);
    appState.bonusPickCount = static_cast<std::int16_t>(*rc::gen::inRange(0, 11));
    appState.bonusHigh = 99;
    Choose(mainPicks, AnyList(*rc::gen::inRange(0, 101), 100, 0));
    Choose(bonusPicks, AnyList(*rc::gen::inRange(0, 101), 100, 0));
    for (const int play : *rc::gen::container<std::set<int>>(rc::gen::inRange(1, 5001))) {
        PutPicks(appState.PlayTable, mainPicks, play, Cells(200, k));
    }
    const int zero = appState.PlayTable(mainPicks, 0, 1);
    const auto text = *rc::gen::oneOf(rc::gen::map(rc::gen::inRange(-2, 5002), [](int n) { return std::to_string(n); }),
                                      rc::gen::element<std::string>(" 12 ", "3.5", "1e3", "999999999999", "", "ten"));
    std::mt19937 answers(*rc::gen::arbitrary<unsigned>());
    platform::services.showMessageBox = [&answers](const platform::MessageBoxRequest& request) {
        if (request.buttons == BoxButtons::Ok) {
            return BoxAnswer::Ok;
        }
        return answers() % 2 == 0 ? BoxAnswer::Yes : BoxAnswer::No;
    };

    RunShuffleOrWheel(*rc::gen::element(WheelMode::Shuffle, WheelMode::PartialWheel, WheelMode::FullWheel), text);

    RC_ASSERT(appState.PlayTable(mainPicks, 0, 1) == zero);
    for (int play = 1; play <= playCount; ++play) {
        const auto picks = appState.PlayTable.Slots(mainPicks, play).first(static_cast<std::size_t>(k));
        const auto holes = std::ranges::count(picks, -1);
        RC_ASSERT(holes == 0 || holes == k);
    }
}

}  // namespace
}  // namespace ballhaven
