#pragma once

#include "tools/NewFolder.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace ballhaven::tools {

/// A made-up game, and how much of it there is.
struct SampleGame {
    std::string_view name;
    int gameType;
    int mainPicks, mainLow, mainHigh;
    int bonusPicks, bonusLow, bonusHigh;  ///< 0 in a game without bonus
    bool duplicates;
    bool order;
    int historySet;   ///< 1000 stands for all
    int draws;        ///< 0 to 1000
    int daysBetween;  ///< two draws
    int newestDraw;   ///< serial of the last draw, below 10000: a file keeps no more digits
    int blankEvery;   ///< each so-many-th draw lacks its last pick; 0 for none
    int plays;        ///< 0 to 5000
    int chosenMain;   ///< picks chosen for a shuffle
    int chosenBonus;
};

/// The sample games, in the order of their slots from 1.
[[nodiscard]] std::span<const SampleGame> SampleGames();

/// Makes the sample games in a folder that has no data yet, which `BeginFolder` begins. Gives its reason where that
/// cannot be, and changes nothing then; the empty text when they are made. Sets `programDirectory`. Raises a file
/// failure as below.
[[nodiscard]] std::string FillSampleFolder(const std::filesystem::path& folder, FolderKind kind = FolderKind::Ordinary);

/// Makes all sample games in `programDirectory`, by the routines that the program itself saves with: `LOTTOSYS`, a
/// history and a play file for each game, and SHUFFLE.CDB. The draws are always the same ones. Slot 1 is the game
/// that was shown last, the newest draw stands first. Leaves the last game in `appState`. Raises a file failure where a
/// file cannot be written.
void MakeSampleGames();

}  // namespace ballhaven::tools
