#include "support/MainFormReset.h"

#include "forms/MainForm.h"
#include "support/Games.h"

#include <memory>

namespace ballhaven::support {

void ResetMainForm() {
    ResetState();
    frmMainForm.window.unload = nullptr;
    frmMainForm.window.Unload();
    std::destroy_at(&frmMainForm);
    std::construct_at(&frmMainForm);
    LayOutMainForm();
}

}  // namespace ballhaven::support
