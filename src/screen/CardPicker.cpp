#include "screen/CardPicker.h"

#include "forms/MainForm.h"
#include "history/LogEntry.h"
#include "screen/CardLayout.h"
#include "state/AppState.h"
#include "state/PickText.h"
#include "statistics/HotTables.h"

#include <string>

namespace ballhaven {

namespace {

void GoToDate() {
    frmMainForm.grdHist.GoToPane(datePane);
    frmMainForm.grdHist.GoToColumn(0);
}

void TakeLogCard(std::string card) {
    SetLogCard(TextToCard(card));
    appState.historyDirty = true;
    ComputeHotTable();
    GoToDate();
    frmMainForm.grdHist.ReadAgain();
    frmMainForm.picCards[cardPicture::log].visible = false;
}

void CloseLogCards() {
    frmMainForm.picCards[cardPicture::log].visible = false;
    GoToDate();
}

void ClickLogCards(double x, double y) {
    const CardHit hit = LogCardAt(x, y);
    switch (hit.area) {
        case CardArea::CloseBox:
            CloseLogCards();
            break;
        case CardArea::Cards:
            TakeLogCard(hit.card);
            break;
        case CardArea::Elsewhere:
            break;
    }
}

void TakeHiLiteCard(std::string card) {
    const auto box = static_cast<std::size_t>(frmMainForm.hiLiteTarget);
    frmMainForm.hiLiteCode.at(box) = std::to_string(TextToCard(card));
    frmMainForm.txtHiLite.at(box).text = card;
    frmMainForm.grdHist.TakeFocus();
    frmMainForm.picCards[cardPicture::hiLite].visible = false;
}

void CloseHiLiteCards() {
    frmMainForm.txtHiLite.at(static_cast<std::size_t>(frmMainForm.hiLiteTarget)).TakeFocus();
    frmMainForm.picCards[cardPicture::hiLite].visible = false;
}

void ClickHiLiteCards(double x, double y) {
    const CardHit hit = HiLiteCardAt(x, y);
    switch (hit.area) {
        case CardArea::CloseBox:
            CloseHiLiteCards();
            break;
        case CardArea::Cards:
            TakeHiLiteCard(hit.card);
            break;
        case CardArea::Elsewhere:
            break;
    }
}

/// Escape closes the cards that are open, as their close box does.
void CloseCards() {
    if (frmMainForm.picCards[cardPicture::log].visible) {
        CloseLogCards();
    } else if (frmMainForm.picCards[cardPicture::hiLite].visible) {
        CloseHiLiteCards();
    }
}

}  // namespace

void WireCardPicker() {
    frmMainForm.window.escape = CloseCards;
    frmMainForm.picCards[cardPicture::log].click = ClickLogCards;
    frmMainForm.picCards[cardPicture::hiLite].click = ClickHiLiteCards;
}

void OpenOrCloseLogCards() {
    // QUIRK CARD-CLICK-1: a click on the cell that is current already moves nothing and so opens no cards, but stands
    // until the next move, which opens them even by key. Forgetting the click at its end would leave one on the first
    // pick after a start, where the cursor stands, without any answer.
    if (!frmMainForm.cardClicked) {
        return;
    }
    if (frmMainForm.grdHist.CurrentPane() == datePane) {
        frmMainForm.picCards[cardPicture::log].visible = false;
    } else if (frmMainForm.picCards[cardPicture::log].visible) {
        frmMainForm.picCards[cardPicture::log].visible = false;
        GoToDate();
    } else {
        frmMainForm.picCards[cardPicture::log].visible = true;
        frmMainForm.picCards[cardPicture::hiLite].visible = false;
    }
    frmMainForm.cardClicked = false;
}

void OpenHiLiteCards(std::int16_t box) {
    frmMainForm.hiLiteTarget = box;
    frmMainForm.picCards[cardPicture::hiLite].visible = true;
    frmMainForm.picCards[cardPicture::log].visible = false;
}

}  // namespace ballhaven
