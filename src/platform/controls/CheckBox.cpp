#include "platform/controls/CheckBox.h"

namespace ballhaven::platform {

void CheckBox::Tick(bool wanted) {
    if (wanted == ticked) {
        return;
    }
    ticked = wanted;
    ShowChange();
    if (click) {
        click();
    }
}

}  // namespace ballhaven::platform
