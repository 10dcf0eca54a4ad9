#include "screen/CardPicker.h"

#include <string>

#include "history/HistoryEdits.h"
#include "screen/CardLayout.h"
#include "screen/MainForm.h"
#include "state/AppState.h"
#include "state/PickText.h"
#include "statistics/HotNumbers.h"

namespace ballhaven {

namespace {

MainForm& form = frmMainForm;
platform::Picture& logCards = frmMainForm.picCards[0];
platform::Picture& hiLiteCards = frmMainForm.picCards[1];

void GoToDate() {
    form.grdHist.GoToPane(datePane);
    form.grdHist.GoToColumn(0);
}

void TakeLogCard(std::string card) {
    SetLogCard(TextToCard(card));
    appState.historyDirty = true;
    ComputeHotTable();
    GoToDate();
    form.grdHist.ReadAgain();
    logCards.visible = false;
}

void ServeLogCardsClick(double x, double y) {
    const CardHit hit = LogCardAt(x, y);
    switch (hit.area) {
        case CardArea::CloseBox:
            logCards.visible = false;
            GoToDate();
            break;
        case CardArea::Cards:
            TakeLogCard(hit.card);
            break;
        case CardArea::Elsewhere:
            break;
    }
}

void TakeHiLiteCard(std::string card) {
    const auto box = static_cast<std::size_t>(form.hiLiteTarget);
    form.hiLiteCode.at(box) = std::to_string(TextToCard(card));
    form.txtHiLite.at(box).text = card;
    form.grdHist.TakeFocus();
    hiLiteCards.visible = false;
}

void ServeHiLiteCardsClick(double x, double y) {
    const CardHit hit = HiLiteCardAt(x, y);
    switch (hit.area) {
        case CardArea::CloseBox:
            form.txtHiLite.at(static_cast<std::size_t>(form.hiLiteTarget)).TakeFocus();
            hiLiteCards.visible = false;
            break;
        case CardArea::Cards:
            TakeHiLiteCard(hit.card);
            break;
        case CardArea::Elsewhere:
            break;
    }
}

}  // namespace

void WireCardPicker() {
    logCards.click = ServeLogCardsClick;
    hiLiteCards.click = ServeHiLiteCardsClick;
}

void ServeLogCards() {
    // QUIRK CARD-CLICK-1: a click on the cell that is current already moves nothing and so opens no cards, but stands
    // until the next move, which opens them even by key. It is meant: forgetting the click at its end would leave one
    // on the first pick after a start, where the cursor stands, without any answer.
    if (!form.cardClicked) {
        return;
    }
    if (form.grdHist.CurrentPane() == datePane) {
        logCards.visible = false;
    } else if (logCards.visible) {
        logCards.visible = false;
        GoToDate();
    } else {
        logCards.visible = true;
        hiLiteCards.visible = false;
    }
    form.cardClicked = false;
}

void OpenHiLiteCards(std::int16_t box) {
    form.hiLiteTarget = box;
    hiLiteCards.visible = true;
    logCards.visible = false;
}

}  // namespace ballhaven
