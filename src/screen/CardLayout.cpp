#include "screen/CardLayout.h"

#include <array>
#include <cmath>

namespace ballhaven {

namespace {

/// A rectangle in twips, its edges included.
struct Area {
    double left;
    double right;
    double top;
    double bottom;

    [[nodiscard]] bool Has(double x, double y) const { return left <= x && x <= right && top <= y && y <= bottom; }
};

struct SuitBand {
    double end;  ///< the first place behind it
    char suit;
};

/// Hearts, clubs and diamonds; spades take the rest.
using SuitBands = std::array<SuitBand, 3>;

constexpr Area logCloseBox = {1050, 1215, 45, 210};
constexpr Area logCards = {165, 1095, 540, 2865};
constexpr SuitBands logSuits = {{{405, 'h'}, {645, 'c'}, {885, 'd'}}};
constexpr double logRankHeight = 180;

constexpr Area hiLiteCloseBox = {3450, 3600, 75, 225};
constexpr Area hiLiteCards = {420, 3510, 330, 1140};
constexpr SuitBands hiLiteSuits = {{{540, 'h'}, {735, 'c'}, {960, 'd'}}};
constexpr double hiLiteRankWidth = 240;

constexpr char lastSuit = 's';

char SuitAt(double place, const SuitBands& bands) {
    for (const SuitBand& band : bands) {
        if (place < band.end) {
            return band.suit;
        }
    }
    return lastSuit;
}

/// Rank from 1 at a place counted from the first rank's edge.
int RankAt(double place, double rankSize) {
    return static_cast<int>(std::round(place) / rankSize) + 1;
}

std::string RankText(int rank) {
    switch (rank) {
        case 1:
            return "A";
        case 11:
            return "J";
        case 12:
            return "Q";
        case 13:
            return "K";
        default:
            return std::to_string(rank);
    }
}

CardHit Card(int rank, char suit) {
    return {CardArea::Cards, RankText(rank) + suit};
}

}  // namespace

CardHit LogCardAt(double x, double y) {
    if (logCloseBox.Has(x, y)) {
        return {CardArea::CloseBox};
    }
    return logCards.Has(x, y) ? Card(RankAt(y - logCards.top, logRankHeight), SuitAt(x, logSuits)) : CardHit{};
}

CardHit HiLiteCardAt(double x, double y) {
    if (hiLiteCloseBox.Has(x, y)) {
        return {CardArea::CloseBox};
    }
    return hiLiteCards.Has(x, y) ? Card(RankAt(x - hiLiteCards.left, hiLiteRankWidth), SuitAt(y, hiLiteSuits))
                                 : CardHit{};
}

}  // namespace ballhaven
