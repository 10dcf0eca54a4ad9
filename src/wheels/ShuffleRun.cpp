#include "wheels/ShuffleRun.h"

#include "forms/PlaysForm.h"
#include "forms/ShuffleForm.h"
#include "platform/Application.h"
#include "platform/Boxes.h"
#include "platform/Services.h"
#include "plays/PlayFile.h"
#include "plays/PlayScreen.h"
#include "plays/PlaySlips.h"
#include "state/AppState.h"
#include "state/GameRules.h"
#include "state/MendedFolder.h"
#include "wheels/FullWheel.h"
#include "wheels/PartialWheel.h"
#include "wheels/ShufflePass.h"
#include "wheels/TotalPlays.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <vector>

namespace ballhaven {

namespace {

/// Marks that a run is at work for as long as it lives.
class RunMark {
  public:
    RunMark() { frmShuffle.running = true; }
    ~RunMark() { frmShuffle.running = false; }
    RunMark(const RunMark&) = delete;
    RunMark& operator=(const RunMark&) = delete;
};

/// Where a run has begun: the game, its rules, and the window in which it was asked for.
class WorkingPlace {
  public:
    [[nodiscard]] bool IsStillThere() const {
        return appState.currentGame == game && CurrentRules() == rules && appState.shuffleWindowOpen == isWindowOpen;
    }

  private:
    std::int16_t game = appState.currentGame;
    GameRules rules = CurrentRules();
    bool isWindowOpen = appState.shuffleWindowOpen;
};

bool IsPick(std::int16_t slot) {
    return slot >= 0;
}

/// What a pass deals: of the chosen picks those in as many slots of the list as the game has different ones, in their
/// order without the holes.
PickPass PassOf(const ChosenPicks& chosen, PickColumn list, int low, int high, int pickCount) {
    const int slotsRead = std::clamp(low == 0 ? high + 1 : high, 0, chosenPicks);
    const auto slots = chosen.Slots(list).first(static_cast<std::size_t>(slotsRead));
    PickPass pass{list, {}, std::clamp(pickCount, 0, picksPerPlay)};
    std::ranges::copy_if(slots, std::back_inserter(pass.pool), IsPick);
    return pass;
}

/// The passes of a run: the main picks, and the bonus picks where the game draws any.
std::vector<PickPass> PassesOf(const GameRules& rules, const ChosenPicks& chosen) {
    std::vector<PickPass> passes = {PassOf(chosen, mainPicks, rules.mainLow, rules.mainHigh, rules.mainPickCount)};
    if (HasBonus(rules.gameType) && rules.bonusPickCount > 0) {
        passes.push_back(PassOf(chosen, bonusPicks, rules.bonusLow, rules.bonusHigh, rules.bonusPickCount));
    }
    return passes;
}

/// Tells the user where too few picks are chosen for a pass; whether they are. A damaged count of picks that is higher
/// than a play has slots counts as it stands.
bool TellTooFewPicks(const GameRules& rules, const PickPass& pass) {
    const bool isMain = pass.pickColumn == mainPicks;
    const int pickCount = isMain ? rules.mainPickCount : rules.bonusPickCount;
    if (std::ssize(pass.pool) > pickCount) {
        return false;
    }
    const std::string kind = isMain ? "main" : "bonus";
    platform::Tell("You need to select at least " + std::to_string(pickCount + 1) + " " + kind +
                   " picks to shuffle or wheel.");
    return true;
}

/// The highest play with a main pick in one of the game's slots, 0 if there is none.
int LastUsedPlay(const PlayPicks& table, int slotCount) {
    int play = playCount;
    while (play > 0 &&
           std::ranges::none_of(table.Slots(mainPicks, play).first(static_cast<std::size_t>(slotCount)), IsPick)) {
        --play;
    }
    return play;
}

/// Asks the user whether to empty the plays, and does, letting waiting events in after it; whether they were emptied.
bool AskAndClearPlays() {
    if (!platform::AskBeforeLoss("Would you like to clear all of the Play Slips first?", platform::BoxIcon::Question)) {
        return false;
    }
    ClearAllPlays();
    platform::ProcessPendingEvents();
    return true;
}

/// The last play of a run that follows one in use; ties go to the even number.
int LastPlayOf(WheelMode mode, double total, int lastUsedPlay) {
    return mode == WheelMode::FullWheel ? playCount : static_cast<int>(std::nearbyint(total + lastUsedPlay));
}

void TellNoRoom(WheelMode mode) {
    const std::string what = mode == WheelMode::Shuffle ? "shuffle" : "wheel";
    platform::Tell("You do not have enough empty plays to do this " + what + "\nPlease erase some plays and try again",
                   platform::BoxIcon::Information);
}

/// Clears the plays in use if the user wants it, and gives those of the run, behind the ones that stay. None where they
/// are not to be made: there is no room, of which the user is told, or the events of the clearing led elsewhere.
std::optional<PlayStretch> MakeRoom(WheelMode mode, double total, int lastUsedPlay) {
    const WorkingPlace place;
    const int used = lastUsedPlay != 0 && AskAndClearPlays() ? 0 : lastUsedPlay;
    if (!place.IsStillThere()) {
        return std::nullopt;
    }
    const int last = LastPlayOf(mode, total, used);
    if (last > playCount || used + 1 > last) {
        TellNoRoom(mode);
        return std::nullopt;
    }
    return PlayStretch{used + 1, last, last};
}

/// The play at which a Partial Wheel begins.
int FirstPlayOfPartialWheel(const PlayStretch& plays) {
    // QUIRK PARTIAL-WHEEL-PLACE-1: the plays are counted from 1, not from the first play of the run. After a No to the
    // question about clearing the slips the first plays are overwritten, while the result names the plays behind those
    // in use. Files and habits rest on it. In a mended folder no play is overwritten.
    return FolderIsMended() ? plays.firstPlay : 1;
}

void RunPass(WheelMode mode, const PickPass& pass, PlayStretch& plays, PlayPicks& table) {
    switch (mode) {
        case WheelMode::Shuffle:
            ShufflePass(pass, plays, table, platform::services.drawByChance);
            break;
        case WheelMode::PartialWheel:
            PartialWheelPass(pass, plays, table, FirstPlayOfPartialWheel(plays));
            break;
        case WheelMode::FullWheel:
            FullWheelPass(pass, plays, table);
            break;
    }
}

RunResult ResultOf(const PlayStretch& plays) {
    if (plays.lastPlay < 1) {
        return {.end = RunResult::End::Done};
    }
    return {RunResult::End::Done, NameOfPlay(plays.firstPlay), NameOfPlay(plays.lastPlay),
            std::to_string(plays.lastPlay + 1 - plays.firstPlay)};
}

/// The slip that the Play Slips window shows after a run: the one that it shows if there are new plays on it, else
/// their first one.
std::int16_t SlipToShow(std::int16_t shown, const PlayStretch& plays) {
    // QUIRK SLIP-0-1: after a Full Wheel that was declined on empty slips the window goes to slip 0, on which there are
    // no plays: its boards are empty and take no picks. Habits rest on it.
    const bool madeAny = plays.lastPlay >= 1;
    const std::int16_t first = madeAny ? SlipOfPlay(plays.firstPlay) : std::int16_t{0};
    const std::int16_t last = madeAny ? SlipOfPlay(plays.lastPlay) : std::int16_t{0};
    return shown < first || shown > last ? first : shown;
}

}  // namespace

RunResult RunShuffleOrWheel(WheelMode mode, std::string_view totalPlays) {
    if (frmShuffle.running) {
        return {};
    }
    const RunMark mark;
    const GameRules rules = CurrentRules();
    const std::vector<PickPass> passes = PassesOf(rules, appState.ShuffleTable);
    if (std::ranges::any_of(passes, [&rules](const PickPass& pass) { return TellTooFewPicks(rules, pass); })) {
        return {};
    }
    const std::optional<double> total = mode == WheelMode::FullWheel ? 0 : TotalPlaysOf(totalPlays);
    if (!total) {
        platform::Tell("Total Plays:\n\nEnter a number from 1 To 5000");
        return {.end = RunResult::End::BadTotal};
    }
    std::optional<PlayStretch> plays =
        MakeRoom(mode, *total, LastUsedPlay(appState.PlayTable, passes.front().slotCount));
    if (!plays) {
        return {};
    }
    for (const PickPass& pass : passes) {
        RunPass(mode, pass, *plays, appState.PlayTable);
    }
    if (appState.playsWindowOpen) {
        appState.currentSlip = SlipToShow(appState.currentSlip, *plays);
        ShowSlipNumber(appState.currentSlip);
    }
    RefreshPlayGrids();
    appState.playsDirty = true;
    return ResultOf(*plays);
}

}  // namespace ballhaven
