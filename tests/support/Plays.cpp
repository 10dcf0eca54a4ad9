#include "support/Plays.h"

#include <algorithm>

namespace ballhaven::support {

PlayPicks EmptyPlays() {
    PlayPicks table;
    for (const PickColumn list : {mainPicks, bonusPicks}) {
        for (int play = 0; play <= playCount; ++play) {
            std::ranges::fill(table.Slots(list, play), std::int16_t{-1});
        }
    }
    return table;
}

void PutPicks(PlayPicks& table, PickColumn list, int play, const std::vector<int>& picks) {
    for (int slot = 1; const int pick : picks) {
        table(list, play, slot++) = static_cast<std::int16_t>(pick);
    }
}

std::string PicksText(const PlayPicks& table, PickColumn list, int first, int last) {
    std::string text;
    for (int play = first; play <= last; ++play) {
        std::string picks;
        std::string holes;
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            const int pick = table(list, play, slot);
            if (pick < 0) {
                holes += slot == 1 ? "-" : " -";
            } else {
                picks += holes + (slot == 1 ? "" : " ") + std::to_string(pick);
                holes.clear();
            }
        }
        text += (play == first ? "" : "|") + picks;
    }
    return text;
}

int PlaysInUse(const PlayPicks& table, PickColumn list) {
    int inUse = 0;
    for (int play = 1; play <= playCount; ++play) {
        inUse += PicksText(table, list, play, play).empty() ? 0 : 1;
    }
    return inUse;
}

}  // namespace ballhaven::support
