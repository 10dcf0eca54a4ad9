#include "data/exchange/PlayExport.h"

#include "support/Games.h"

#include <gtest/gtest.h>

namespace ballhaven::data {
namespace {

using support::BonusPool;
using support::CardGame;
using support::NumberGame;
using support::SetUpGame;
using support::SetUpPlay;

std::string Csv() {
    return CsvOfPlays(CurrentRules(), appState.PlayTable);
}

TEST(CsvOfPlays, EachPlayWithAPickHasItsSlipItsLineAndHowItWasMade) {
    SetUpGame(NumberGame().Picks(2).From(1).To(49));
    SetUpPlay(1, {0, 48});
    SetUpPlay(7, {11, 6});
    SetUpPlay(5000, {1, 2});
    appState.PlayTable(mainPicks, 1, 0) = 1;
    appState.PlayTable(mainPicks, 7, 0) = 3;
    EXPECT_EQ(Csv(),
              "slip,line,method,main1,main2\n"
              "1,A,shuffle,1,49\n"
              "2,B,full wheel,12,7\n"
              "1000,E,by hand,2,3\n");
}

TEST(CsvOfPlays, AHoleInTheSlotsIsAnEmptyField) {
    SetUpGame(NumberGame().Picks(3).From(0).To(49).Bonus(1, BonusPool::Separate).BonusFrom(1).BonusTo(10));
    SetUpPlay(2, {0, -1, 4});
    SetUpPlay(3, {}, {0});
    appState.PlayTable(mainPicks, 2, 0) = 2;
    EXPECT_EQ(Csv(),
              "slip,line,method,main1,main2,main3,bonus\n"
              "1,B,partial wheel,0,,4,\n"
              "1,C,by hand,,,,1\n");
}

TEST(CsvOfPlays, CardsAreTexts) {
    SetUpGame(CardGame().Picks(2).Bonus(1, BonusPool::Same));
    SetUpPlay(1, {0, 22}, {51});
    EXPECT_EQ(Csv(), "slip,line,method,main1,main2,bonus\n1,A,by hand,Ah,10c,Ks\n");
}

TEST(CsvOfPlays, ANumberThatRepeatsIsTheSameInEachOfItsRuns) {
    SetUpGame(NumberGame().Picks(3).From(0).To(9).WithDuplicates());
    SetUpPlay(1, {7, 17, 20});
    EXPECT_EQ(Csv(), "slip,line,method,main1,main2,main3\n1,A,by hand,7,7,0\n");
}

TEST(CsvOfPlays, ACellThatIsNoPickIsAQuestionMark) {
    SetUpGame(NumberGame().Picks(2).From(1).To(49));
    SetUpPlay(1, {49, 3});
    EXPECT_EQ(Csv(), "slip,line,method,main1,main2\n1,A,by hand,?,4\n");
}

TEST(CsvOfPlays, PicksBeyondThoseOfTheGameAreNotItsOwn) {
    SetUpGame(NumberGame().Picks(1).From(1).To(49));
    SetUpPlay(1, {-1, 3});
    EXPECT_EQ(Csv(), "slip,line,method,main\n");
}

}  // namespace
}  // namespace ballhaven::data
