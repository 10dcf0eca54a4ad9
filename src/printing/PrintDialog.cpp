#include "printing/PrintDialog.h"

#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "forms/PrintForm.h"
#include "platform/Pointer.h"
#include "platform/printing/PrinterDevice.h"
#include "plays/PlayScreen.h"
#include "printing/DataReport.h"
#include "printing/PlaySlipReport.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"

#include <algorithm>
#include <string>

namespace ballhaven {

namespace {

// In twips
constexpr int openingTop = 1190;
constexpr int openingLeft = 150;
constexpr int openingHeight = 3425;
constexpr int openingWidth = 4125;
constexpr int largestHeight = 3430;
constexpr int largestWidth = 4125;

/// Where `systemRecord` keeps the box of a section.
RecordField SelectionOf(int section) {
    return {systemField::printSelections.first + section, 1};
}

platform::CheckBox& BoxOf(int index) {
    return frmPrint.chkPrint[static_cast<std::size_t>(index)];
}

void Load() {
    frmPrint.window.MoveTo(openingLeft, openingTop);
    frmPrint.window.Resize(openingWidth, openingHeight);
    frmPrint.frmPrintLoading = true;
    frmPrint.window.title = "Print Data for Last " + std::to_string(appState.historyViewLast + 1) + " Games";
    for (int section = 0; section < reportSections; ++section) {
        BoxOf(section).Tick(FieldValue(appState.systemRecord, SelectionOf(section)) > 0);
    }
    BoxOf(playsBox).Tick(false);
}

void LimitSize() {
    platform::Window& window = frmPrint.window;
    const int width = std::min(window.Width(), largestWidth);
    const int height = std::min(window.Height(), largestHeight);
    if (window.State() == platform::WindowState::Normal && (width < window.Width() || height < window.Height())) {
        window.Resize(width, height);
    }
}

void KeepSelection(int section) {
    if (!frmPrint.frmPrintLoading) {
        SetField(appState.systemRecord, SelectionOf(section), BoxOf(section).IsTicked() ? "1" : "0");
        SaveSystemRecord();
    }
}

/// A printer that fails further down than in a page head ends this report without a word, as it ends the other one. It
/// has sorted the plays then too, so the boards show them as they are now.
void PrintPlays() {
    try {
        playSlipReport();
    } catch (const platform::PrinterFailure&) {
        RefreshPlayGrids();
        return;
    }
    RefreshPlayGrids();
}

void Print() {
    frmPrint.window.enabled = false;
    const platform::WaitPointer waiting;
    dataReport();
    if (BoxOf(playsBox).IsTicked()) {
        PrintPlays();
    }
    frmPrint.window.enabled = true;
    frmPrint.window.Unload();
}

void Open() {
    frmPrint.window.ShowModal();
}

}  // namespace

void WirePrintDialog() {
    frmPrint.window.layout = LayOutPrintForm;
    frmPrint.window.load = Load;
    frmPrint.window.activate = [] { frmPrint.frmPrintLoading = false; };
    frmPrint.window.resize = LimitSize;
    for (int section = 0; section < reportSections; ++section) {
        BoxOf(section).click = [section] { KeepSelection(section); };
    }
    frmPrint.cmdPrint[0].click = [] { frmPrint.window.Unload(); };
    frmPrint.cmdPrint[1].click = Print;
    frmPrint.window.escape = frmPrint.cmdPrint[0].click;
    frmMainForm.mnuFileArray[fileEntry::printData].click = Open;
    frmPlays.mnuPrint.click = Open;
    frmPlays.cmdToolbar[1].click = Open;
}

}  // namespace ballhaven
