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

void TextBox::Select(TextSelection part) {
    selection = part;
    selection = Selection();
    ShowChange();
}

TextSelection TextBox::Selection() const {
    const int size = static_cast<int>(text->size());
    const int start = std::clamp(selection.start, 0, size);
    return {start, std::clamp(selection.length, 0, size - start)};
}

void OptionButton::Choose() {
    if (!chosen) {
        ChooseByUser();
    }
}

void OptionButton::ChooseByUser() {
    for (OptionButton& button : group) {
        button.chosen = false;
    }
    chosen = true;
    for (OptionButton& button : group) {
        button.ShowChange();
    }
    Raise(click);
}

}  // namespace ballhaven::platform
