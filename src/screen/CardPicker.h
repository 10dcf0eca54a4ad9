#pragma once

#include <cstdint>

namespace ballhaven {

/// Hangs the handlers onto the two pictures of the cards.
void WireCardPicker();

/// What a move of the log's current cell does to its cards after a click in a card game (`cardClicked`, which it
/// clears): a move to a pick opens them, or closes open ones and goes on to the date; a move to a date closes them.
void OpenOrCloseLogCards();

/// Shows the cards that fill a hi-lite box (0 to 9), which becomes `hiLiteTarget`, in place of those of the log.
void OpenHiLiteCards(std::int16_t box);

}  // namespace ballhaven
