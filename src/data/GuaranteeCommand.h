#pragma once

#include "data/Console.h"

#include <string>

namespace ballhaven::data {

/// What a user wants to know of the plays of a game.
struct GuaranteeOptions {
    std::string game{};        ///< slot or name
    std::string numbers{};     ///< the chosen numbers as `NamedNumbers` takes them; empty for those of the plays
    bool chosenPicks = false;  ///< the chosen numbers are those chosen for the wheels
    int drawn = 0;             ///< how many of the chosen numbers are drawn; 0 for each number in its turn
    int hits = 0;              ///< how many of them a play has to hold; 0 for each number in its turn
    std::string proof{};       ///< the path of a file to write; empty for none. Needs `drawn` and `hits`.
};

/// Tells what the plays of a game guarantee, a line for each question, and writes the proof: the sets that no play
/// hits, or, where there are none, every set with a play that does. The folder is taken for as long as it is read.
/// Throws Refusal.
void ShowGuarantee(const std::string& folder, const GuaranteeOptions& options, const Console& console);

}  // namespace ballhaven::data
