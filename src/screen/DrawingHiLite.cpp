#include "screen/DrawingHiLite.h"

#include "forms/GamePresentation.h"
#include "forms/MainForm.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/PickText.h"
#include "state/ViewRows.h"

#include <algorithm>
#include <string>

namespace ballhaven {

namespace {

constexpr std::int16_t blankPick = -1;

int BoxesOfGame() {
    return std::min<int>(appState.totalPicks, hiLiteBoxes);
}

/// The pick of a draw that belongs to a box.
std::int16_t PickOfBox(int row, std::size_t box) {
    const auto picks = PicksOfDraw(row);
    return box < picks.size() ? picks[box] : blankPick;
}

/// The row of the view that the log's current row shows, -1 for none.
int CurrentDraw() {
    std::string date = frmMainForm.grdHist.Text(0);
    DateToSerial(date);
    return RowOfDate(appState.dateSerial);
}

// QUIRK HILITE-BLANK-1: a blank pick counts as -1, which no box ever holds, so a draw with a blank pick never counts as
// hi-lited: each click fills the boxes again. It is meant: an empty box would equal the blank, and the first click on a
// draw without any picks would switch off colours that stand for another draw.
bool IsHiLited(int row) {
    for (std::size_t box = 0; box < static_cast<std::size_t>(BoxesOfGame()); ++box) {
        if (frmMainForm.hiLiteCode[box] != std::to_string(PickOfBox(row, box))) {
            return false;
        }
    }
    return true;
}

void FillBoxes(int row) {
    for (std::size_t box = 0; box < static_cast<std::size_t>(BoxesOfGame()); ++box) {
        const std::int16_t pick = PickOfBox(row, box);
        if (pick != blankPick) {
            frmMainForm.txtHiLite[box].text = PickToText(pick);
            frmMainForm.hiLiteCode[box] = std::to_string(pick);
        }
    }
}

}  // namespace

void HiLiteDrawing() {
    const int row = CurrentDraw();
    if (row >= 0) {
        appState.colorMode = IsHiLited(row) ? 0 : 2;
    }
    ClearHiLiteBoxes();
    if (row >= 0 && appState.colorMode != 0) {
        FillBoxes(row);
    }
    RepaintHiLites();
}

}  // namespace ballhaven
