#include "statistics/NoHitters.h"

#include "forms/MainForm.h"
#include "screen/HotCells.h"
#include "state/AppState.h"
#include "statistics/HotNumbers.h"
#include "statistics/HotTableKinds.h"
#include "statistics/HotTables.h"
#include "support/Views.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

namespace ballhaven {
namespace {

using support::AllDraws;
using support::BonusPool;
using support::CardGame;
using support::NumberGame;
using support::ShowDraws;
using support::StartWith;
using support::ViewOf;

using Picks = std::vector<std::int16_t>;

/// Puts the table on show and builds it.
void ShowNoHitters() {
    appState.hotTableChoice = static_cast<std::int16_t>(HotTable::NoHitters);
    ComputeHotTable();
}

/// The listed picks; none where the table has no rows.
Picks Listed() {
    return appState.noHitterLast < 0 ? Picks() : Picks(appState.noHitterTable.begin(), appState.noHitterTable.end());
}

Picks From(std::int16_t first, std::int16_t last) {
    Picks picks(static_cast<std::size_t>(last - first + 1));
    std::iota(picks.begin(), picks.end(), first);
    return picks;
}

std::string Caption() {
    return frmMainForm.grdHot.caption;
}

TEST(FindNoHitters, GivesThePicksOfTheRangeThatStandInNoDraw) {
    EXPECT_EQ(FindNoHitters(AllDraws(ViewOf({{2, 9, -1}, {7, 4, 2}})), {2, 8}), (Picks{3, 5, 6, 8}));
    EXPECT_EQ(FindNoHitters(AllDraws(ViewOf({{0, 3}})), {0, 3}), (Picks{1, 2}));
    EXPECT_EQ(FindNoHitters(AllDraws(ViewOf({})), {2, 4}), (Picks{2, 3, 4}));
}

TEST(FindNoHitters, OfARangeThatEndsBeforeItBeginsGivesNothing) {
    EXPECT_EQ(FindNoHitters(AllDraws(ViewOf({{0, 1}})), {0, -1}), Picks());
}

TEST(NoHitterRange, IsTheMainRangeWithoutDuplicates) {
    EXPECT_EQ(NoHitterRange({0, 9}, 3, false), (PickRange{0, 9}));
}

// Not a bug: NO-HITTERS-TOP-1 in docs/not-bugs.md.
TEST(QuirkNoHittersTop1, WithDuplicatesTheRangeEndsAtItsShareForOneMainPick) {
    EXPECT_EQ(NoHitterRange({0, 9}, 3, true), (PickRange{0, 2}));
    EXPECT_EQ(NoHitterRange({1, 9}, 3, true), (PickRange{1, 3}));
    EXPECT_EQ(NoHitterRange({1, 10}, 4, true), (PickRange{1, 2}));
    EXPECT_EQ(NoHitterRange({0, 9}, 1, true), (PickRange{0, 8}));
    EXPECT_EQ(NoHitterRange({1, 9}, 0, true), (PickRange{1, 9}));
}

TEST(ComputeNoHitters, ASingleGameLeavesAllValuesThatAreNotInIt) {
    StartWith(NumberGame().Picks(3).To(7));
    ShowDraws({{2, 7, 4}});

    ShowNoHitters();

    EXPECT_EQ(Listed(), (Picks{1, 3, 5, 6}));
    EXPECT_EQ(appState.noHitterLast, 3);
    EXPECT_EQ(frmMainForm.hotRowCount, 4);
}

// Not a bug: NO-HITTERS-CAPTION-1 in docs/not-bugs.md.
TEST(QuirkNoHittersCaption1, WhereAllValuesWereDrawnThereAreNoRowsAndTheCaptionRemains) {
    StartWith(NumberGame().Picks(3).To(6));
    ShowDraws({{1, 2, 3}, {4, 5, 6}});
    frmMainForm.grdHot.caption = "No Hitters in last 2 games";

    ShowNoHitters();

    EXPECT_EQ(appState.noHitterLast, -1);
    EXPECT_EQ(frmMainForm.hotRowCount, 0);
    EXPECT_EQ(Caption(), "No Hitters in last 2 games");
}

TEST(ComputeNoHitters, AnEmptyLogListsTheWholeRange) {
    StartWith(NumberGame().From(0).To(49));
    ShowDraws({});

    ShowNoHitters();

    EXPECT_EQ(Listed(), From(0, 49));
}

TEST(ComputeNoHitters, AnEmptyLogOfACardGameLists52CardsBySuit) {
    StartWith(CardGame().Picks(5));
    ShowDraws({});

    ShowNoHitters();

    EXPECT_EQ(Listed(), From(1, 52));
    EXPECT_EQ(HotCellValue(0, 0), "Ah");
    EXPECT_EQ(HotCellValue(13, 0), "Ac");
    EXPECT_EQ(HotCellValue(26, 0), "Ad");
    EXPECT_EQ(HotCellValue(51, 0), "Ks");
}

TEST(ComputeNoHitters, AValueDrawnOnlyAsABonusIsNone) {
    StartWith(NumberGame().Picks(1).To(4).Bonus(1, BonusPool::Separate).BonusTo(9));
    ShowDraws({{1, 3}});

    ShowNoHitters();

    EXPECT_EQ(Listed(), (Picks{2, 4}));
}

TEST(ComputeNoHitters, ASeparateBonusValueAboveTheMainPicksIsNotListed) {
    StartWith(NumberGame().Picks(1).To(4).Bonus(1, BonusPool::Separate).BonusTo(9));
    ShowDraws({{1, 8}});

    ShowNoHitters();

    EXPECT_EQ(Listed(), (Picks{2, 3, 4}));
}

TEST(ComputeNoHitters, TheChoiceOfPicksMakesNoDifference) {
    StartWith(NumberGame().Picks(1).To(4).Bonus(1, BonusPool::Same));
    ShowDraws({{1, 3}});
    for (const int choice : {0, 1, 2}) {
        appState.hotSortChoice = static_cast<std::int16_t>(choice);

        ShowNoHitters();

        EXPECT_EQ(Listed(), (Picks{2, 4})) << choice;
    }
}

TEST(ComputeNoHitters, ADamagedGameWithoutMainPicksIsOneOfOnePick) {
    StartWith(NumberGame().Picks(1).From(1).To(5).WithDuplicates());
    ShowDraws({});
    appState.mainPickCount = 0;

    ShowNoHitters();

    EXPECT_EQ(Listed(), From(1, 5));
}

// Not a bug: NO-HITTERS-TOP-1 in docs/not-bugs.md.
TEST(QuirkNoHittersTop1, ThreePicksFrom0To9WithDuplicatesListNothingAboveTwo) {
    StartWith(NumberGame().Picks(3).From(0).To(9).WithDuplicates());
    ShowDraws({{1, 1, 7}});

    ShowNoHitters();

    EXPECT_EQ(Listed(), (Picks{0, 2}));
}

// Not a bug: NO-HITTERS-TOP-1 in docs/not-bugs.md.
TEST(QuirkNoHittersTop1, WhereTheLowestNumberIsOneTheListEndsOneLater) {
    StartWith(NumberGame().Picks(3).From(1).To(10).WithDuplicates());
    ShowDraws({});

    ShowNoHitters();

    EXPECT_EQ(Listed(), (Picks{1, 2, 3}));
}

// Not a bug: NO-HITTERS-TOP-1 in docs/not-bugs.md.
TEST(QuirkNoHittersTop1, AShareOfNothingListsNothing) {
    StartWith(NumberGame().Picks(10).From(0).To(9).WithDuplicates());
    ShowDraws({});

    ShowNoHitters();

    EXPECT_EQ(appState.noHitterLast, -1);
}

}  // namespace
}  // namespace ballhaven
