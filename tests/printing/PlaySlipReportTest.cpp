#include "printing/PlaySlipReport.h"

#include "state/AppState.h"
#include "support/Games.h"
#include "support/Plays.h"
#include "support/PrintedReport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::CardGame;
using support::Game;
using support::GoldenText;
using support::NumberGame;
using support::PicksText;
using support::SetUpGame;
using support::SetUpPlay;

using Lines = std::vector<std::string>;

class PlaySlipReport : public support::PrintedReport {
  protected:
    static void Play(const Game& game, const std::string& name, bool inOrder = false) {
        SetUpGame(game);
        NameGame(name, inOrder);
    }

    /// Plays of three numbers from 1 to 99: the first has 1, 2, 3, the second 2, 3, 4.
    static void FillPlays(int count) {
        Play(NumberGame().Picks(3).To(99), "Harbour Three");
        for (int play = 1; play <= count; ++play) {
            const int first = (play - 1) % 97;
            SetUpPlay(play, {first, first + 1, first + 2});
        }
    }

    /// The lines of plays on each page, and on one.
    [[nodiscard]] std::vector<Lines> PlaysOfPages() const {
        std::vector<Lines> pages = PageLines();
        for (Lines& lines : pages) {
            lines.erase(lines.begin(), lines.begin() + 5);
        }
        return pages;
    }
    [[nodiscard]] Lines Plays(std::size_t page) const { return PlaysOfPages().at(page); }

    [[nodiscard]] std::size_t Pages() const { return printer.jobs.at(0).size(); }
};

TEST_F(PlaySlipReport, PrintsALineForEachPlayWithItsSlipAndLetter) {
    Play(NumberGame().Picks(5).To(45).Bonus(2, BonusPool::Separate).BonusTo(12), "Five Plus Two");
    SetUpPlay(1, {44, 1, 20, 32, 7}, {11, 4});
    SetUpPlay(2, {}, {3});
    SetUpPlay(3, {0, 1, 2, 3, 4}, {11});
    SetUpPlay(7, {6});
    playSlipReport();
    EXPECT_EQ(Paper(), GoldenText("plays-five-plus-two.txt"));
    EXPECT_EQ(titles, (Lines{"Five Plus Two Play Slips"}));
}

TEST_F(PlaySlipReport, WithoutPlaysSaysSoAndLeavesThemAlone) {
    Play(NumberGame().Picks(5).To(45).Bonus(2, BonusPool::Separate).BonusTo(12), "Five Plus Two");
    const PlayPicks before = appState.PlayTable;
    playSlipReport();
    EXPECT_EQ(Paper(), GoldenText("plays-none.txt"));
    EXPECT_EQ(appState.PlayTable, before);
}

TEST_F(PlaySlipReport, The21stPlayGoesToTheNextPageUnderBothHeads) {
    FillPlays(21);
    playSlipReport();
    EXPECT_EQ(Paper(), GoldenText("plays-21.txt"));
}

TEST_F(PlaySlipReport, TwentyPlaysFillAPageWithoutAnotherOne) {
    FillPlays(20);
    playSlipReport();
    EXPECT_EQ(Pages(), 1U);
}

TEST_F(PlaySlipReport, OfAGameWhoseOrderMattersHasThePicksAsTheyStand) {
    Play(CardGame().Picks(3).InOrder(), "Queens in Order", true);
    SetUpPlay(1, {51, -1, 0});
    SetUpPlay(2, {22, 21, 20});
    playSlipReport();
    EXPECT_EQ(Paper(), GoldenText("plays-cards-in-order.txt"));
    EXPECT_EQ(PicksText(appState.PlayTable, mainPicks, 1, 1), "51 - 0");
}

TEST_F(PlaySlipReport, AnEmptyPlayOfAGameWhoseOrderMattersIsPassedOver) {
    Play(NumberGame().Picks(3).To(99), "In Order", true);
    SetUpPlay(1, {5, 4, 3});
    SetUpPlay(3, {8, 9, 7});
    playSlipReport();
    EXPECT_EQ(Plays(0), (Lines{"    1.A       6    5    4", "    1.C       9    10   8"}));
}

// Not a bug: PLAY-SORT-1 in docs/not-bugs.md.
TEST_F(PlaySlipReport, ASecondTimePrintsAll5000Plays) {
    FillPlays(1);
    playSlipReport();
    EXPECT_EQ(Plays(0), (Lines{"    1.A       1    2    3"}));
    printer.jobs.clear();
    playSlipReport();
    ASSERT_EQ(Pages(), 250U);
    for (const Lines& plays : PlaysOfPages()) {
        ASSERT_EQ(plays.size(), 20U);
    }
    EXPECT_EQ(Plays(0)[0], "    1.A       1    2    3");
    EXPECT_EQ(Plays(0)[1], "    1.B       1    1    1");
    EXPECT_EQ(Plays(249)[19], "    1000.E    1    1    1");
}

TEST_F(PlaySlipReport, InAMendedFolderASecondTimePrintsTheSameAndThePlaysStayAsTheyAre) {
    Play(NumberGame().Picks(5).To(45).Bonus(2, BonusPool::Separate).BonusTo(12), "Five Plus Two");
    support::MendFolder();
    SetUpPlay(1, {44, 1, 20, 32, 7}, {11, 4});
    SetUpPlay(2, {}, {3});
    SetUpPlay(3, {0, 1, 2, 3, 4}, {11});
    SetUpPlay(7, {6});
    const PlayPicks before = appState.PlayTable;
    for (int time = 1; time <= 2; ++time) {
        printer.jobs.clear();
        playSlipReport();
        EXPECT_EQ(Paper(), GoldenText("plays-five-plus-two.txt"));
        EXPECT_EQ(appState.PlayTable, before);
    }
}

TEST_F(PlaySlipReport, Of5000PlaysHas20OnEachPage) {
    FillPlays(5000);
    playSlipReport();
    ASSERT_EQ(Pages(), 250U);
    for (const Lines& plays : PlaysOfPages()) {
        ASSERT_EQ(plays.size(), 20U);
    }
    EXPECT_EQ(Plays(249)[19], "    1000.E    53   54   55");  // 4999 % 97 is 52
}

// Not a bug: PLAY-REPORT-SEVENTH-1 in docs/not-bugs.md.
TEST_F(PlaySlipReport, TheBonusPickBehindSixMainPicksIsNeverPrinted) {
    Play(NumberGame().Picks(6).To(49).Bonus(1, BonusPool::Separate).BonusTo(10), "Six and One", true);
    SetUpPlay(1, {0, 1, 2, 3, 4, 5}, {8});
    playSlipReport();
    EXPECT_EQ(Plays(0), (Lines{"    1.A       1    2    3    4    5    6"}));
}

// Not a bug: PLAY-REPORT-SEVENTH-1 in docs/not-bugs.md.
TEST_F(PlaySlipReport, OfTwoBonusPicksBehindSixMainPicksTheSecondIsPrinted) {
    Play(NumberGame().Picks(6).To(49).Bonus(2, BonusPool::Separate).BonusTo(10), "Six and Two", true);
    SetUpPlay(1, {0, 1, 2, 3, 4, 5}, {8, 9});
    playSlipReport();
    EXPECT_EQ(Plays(0), (Lines{"    1.A       1    2    3    4    5    6         10"}));
}

TEST_F(PlaySlipReport, AMainPickInTheSeventhColumnStays) {
    Play(NumberGame().Picks(7).To(49).Bonus(4, BonusPool::Same), "Seven and Four", true);
    SetUpPlay(1, {0, 1, 2, 3, 4, 5, 6}, {7, -1, 9, 10});
    playSlipReport();
    EXPECT_EQ(Plays(0), (Lines{"    1.A       1    2    3    4    5    6    7    8         10"}));
}

TEST_F(PlaySlipReport, ABonusPickIsTakenForACellOfTheMainBoard) {
    Play(NumberGame().Picks(2).From(0).To(9).Bonus(2, BonusPool::Separate).BonusFrom(1).BonusTo(12), "Two Drums", true);
    SetUpPlay(1, {3, 4}, {9, 11});
    playSlipReport();
    EXPECT_EQ(Plays(0), (Lines{"    1.A       3    4    9"}));
}

// Not a bug: PLAY-REPORT-LAST-1 in docs/not-bugs.md.
TEST_F(PlaySlipReport, APlayWithABlankFirstCellBehindTheLastOneIsLeftOut) {
    Play(NumberGame().Picks(3).To(99), "In Order", true);
    SetUpPlay(1, {-1, 4, 3});
    SetUpPlay(2, {8, 9, 7});
    SetUpPlay(3, {-1, 1, 2});
    playSlipReport();
    EXPECT_EQ(Plays(0), (Lines{"    1.A            5    4", "    1.B       9    10   8"}));
}

TEST_F(PlaySlipReport, AFirstBonusCellMakesAPlayTheLastOneInAGameWithBonus) {
    const Game withBonus = NumberGame().Picks(3).To(99).Bonus(1, BonusPool::Separate).BonusTo(9);
    Play(withBonus, "With Bonus", true);
    SetUpPlay(1, {8, 9, 7});
    SetUpPlay(3, {-1, 1, 2}, {5});
    playSlipReport();
    EXPECT_EQ(Plays(0), (Lines{"    1.A       9    10   8", "    1.C            2    3    6"}));

    printer.jobs.clear();
    Play(NumberGame().Picks(3).To(99), "Without", true);
    SetUpPlay(1, {8, 9, 7});
    SetUpPlay(3, {-1, 1, 2}, {5});
    playSlipReport();
    EXPECT_EQ(Plays(0), (Lines{"    1.A       9    10   8"}));
}

TEST_F(PlaySlipReport, WhereThePrinterIsNotReadyThePlaysAreSortedAllTheSame) {
    FillPlays(1);
    SetUpPlay(1, {3, 2, 1});
    printer.FailFrom(1);
    ExpectNotReady();
    playSlipReport();
    EXPECT_TRUE(printer.jobs.empty());
    EXPECT_EQ(PicksText(appState.PlayTable, mainPicks, 1, 1), "1 2 3 0 0 0 0 0 0 0");
}

TEST_F(PlaySlipReport, APrinterThatFailsAtAPageBreakIsToldAndNothingIsPrinted) {
    FillPlays(21);
    // A beginning; two texts of the page head, five of the section's; a label and three picks in each of 20 rows.
    printer.FailFrom(1 + 2 + 5 + 4 * 20 + 1);
    ExpectNotReady();
    playSlipReport();
    EXPECT_TRUE(printer.jobs.empty());
}

TEST_F(PlaySlipReport, AFailureAtTheEndIsTheCallersToAnswer) {
    FillPlays(1);
    printer.FailFrom(1 + 2 + 5 + 4 + 1, 25);
    EXPECT_THROW(playSlipReport(), platform::PrinterFailure);
    EXPECT_TRUE(printer.jobs.empty());
}

TEST_F(PlaySlipReport, ChangesNothingThatItDoesNotPrintInAGameWithMoreCountsThanSlots) {
    Play(NumberGame().Picks(3).To(99), "Broken Record");
    appState.mainPickCount = 99;
    SetUpPlay(1, {8, 9, 7});
    playSlipReport();
    EXPECT_EQ(Plays(0), (Lines{"    1.A       8    9    10   1    1    1    1    1    1    1"}));
}

}  // namespace
}  // namespace ballhaven
