#include "statistics/Repeaters.h"

#include "forms/MainForm.h"
#include "screen/HotCells.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTableKinds.h"
#include "statistics/HotTables.h"
#include "support/MainScreen.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::BonusPool;
using support::CardGame;
using support::DrawPicks;
using support::NumberGame;
using support::ShowDraws;
using support::StartWith;

using Texts = std::vector<std::string>;

/// Puts the table on show and builds it.
void ShowRepeaters() {
    appState.hotTableChoice = static_cast<std::int16_t>(HotTable::Repeaters);
    ComputeHotTable();
}

/// The rows as "pick xrepeats".
Texts Rows() {
    Texts rows;
    for (int row = 0; row <= appState.repeaterLast; ++row) {
        rows.push_back(std::to_string(appState.repeaterTable(1, row)) + " x" +
                       std::to_string(appState.repeaterTable(2, row)));
    }
    return rows;
}

std::string Caption() {
    return frmMainForm.grdHot.caption;
}

TEST(ComputeRepeaters, ASingleGameHasNone) {
    StartWith(NumberGame().Picks(3));
    ShowDraws({{1, 2, 3}});

    ShowRepeaters();

    EXPECT_EQ(appState.repeaterLast, -1);
    EXPECT_EQ(frmMainForm.hotRowCount, 0);
}

TEST(ComputeRepeaters, WhereNoValueRepeatsThereAreNoRowsAndTheCaptionRemains) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{1, 2}, {3, 4}});
    frmMainForm.grdHot.caption = "Hot Repeaters in last 2 games";

    ShowRepeaters();

    EXPECT_EQ(appState.repeaterLast, -1);
    EXPECT_EQ(frmMainForm.hotRowCount, 0);
    EXPECT_EQ(HotCellValue(0, 0), std::nullopt);
    EXPECT_EQ(Caption(), "Hot Repeaters in last 2 games");
}

TEST(ComputeRepeaters, MoreRepeatsStandFirstAndEqualOnesByValue) {
    StartWith(NumberGame().Picks(3));
    ShowDraws({{9, 5, 2}, {2, 9, 7}, {9, 5, 30}});

    ShowRepeaters();

    EXPECT_EQ(Rows(), (Texts{"9 x2", "2 x1"}));
    EXPECT_EQ(frmMainForm.hotRowCount, 2);
    EXPECT_EQ(HotCellValue(0, 1), "2");
    EXPECT_EQ(HotCellValue(0, 2), "66");
    EXPECT_EQ(HotCellValue(0, 3), "1.5");
}

TEST(ComputeRepeaters, UnderAllAMainValueThatComesAgainAsABonusRepeats) {
    StartWith(NumberGame().Picks(2).Bonus(1, BonusPool::Same));
    ShowDraws({{1, 2, 3}, {4, 5, 1}});

    ShowRepeaters();

    EXPECT_EQ(Rows(), (Texts{"1 x1"}));
}

TEST(ComputeRepeaters, TheChoiceOfPicksNarrowsTheCandidatesOnly) {
    StartWith(NumberGame().Picks(2).Bonus(1, BonusPool::Same));
    ShowDraws({{1, 2, 9}, {3, 9, 1}, {9, 8, 7}});
    appState.hotSortChoice = static_cast<std::int16_t>(CountedPicks::Bonus);

    ShowRepeaters();

    EXPECT_EQ(Rows(), (Texts{"9 x2", "1 x1"}));
}

TEST(ComputeRepeaters, AValueOfTheFirstAndThirdGameIsNoRepeater) {
    StartWith(NumberGame().Picks(1));
    ShowDraws({{7}, {8}, {7}});

    ShowRepeaters();

    EXPECT_EQ(appState.repeaterLast, -1);
}

TEST(ComputeRepeaters, EachPairOfColumnsIsARepeat) {
    StartWith(NumberGame().Picks(3).From(0).To(9).WithDuplicates());
    ShowDraws({{4, 4, 5}, {4, 6, 7}});
    ShowRepeaters();
    EXPECT_EQ(Rows(), (Texts{"4 x2"}));

    ShowDraws({{4, 4, 5}, {4, 4, 4}});
    ShowRepeaters();
    EXPECT_EQ(Rows(), (Texts{"4 x6"}));
}

TEST(ComputeRepeaters, TheDirectionOfTheLogMakesNoDifference) {
    const std::vector<DrawPicks> draws{{1, 2}, {2, 3}, {3, 2}, {5, 6}};
    StartWith(NumberGame().Picks(2).OldestFirst());
    ShowDraws(draws);
    ShowRepeaters();
    const Texts oldestFirst = Rows();

    StartWith(NumberGame().Picks(2).NewestFirst());
    ShowDraws(draws);
    ShowRepeaters();

    EXPECT_EQ(oldestFirst, (Texts{"2 x2", "3 x1"}));
    EXPECT_EQ(Rows(), oldestFirst);
}

TEST(ComputeRepeaters, ASeparateBonusValueAboveTheMainPicksIsNoCandidate) {
    StartWith(NumberGame().Picks(1).To(9).Bonus(1, BonusPool::Separate).BonusTo(30));
    ShowDraws({{5, 30}, {5, 30}});

    ShowRepeaters();

    EXPECT_EQ(Rows(), (Texts{"5 x1"}));
}

TEST(ComputeRepeaters, BlankCellsDoNotRepeat) {
    StartWith(NumberGame().Picks(2));
    ShowDraws({{-1, 1}, {-1, 2}});

    ShowRepeaters();

    EXPECT_EQ(appState.repeaterLast, -1);
}

TEST(ComputeRepeaters, CardsShowTheirTexts) {
    StartWith(CardGame().Picks(2));
    ShowDraws({{23, 1}, {23, 2}});

    ShowRepeaters();

    EXPECT_EQ(HotCellValue(0, 0), "10c");
}

TEST(ComputeRepeaters, ATableThatFindsNothingKeepsItsOldArrayAndIsNotStale) {
    StartWith(NumberGame().Picks(1));
    ShowDraws({{1}, {1}});
    ShowRepeaters();
    appState.repeaterStale = true;
    ShowDraws({});

    ShowRepeaters();

    EXPECT_EQ(appState.repeaterLast, -1);
    EXPECT_EQ(appState.repeaterTable.Rows(), 1);
    EXPECT_FALSE(appState.repeaterStale);
}

TEST(ComputeRepeaters, RepeatsBeyondSixteenBitsOverflow) {
    StartWith(NumberGame().Picks(10).From(0).To(9).WithDuplicates());
    ShowDraws(std::vector<DrawPicks>(328, DrawPicks(10, 3)));
    ShowRepeaters();
    EXPECT_EQ(Rows(), (Texts{"3 x32700"}));

    ShowDraws(std::vector<DrawPicks>(329, DrawPicks(10, 3)));
    std::optional<RuntimeFailure::Kind> failure;
    try {
        ShowRepeaters();
    } catch (const RuntimeFailure& raised) {
        failure = raised.GetKind();
    }
    EXPECT_EQ(failure, RuntimeFailure::Kind::Overflow);
}

// Not a bug: REPEATER-ZEROS-1 in docs/not-bugs.md.
TEST(QuirkRepeaterZeros1, ARepeaterBelowTheMainRangeLeavesARowOfZerosWhoseIntervalFails) {
    StartWith(NumberGame().Picks(1).From(1).To(9).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(9));
    ShowDraws({{5, 0}, {5, 0}});

    ShowRepeaters();

    EXPECT_EQ(Rows(), (Texts{"5 x1", "0 x0"}));
    EXPECT_EQ(HotCellValue(1, 0), "0");
    EXPECT_THROW(static_cast<void>(HotCellValue(1, 3)), RuntimeFailure);
}

// Not a bug: REPEATERS-CAPTION-1 in docs/not-bugs.md.
TEST(QuirkRepeatersCaption1, TheCaptionIsSetWhilePairedOnceIsOnShowAndAtNoOtherTime) {
    StartWith(NumberGame().Picks(1));
    ShowDraws({{1}, {1}});
    ComputeHotTable();
    for (const int choice : {1, 2, 4, 5}) {
        appState.hotTableChoice = static_cast<std::int16_t>(choice);
        frmMainForm.grdHot.caption = "As it was";
        ComputeRepeaters();
        EXPECT_EQ(Caption(), "As it was") << choice;
    }

    appState.hotTableChoice = 3;
    ComputeRepeaters();
    EXPECT_EQ(Caption(), "Hot Repeaters in last 2 games");

    ShowDraws({{1}, {2}});
    ComputeRepeaters();
    EXPECT_EQ(Caption(), "Hot Repeaters (none found)");
}

}  // namespace
}  // namespace ballhaven
