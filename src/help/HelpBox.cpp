#include "help/HelpBox.h"

#include "forms/HelpBoxForm.h"
#include "forms/MainForm.h"
#include "forms/PlaysForm.h"
#include "help/HelpPrinting.h"
#include "help/HelpText.h"
#include "platform/Application.h"
#include "platform/Pointer.h"
#include "state/AppState.h"

#include <string>
#include <utility>

namespace ballhaven {

namespace {

void Load() {
    HelpText help = HelpOf(appState.helpTopic);
    frmHelpBox.lblLabel.text = std::move(help.heading);
    frmHelpBox.txtText.text = std::move(help.text);
}

void TakeFocus() {
    if (frmHelpBox.window.State() == platform::WindowState::Maximised) {
        frmHelpBox.window.SetState(platform::WindowState::Normal);
    }
    frmHelpBox.txtText.TakeFocus();
    platform::ProcessPendingEvents();  // the text box has no caret that would have to be hidden now
}

void Close() {
    frmHelpBox.window.Unload();
}

void PrintText() {
    const std::string heading = frmHelpBox.lblLabel.text;
    const std::string text = frmHelpBox.txtText.text;
    const platform::WaitPointer waiting;
    printHelpText(heading, text);
}

}  // namespace

void WireHelpBox() {
    frmHelpBox.window.layout = LayOutHelpBoxForm;
    frmHelpBox.window.load = Load;
    frmHelpBox.window.activate = TakeFocus;
    frmHelpBox.window.deactivate = Close;
    frmHelpBox.window.escape = Close;
    frmHelpBox.cmdHelp.click = PrintText;
    for (const std::int16_t topic : {instructionsTopic, aboutTopic}) {
        const auto entry = static_cast<std::size_t>(topic);
        frmMainForm.mnuHelpArray[entry].click = [topic] {
            appState.helpTopic = topic;
            frmHelpBox.window.ShowModal();
        };
        frmPlays.mnuHelpArray[entry].click = [topic] {
            appState.helpTopic = topic;
            frmHelpBox.window.ShowInFront();
        };
    }
}

}  // namespace ballhaven
