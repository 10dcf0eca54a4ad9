#pragma once

#include "state/AppState.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace ballhaven {

/// A pick as a list holds it: a main pick is the number of its cell, a bonus pick that number less the cells before the
/// bonus picks.
struct BoardPick {
    PickColumn list;
    std::int16_t value;
};

/// The pick of a cell of the board of a kind of game.
[[nodiscard]] BoardPick PickOfCell(int gameType, int cell);

/// Whether a cell with this text is a pick: not an empty one, and not a letter of the word between the picks.
[[nodiscard]] bool IsPickText(std::string_view cellText);

/// What a cell with this text is called to somebody who does not see it, as "17, chosen"; empty where it is no pick.
[[nodiscard]] std::string PickDescription(const std::string& cellText, bool isChosen);

/// What became of a click on a pick.
enum class Toggled { TakenOff, PutOn, HeldByOther, ListIsFull };

/// Takes a pick out of a list that holds it, else puts it into the list's first empty slot. A pick that the other list
/// holds stays where it is in kinds of game that keep the lists apart.
///
/// QUIRK CARD-IN-BOTH-LISTS-1: of the kinds with cards the one without bonus picks keeps its lists apart, and the one
/// whose bonus comes from the same deck does not: there a card can be a main pick and a bonus pick of one play. Files
/// and habits rest on it.
[[nodiscard]] Toggled TogglePickIn(std::span<std::int16_t> own, std::span<const std::int16_t> other, std::int16_t value,
                                   int gameType);

/// Whether no pick can stand in both lists in a kind of game.
[[nodiscard]] bool KeepsListsApart(int gameType);

}  // namespace ballhaven
