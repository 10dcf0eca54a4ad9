#include "screen/GamePresentation.h"

#include <algorithm>

#include "plays/PickGrid.h"
#include "screen/MainForm.h"
#include "state/AppState.h"

namespace ballhaven {

namespace {

MainForm& form = frmMainForm;

constexpr int numberBoardColumns = 9;
constexpr int numberBoardColumnWidth = 220;
constexpr int cardBoardColumns = 6;
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

}  // namespace

void SizePlayGrid() {
    const bool cards = IsCardGame(appState.gameType);
    const int columnWidth = cards ? cardBoardColumnWidth : numberBoardColumnWidth;
    appState.slipColumns = cards ? cardBoardColumns : numberBoardColumns;
    for (int column = 0; column < numberBoardColumns; ++column) {
        form.grdPlay.Column(column).visible = column < appState.slipColumns;
        form.grdPlay.Column(column).width = columnWidth;
    }
    form.grdPlay.SetWidth(columnWidth * appState.slipColumns + boardEdges);
    form.grdPlay.SetHeight(HasBonus(appState.gameType) ? boardHeightWithBonus : boardHeight);
    form.grdPlay.SetRowCount(PickGridRows());
    form.grdHot.Column(0).heading = cards ? "Card" : "Number";
}

void ShowViewChecks() {
    form.mnuViewArray[0].checked = appState.historySortOrder != 0;
    form.mnuViewArray[1].checked = appState.historySortOrder == 0;
}

void ArrangeLogColumns() {
    const bool cards = IsCardGame(appState.gameType);
    for (int column = 1; column <= logPickColumns; ++column) {
        const bool isPick = column <= appState.totalPicks;
        const bool isBonus = isPick && HasBonus(appState.gameType) && column > appState.mainPickCount;
        platform::GridColumn& pick = form.grdHist.Column(column);
        pick.visible = true;
        pick.locked = !isPick;
        pick.focusable = isPick;
        pick.background = isPick ? platform::windowColor : platform::buttonFaceColor;
        pick.heading = isBonus ? "+" : "";
        pick.width = cards ? cardPickWidth : numberPickWidth;
    }
    platform::GridPane& picks = form.grdHist.Pane(pickPane);
    picks.locked = cards;
    picks.columnsWide = cards ? cardPicksWide : numberPicksWide;
    picks.marksCurrentCell = !cards;
}

void ArrangeHotOptions() {
    const bool shown = HasBonus(appState.gameType);
    for (platform::OptionButton& option : form.optHot) {
        option.visible = shown;
    }
    if (shown) {
        form.optHot[2].Choose();
    }
}

void ArrangeHiLiteBoxes() {
    const bool cards = IsCardGame(appState.gameType);
    const int picks = std::min<int>(appState.totalPicks, hiLiteBoxes);
    for (int i = 0; i < hiLiteBoxes; ++i) {
        platform::TextBox& box = form.txtHiLite[static_cast<std::size_t>(i)];
        platform::Label& swatch = form.lblColor[static_cast<std::size_t>(i)];
        box.locked = cards;
        box.maxLength = cards ? cardBoxLength : numberBoxLength;
        box.pointer = cards ? platform::PointerShape::IBeam : platform::PointerShape::Cross;
        // QUIRK HILITE-BOX-1: with nine picks nothing is hidden, so the tenth box stays on show after a game of ten. It
        // is meant: the box takes a text of the user's like the others; hiding it would leave its text at work unseen.
        if (i < picks || picks < hiLiteBoxes - 1) {
            box.visible = i < picks;
            swatch.visible = i < picks;
        }
    }
    const platform::Bounds& last = form.txtHiLite[static_cast<std::size_t>(picks - 1)].bounds;
    form.cmdColor[1].SetLeft(last.left + last.width + clearButtonGap);
}

void ClearHiLiteBoxes() {
    for (platform::TextBox& box : form.txtHiLite) {
        box.text = "";
    }
    form.hiLiteCode.fill("");
}

void RepaintHiLites() {
    form.grdHist.Repaint();
    form.grdHot.Repaint();
}

void HideCards() {
    for (platform::Picture& cards : form.picCards) {
        cards.visible = false;
    }
    form.cardClicked = false;
}

void PlaceHiLiteDrawingButton() {
    const platform::Grid& log = form.grdHist;
    const std::optional<int> rowTop = log.RowTop(log.CurrentRow());
    if (rowTop) {
        form.cmdColorHist.SetLeft(log.bounds->left + marginButtonOffset);
        form.cmdColorHist.SetTop(log.bounds->top + *rowTop + marginButtonOffset);
        form.cmdColorHist.BringToFront();
    }
    form.cmdColorHist.visible = rowTop.has_value();
}

}  // namespace ballhaven
