#include "statistics/Repeaters.h"

#include "forms/MainForm.h"
#include "screen/HotCells.h"
#include "state/AppState.h"
#include "state/RuntimeFailure.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTableKinds.h"
#include "statistics/HotTables.h"
#include "support/Views.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::AllDraws;
using support::BonusPool;
using support::CardGame;
using support::DrawPicks;
using support::NumberGame;
using support::ShowDraws;
using support::StartWith;
using support::ViewOf;

using Picks = std::vector<std::int16_t>;
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

TEST(FindRepeaters, GivesTheCandidatesThatCameAgainInTheNextDraw) {
    const Table view = ViewOf({{9, 5, 2}, {2, 9, 7}, {9, 5, 30}});

    const FoundRows<PickHits> found = FindRepeaters(AllDraws(view), Picks{30, 9, 2, 5}, {1, 49}, mostRepeats);

    EXPECT_EQ(found.rows, (std::vector<PickHits>{{9, 2}, {2, 1}}));
    EXPECT_EQ(found.failure, std::nullopt);
}

TEST(FindRepeaters, TakesNoPickThatIsNoCandidate) {
    EXPECT_EQ(FindRepeaters(AllDraws(ViewOf({{1, 2}, {1, 2}})), Picks{2}, {1, 9}, mostRepeats).rows,
              (std::vector<PickHits>{{2, 1}}));
}

TEST(FindRepeaters, LooksAtNoRowBehindTheDraws) {
    const Table view = ViewOf({{1}, {2}, {2}});

    EXPECT_TRUE(FindRepeaters({view, 2, {1, 1}}, Picks{1, 2}, {1, 9}, mostRepeats).rows.empty());
}

TEST(FindRepeaters, TheLowestAndTheHighestValueOfAPickCount) {
    const Table view = ViewOf({{0, 1000, -2, 1001}, {0, 1000, -2, 1001}});

    EXPECT_EQ(FindRepeaters(AllDraws(view), Picks{0, 1000}, {0, 1000}, mostRepeats).rows,
              (std::vector<PickHits>{{0, 1}, {1000, 1}}));
}

TEST(FindRepeaters, AnOverflowLeavesTheRepeatersBeforeItAsFound) {
    // 4681 pairs of draws with seven pairs of columns each.
    std::vector<DrawPicks> draws;
    for (int game = 0; game < 4682; ++game) {
        draws.push_back(game % 2 == 0 ? DrawPicks{7, 1, 2} : DrawPicks{7, 7, 7, 7, 7, 7, 7, 3});
    }
    const Table atLimit = ViewOf(draws);
    const FoundRows<PickHits> fits = FindRepeaters(AllDraws(atLimit), Picks{9, 7}, {1, 9}, mostRepeats);
    EXPECT_EQ(fits.failure, std::nullopt);
    EXPECT_EQ(fits.rows, (std::vector<PickHits>{{7, 32767}}));

    draws.insert(draws.end(), {{3}, {7}, {7}});
    const Table beyond = ViewOf(draws);
    const FoundRows<PickHits> found = FindRepeaters(AllDraws(beyond), Picks{3, 7, 2}, {5, 9}, mostRepeats);
    EXPECT_EQ(found.failure, RuntimeFailure::Kind::Overflow);
    EXPECT_EQ(found.rows, (std::vector<PickHits>{{3, 1}}));
}

// Not a bug: REPEATERS-CAPTION-1 in docs/not-bugs.md.
TEST(QuirkRepeatersCaption1, WhereNoValueRepeatsThereAreNoRowsAndTheCaptionRemains) {
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

TEST(ComputeRepeaters, RepeatsBeyondSixteenBitsOverflow) {
    StartWith(NumberGame().Picks(10).From(0).To(9).WithDuplicates());
    ShowDraws(std::vector<DrawPicks>(328, DrawPicks(10, 3)));
    ShowRepeaters();
    EXPECT_EQ(Rows(), (Texts{"3 x32700"}));

    appState.repeaterStale = true;
    ShowDraws(std::vector<DrawPicks>(329, DrawPicks(10, 3)));
    std::optional<RuntimeFailure::Kind> failure;
    try {
        ShowRepeaters();
    } catch (const RuntimeFailure& raised) {
        failure = raised.GetKind();
    }
    EXPECT_EQ(failure, RuntimeFailure::Kind::Overflow);
    EXPECT_EQ(appState.repeaterLast, -1);
    EXPECT_EQ(appState.repeaterTable(2, 0), 32700);
    EXPECT_TRUE(appState.repeaterStale);
}

TEST(QuirkHotOverflow1, InAMendedFolderRepeatsBeyondSixteenBitsAreCounted) {
    StartWith(NumberGame().Picks(10).From(0).To(9).WithDuplicates());
    support::MendFolder();
    ShowDraws(std::vector<DrawPicks>(1000, DrawPicks(10, 3)));

    ShowRepeaters();

    EXPECT_EQ(Rows(), (Texts{"3 x99900"}));
    EXPECT_EQ(HotCellValue(0, 2), "9990");
    EXPECT_EQ(HotCellValue(0, 3), ".0");
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

TEST(QuirkRepeaterZeros1, InAMendedFolderTheRowStaysAndHasNoInterval) {
    StartWith(NumberGame().Picks(1).From(1).To(9).Bonus(1, BonusPool::Separate).BonusFrom(0).BonusTo(9));
    support::MendFolder();
    ShowDraws({{5, 0}, {5, 0}});

    ShowRepeaters();

    EXPECT_EQ(Rows(), (Texts{"5 x1", "0 x0"}));
    EXPECT_EQ(HotCellValue(1, 3), "");
}

}  // namespace
}  // namespace ballhaven
