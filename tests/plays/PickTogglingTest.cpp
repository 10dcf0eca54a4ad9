#include "plays/PickToggling.h"

#include <gtest/gtest.h>

#include <vector>

namespace ballhaven {
namespace {

using List = std::vector<std::int16_t>;

TEST(PickOfCell, AMainPickIsItsCellAndABonusPickCountsFromItsOwnFirstCell) {
    EXPECT_EQ(PickOfCell(2, 100).list, mainPicks);
    EXPECT_EQ(PickOfCell(2, 100).value, 100);
    EXPECT_EQ(PickOfCell(2, 107).list, mainPicks);
    EXPECT_EQ(PickOfCell(2, 108).list, bonusPicks);
    EXPECT_EQ(PickOfCell(2, 108).value, 0);
    EXPECT_EQ(PickOfCell(5, 71).list, mainPicks);
    EXPECT_EQ(PickOfCell(5, 72).list, bonusPicks);
    EXPECT_EQ(PickOfCell(5, 123).value, 51);
}

TEST(IsPickText, EmptyCellsAndTheLettersOfBonusAreNoPicks) {
    for (const char* text : {"", "B", "O", "N", "U", "S"}) {
        EXPECT_FALSE(IsPickText(text)) << text;
    }
    for (const char* text : {"0", "7", "49", "BO"}) {
        EXPECT_TRUE(IsPickText(text)) << text;
    }
}

TEST(PickDescription, TellsAPickAndWhetherItIsChosen) {
    EXPECT_EQ(PickDescription("17", true), "17, chosen");
    EXPECT_EQ(PickDescription("17", false), "17");
    EXPECT_EQ(PickDescription("N", true), "");
    EXPECT_EQ(PickDescription("", false), "");
}

TEST(TogglePickIn, APickGoesIntoTheFirstEmptySlot) {
    List own{4, -1, 9, -1};
    EXPECT_EQ(TogglePickIn(own, {}, 7, 0), Toggled::PutOn);
    EXPECT_EQ(own, (List{4, 7, 9, -1}));
}

TEST(TogglePickIn, APickThatIsThereIsTakenOffAndLeavesAHole) {
    List own{4, 7, 9};
    EXPECT_EQ(TogglePickIn(own, {}, 7, 0), Toggled::TakenOff);
    EXPECT_EQ(own, (List{4, -1, 9}));
}

TEST(TogglePickIn, TheFirstCellIsAPickLikeAnyOther) {
    List own{-1, -1};
    EXPECT_EQ(TogglePickIn(own, {}, 0, 0), Toggled::PutOn);
    EXPECT_EQ(own, (List{0, -1}));
    EXPECT_EQ(TogglePickIn(own, {}, 0, 0), Toggled::TakenOff);
    EXPECT_EQ(own, (List{-1, -1}));
}

TEST(TogglePickIn, AFullListTakesNoMore) {
    List own{4, 7};
    EXPECT_EQ(TogglePickIn(own, {}, 9, 0), Toggled::ListIsFull);
    EXPECT_EQ(own, (List{4, 7}));
}

TEST(TogglePickIn, WithTheBonusFromTheSamePoolANumberStandsInOneListOnly) {
    List own{-1};
    const List other{12};
    EXPECT_EQ(TogglePickIn(own, other, 12, 1), Toggled::HeldByOther);
    EXPECT_EQ(own, List{-1});
}

TEST(TogglePickIn, APickThatBothListsHoldCanBeTakenOff) {
    List own{12};
    const List other{12};
    EXPECT_EQ(TogglePickIn(own, other, 12, 1), Toggled::TakenOff);
}

TEST(TogglePickIn, WithTheBonusFromASeparatePoolBothListsHoldANumber) {
    List own{-1};
    const List other{12};
    EXPECT_EQ(TogglePickIn(own, other, 12, 2), Toggled::PutOn);
}

// Not a bug: CARD-IN-BOTH-LISTS-1 in docs/not-bugs.md.
TEST(QuirkCardInBothLists1, ACardOfTheSameDeckCanStandInBothLists) {
    for (const int gameType : {4, 5}) {
        List own{-1};
        const List other{12};
        EXPECT_EQ(TogglePickIn(own, other, 12, gameType), Toggled::PutOn) << gameType;
    }
    List own{-1};
    const List other{12};
    EXPECT_EQ(TogglePickIn(own, other, 12, 3), Toggled::HeldByOther);
}

}  // namespace
}  // namespace ballhaven
