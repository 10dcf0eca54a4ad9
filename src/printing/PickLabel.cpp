#include "printing/PickLabel.h"

#include "state/AppState.h"
#include "state/PickText.h"
#include "state/modUTILS.h"

namespace ballhaven {

// QUIRK REPORT-PICKS-1: a drawn pick is taken for the number of a cell, counted from 0, as a play's is. Where the
// lowest number is 1, and in every card game, the data report prints the pick above the drawn one, and nothing for the
// highest. Habits rest on it; the plays, which are cells, would print wrongly if the step were left out for both.
std::string pickLabel(int value) {
    std::string text = PickCellText(value);
    if (text.empty() || !IsCardGame(appState.gameType)) {
        return text;
    }
    return CardToText(modUTILS::ValueOf16(modUTILS::Trimmed(text)));
}

}  // namespace ballhaven
