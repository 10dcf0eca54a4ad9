#pragma once

#include "state/HiLiteBoxes.h"

namespace ballhaven {

/// Sizes the play board by the kind of game: the width of its columns, how many of them are shown, and its height with
/// or without bonus rows. Sets `slipColumns`, the rows of the board, and the first heading of `grdHot`.
void SizePlayGrid();

/// Ticks the entry of the View menu that says how the log is ordered.
void ShowViewChecks();

/// Opens columns 1 to `totalPicks` of the log, closes and greys those behind, and heads the bonus picks with "+". In a
/// card game the pane of the picks is locked, 5 columns wide and without a mark on the current cell, else open and 6
/// columns wide.
void ArrangeLogColumns();

/// Shows the option buttons that choose main picks, bonus picks or all, with "All" chosen, in a game with bonus picks;
/// hides them in one without.
void ArrangeHotOptions();

/// Shows the hi-lite boxes and swatches of the game's pick columns, locks the boxes in a card game, and puts the button
/// that clears them beside the last box that is shown.
void ArrangeHiLiteBoxes();

/// Empties both texts of all ten hi-lite boxes.
void ClearHiLiteBoxes();

/// The texts of the boxes as the cells of the log and of the Hot table are compared with them. They live as long as
/// nothing changes a box.
[[nodiscard]] HiLites ShownHiLites();

/// The rows and columns of a grid that hold data, both from 0 on.
struct GridExtent {
    int rows;
    int columns;

    [[nodiscard]] bool Has(int row, int column) const {
        return 0 <= row && row < rows && 0 <= column && column < columns;
    }
};

/// How much of the view the log shows, and how much of the chosen table the Hot table.
[[nodiscard]] GridExtent ShownLog();
[[nodiscard]] GridExtent ShownHotCells();

/// Draws the cells of the log and of the Hot table again in the colours of the boxes, without reading their rows again.
void RepaintHiLites();

/// Hides both pictures of the cards, and forgets a click that would open one.
void HideCards();

/// Puts `cmdColorHist` on the row-selector margin of the log's current row, or hides it when there is none in view.
void PlaceHiLiteDrawingButton();

}  // namespace ballhaven
