#pragma once

#include <string>

namespace ballhaven {

/// What lies at a place of a picture of the cards.
enum class CardArea { Elsewhere, CloseBox, Cards };

struct CardHit {
    CardArea area = CardArea::Elsewhere;
    std::string card = {};  ///< the text of the card, among the cards only

    bool operator==(const CardHit&) const = default;
};

/// What lies at a place of `picCards`(0), the upright picture of the Historical Log, and of `picCards`(1), the flat one
/// of the hi-lite boxes. Places are in twips from the picture's top left corner.
[[nodiscard]] CardHit LogCardAt(double x, double y);
[[nodiscard]] CardHit HiLiteCardAt(double x, double y);

}  // namespace ballhaven
