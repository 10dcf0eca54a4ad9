#include "forms/GamePresentation.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "state/BoardGeometry.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <string>

namespace ballhaven {

namespace {

constexpr int numberBoardColumnWidth = 220;
constexpr int cardBoardColumnWidth = 330;
constexpr int boardEdges = 60;
constexpr int boardHeight = 2235;
constexpr int boardHeightWithBonus = 4395;

constexpr int numberPickWidth = 600;
constexpr int numberPicksWide = 6;
constexpr int cardPickWidth = 720;
constexpr int cardPicksWide = 5;

constexpr int numberBoxLength = 2;
constexpr int cardBoxLength = 3;
constexpr int clearButtonGap = 50;
constexpr int marginButtonOffset = 30;

/// What assistive tools call a pick column of the log in a game of so many main picks.
std::string PickName(int column, int mainPicks) {
    return column <= mainPicks ? "Pick " + std::to_string(column) : "Bonus " + std::to_string(column - mainPicks);
}

/// The last control on show, null if none is.
template <typename Controls>
const platform::Control* LastShown(const Controls& controls) {
    const auto last = std::find_if(controls.rbegin(), controls.rend(), [](const auto& each) { return *each.visible; });
    return last == controls.rend() ? nullptr : &*last;
}

}  // namespace

void SizePlayGrid() {
    const bool cards = IsCardGame(appState.gameType);
    const int columnWidth = cards ? cardBoardColumnWidth : numberBoardColumnWidth;
    const BoardGeometry board = BoardOf(appState.gameType);
    const platform::GridPause pause(frmMainForm.grdPlay);  // so that it is laid out once
    appState.slipColumns = modUTILS::ToInt16(board.columns);
    for (int column = 0; column < frmMainForm.grdPlay.ColumnCount(); ++column) {
        frmMainForm.grdPlay.Column(column).visible = column < board.columns;
        frmMainForm.grdPlay.Column(column).width = columnWidth;
    }
    frmMainForm.grdPlay.SetWidth(columnWidth * board.columns + boardEdges);
    frmMainForm.grdPlay.SetHeight(HasBonus(appState.gameType) ? boardHeightWithBonus : boardHeight);
    frmMainForm.grdPlay.SetRowCount(board.rows);
    frmMainForm.grdHot.Column(0).heading = cards ? "Card" : "Number";
}

void ShowViewChecks() {
    frmMainForm.mnuViewArray[viewEntry::ascending].checked = appState.historySortOrder != 0;
    frmMainForm.mnuViewArray[viewEntry::descending].checked = appState.historySortOrder == 0;
}

void ArrangeLogColumns() {
    const platform::GridPause pause(frmMainForm.grdHist);  // so that it is laid out once
    const bool cards = IsCardGame(appState.gameType);
    for (int column = 1; column <= logPickColumns; ++column) {
        const bool isPick = column <= appState.totalPicks;
        const bool isBonus = isPick && HasBonus(appState.gameType) && column > appState.mainPickCount;
        platform::GridColumn& pick = frmMainForm.grdHist.Column(column);
        pick.visible = true;
        pick.locked = !isPick;
        pick.focusable = isPick;
        pick.background = isPick ? platform::windowColor : platform::buttonFaceColor;
        pick.heading = isBonus ? "+" : "";
        pick.accessibleHeading = isPick ? PickName(column, appState.mainPickCount) : "";
        pick.width = cards ? cardPickWidth : numberPickWidth;
    }
    platform::GridPane& picks = frmMainForm.grdHist.Pane(pickPane);
    picks.locked = cards;
    picks.columnsWide = cards ? cardPicksWide : numberPicksWide;
    picks.marksCurrentCell = !cards;
}

void ArrangeHotOptions() {
    const bool shown = HasBonus(appState.gameType);
    for (platform::OptionButton& option : frmMainForm.optHot) {
        option.visible = shown;
    }
    if (shown) {
        frmMainForm.optHot[2].Choose();
    }
}

void ArrangeHiLiteBoxes() {
    const bool cards = IsCardGame(appState.gameType);
    const int picks = std::min<int>(appState.totalPicks, hiLiteBoxes);
    for (int i = 0; i < hiLiteBoxes; ++i) {
        platform::TextBox& box = frmMainForm.txtHiLite[static_cast<std::size_t>(i)];
        platform::Label& swatch = frmMainForm.lblColor[static_cast<std::size_t>(i)];
        box.locked = cards;
        box.maxLength = cards ? cardBoxLength : numberBoxLength;
        box.pointer = cards ? platform::PointerShape::IBeam : platform::PointerShape::Cross;
        // QUIRK HILITE-BOX-1: with nine picks nothing is hidden, so the tenth box stays on show after a game of ten, or
        // where a game of nine is the first one shown. Habits rest on it.
        if (i < picks || picks < hiLiteBoxes - 1) {
            box.visible = i < picks;
            swatch.visible = i < picks;
        }
    }
    if (const platform::Control* last = LastShown(frmMainForm.txtHiLite)) {
        frmMainForm.cmdColor[1].SetLeft(last->bounds->left + last->bounds->width + clearButtonGap);
    }
}

void ClearHiLiteBoxes() {
    for (platform::TextBox& box : frmMainForm.txtHiLite) {
        box.text = "";
    }
    frmMainForm.hiLiteCode.fill("");
}

HiLites ShownHiLites() {
    HiLites hiLites;
    hiLites.on = appState.colorMode != ColorMode::None;
    std::ranges::transform(frmMainForm.txtHiLite, hiLites.texts.begin(),
                           [](const platform::TextBox& box) -> const std::string& { return *box.text; });
    return hiLites;
}

GridExtent ShownLog() {
    return {frmMainForm.logRowCount, frmMainForm.logLastColumn + 1};
}

GridExtent ShownHotCells() {
    return {frmMainForm.hotRowCount, frmMainForm.hotColumnCount};
}

void RepaintHiLites() {
    frmMainForm.grdHist.Repaint();
    frmMainForm.grdHot.Repaint();
}

void HideCards() {
    for (platform::Picture& cards : frmMainForm.picCards) {
        cards.visible = false;
    }
    frmMainForm.cardClicked = false;
}

void PlaceHiLiteDrawingButton() {
    const platform::Grid& log = frmMainForm.grdHist;
    const std::optional<int> rowTop = log.RowTop(log.CurrentRow());
    if (rowTop) {
        frmMainForm.cmdColorHist.SetLeft(log.bounds->left + marginButtonOffset);
        frmMainForm.cmdColorHist.SetTop(log.bounds->top + *rowTop + marginButtonOffset);
        frmMainForm.cmdColorHist.BringToFront();
    }
    frmMainForm.cmdColorHist.visible = rowTop.has_value();
}

}  // namespace ballhaven
