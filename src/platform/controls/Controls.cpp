#include "platform/controls/Controls.h"

#include <algorithm>

namespace ballhaven::platform {

namespace {

void Raise(const Handler& handler) {
    if (handler) {
        handler();
    }
}

}  // namespace

void DropDownList::Fill(std::vector<std::string> texts) {
    entries = std::move(texts);
    selected = -1;
    ShowChange();
}

std::string DropDownList::Text() const {
    return selected < 0 ? std::string() : entries[static_cast<std::size_t>(selected)];
}

void DropDownList::Select(int index) {
    const int wanted = std::clamp(index, -1, static_cast<int>(entries.size()) - 1);
    if (wanted == selected) {
        return;
    }
    selected = wanted;
    ShowChange();
    Raise(change);
}

void DropDownList::SelectByUser(int index) {
    selected = std::clamp(index, -1, static_cast<int>(entries.size()) - 1);
    ShowChange();
    Raise(change);
}

void OptionButton::Choose() {
    if (!chosen) {
        ChooseByUser();
    }
}

void OptionButton::ChooseByUser() {
    for (OptionButton& other : group) {
        if (&other != this && other.chosen) {
            other.chosen = false;
            other.ShowChange();
        }
    }
    chosen = true;
    ShowChange();
    Raise(click);
}

}  // namespace ballhaven::platform
