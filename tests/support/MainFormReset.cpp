#include "support/MainFormReset.h"

#include <memory>

#include "screen/MainForm.h"
#include "state/AppState.h"

namespace ballhaven::support {

void ResetMainForm() {
    appState = AppState{};
    appState.shortDateFormat = "m/d/y";
    std::destroy_at(&frmMainForm);
    std::construct_at(&frmMainForm);
    LayOutMainForm();
}

}  // namespace ballhaven::support
