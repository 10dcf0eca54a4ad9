#include "screen/ColorToolbar.h"

#include "forms/GamePresentation.h"
#include "forms/MainForm.h"
#include "platform/controls/Keys.h"
#include "screen/CardPicker.h"
#include "screen/DrawingHiLite.h"
#include "state/AppState.h"
#include "state/DateText.h"
#include "state/ViewRows.h"
#include "state/modUTILS.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ballhaven {

namespace {

void ApplyHiLites() {
    appState.colorMode = ColorMode::Boxes;
    RepaintHiLites();
}

void ClearHiLites() {
    appState.colorMode = ColorMode::None;
    ClearHiLiteBoxes();
    RepaintHiLites();
}

// QUIRK HILITE-CODE-1: the stored code takes the digits as they are typed, each behind the box's text, and knows
// nothing of corrections. Only the button that hi-lites a drawing compares it. Taking the code from the text would let
// that button clear what the user typed.
void NoteDigit(std::size_t box, char digit) {
    frmMainForm.hiLiteCode[box] = modUTILS::Trimmed(*frmMainForm.txtHiLite[box].text + digit);
}

void LeaveByEnter(std::size_t box) {
    const bool isLast =
        box + 1 >= static_cast<std::size_t>(appState.totalPicks) || box + 1 >= frmMainForm.txtHiLite.size();
    if (isLast) {
        frmMainForm.cmdColor[0].TakeFocus();
    } else {
        frmMainForm.txtHiLite[box + 1].TakeFocus();
    }
    frmMainForm.cmdColor[0].click();
}

bool TakeKey(std::size_t box, char key) {
    if (IsCardGame(appState.gameType)) {
        OpenHiLiteCards(static_cast<std::int16_t>(box));
        return true;
    }
    if (key == platform::enterKey) {
        LeaveByEnter(box);
        return true;
    }
    if (key >= '0' && key <= '9') {
        NoteDigit(box, key);
    }
    return false;
}

void ClickBox(std::size_t box) {
    if (IsCardGame(appState.gameType)) {
        OpenHiLiteCards(static_cast<std::int16_t>(box));
    }
}

/// The row of the view that the log's current row shows, -1 for none.
int CurrentDraw() {
    return RowOfDate(ReadSerial(frmMainForm.grdHist.Text(0)));
}

/// The toggle over the log's current row: hi-lites its picks, or ends that. Without a draw in the row `colorMode`
/// stays.
void HiLiteDrawing() {
    BoxContents boxes;
    if (const int row = CurrentDraw(); row >= 0) {
        const std::vector<std::int16_t> picks = PicksOfBoxes(PicksOfDraw(row), appState.totalPicks);
        const bool isHiLited = HoldCodesOf(picks, frmMainForm.hiLiteCode);
        appState.colorMode = isHiLited ? ColorMode::None : ColorMode::Drawing;
        if (!isHiLited) {
            boxes = BoxesWith(picks, appState.gameType);
        }
    }
    for (std::size_t box = 0; box < boxes.texts.size(); ++box) {
        frmMainForm.txtHiLite[box].text = boxes.texts[box];
    }
    frmMainForm.hiLiteCode = boxes.codes;
    RepaintHiLites();
}

}  // namespace

void WireColorToolbar() {
    frmMainForm.cmdColor[0].click = ApplyHiLites;
    frmMainForm.cmdColor[1].click = ClearHiLites;
    frmMainForm.cmdColorHist.click = HiLiteDrawing;
    for (std::size_t box = 0; box < frmMainForm.txtHiLite.size(); ++box) {
        frmMainForm.txtHiLite[box].keyPress = [box](char key) { return TakeKey(box, key); };
        frmMainForm.txtHiLite[box].click = [box] { ClickBox(box); };
    }
}

}  // namespace ballhaven
