#include "forms/NewGameForm.h"

#include <string>

namespace ballhaven {

NewGameForm frmNewGame;

namespace {

using platform::Bounds;

// A question stands left of its list. The first two rows take the whole width, the others two columns. The labels of
// column one are so wide that the two long questions break where their blanks stand.
constexpr int labelHeight = 450;
constexpr int labelDrop = 75;  // a label's text stands level with the text in its list
constexpr int controlHeight = 315;
constexpr int firstTop = 240;
constexpr int secondTop = 690;
constexpr int rowTop = 1290;
constexpr int rowStep = 600;
constexpr int buttonTop = 4440;

struct Column {
    int labelLeft;
    int labelWidth;
    int listLeft;
    int listWidth;
};

constexpr Column wholeWidth{240, 2400, 2760, 7050};
constexpr Column columnOne{240, 4650, 5010, 780};
constexpr Column columnTwo{6210, 2700, 9030, 780};

struct Question {
    GameList list;
    int label;
    const Column& column;
    int top;
    const char* text;
};

const Question questions[] = {
    {gameTypeList, 1, wholeWidth, secondTop, "Select type of game:"},
    {orderList, 4, columnOne, rowTop,
     "Does it matter which order the numbers or cards are drawn?         "
     "(disregarding bonus...bonus  is always drawn last)"},
    {duplicatesList, 9, columnOne, rowTop + rowStep,
     "Can a number be duplicated in the same drawing?             "
     "Example:  pair of 3's in Main set...or pair of 3's in Bonus set."},
    {mainCountList, 2, columnOne, rowTop + 2 * rowStep, "How many Main numbers or cards are drawn each game?"},
    {bonusCountList, 3, columnTwo, rowTop + 2 * rowStep, "How many Bonus numbers or cards are drawn each game?"},
    {mainLowList, 10, columnOne, rowTop + 3 * rowStep, "What is lowest Main number that can be drawn."},
    {bonusLowList, 7, columnTwo, rowTop + 3 * rowStep, "What is the lowest Bonus number that can be drawn."},
    {mainHighList, 11, columnOne, rowTop + 4 * rowStep, "What is the highest Main number that can be drawn."},
    {bonusHighList, 8, columnTwo, rowTop + 4 * rowStep, "What is the highest Bonus number that can be drawn."},
};

constexpr int clientWidth = 10050;
constexpr int clientHeight = 5040;

std::string Indexed(const char* name, int index) {
    return std::string(name) + "(" + std::to_string(index) + ")";
}

void Put(platform::Control& control, const std::string& name, const Bounds& bounds) {
    control.name = name;
    control.bounds = bounds;
    frmNewGame.window.controls.push_back(&control);
}

void PutLabel(int index, const Column& column, int top, const char* text) {
    platform::Label& label = frmNewGame.lblNewGame[static_cast<std::size_t>(index)];
    Put(label, Indexed("lblNewGame", index), {column.labelLeft, top + labelDrop, column.labelWidth, labelHeight});
    label.text = text;
}

void PutNameBox() {
    PutLabel(0, wholeWidth, firstTop, "Enter a name for this game:");
    platform::TextBox& box = frmNewGame.txtNewGame[0];
    Put(box, "txtNewGame(0)", {wholeWidth.listLeft, firstTop, wholeWidth.listWidth, controlHeight});
    box.maxLength = gameNameLength;
    box.text = "";
    box.label = &frmNewGame.lblNewGame[0];
}

void PutButton(int index, int left, const char* caption) {
    platform::Button& button = frmNewGame.cmdNewGame[static_cast<std::size_t>(index)];
    Put(button, Indexed("cmdNewGame", index), {left, buttonTop, 1200, 375});
    button.caption = caption;
}

}  // namespace

platform::DropDownList& ListOf(GameList list) {
    return frmNewGame.cboCombo[static_cast<std::size_t>(list)];
}

platform::Label& LabelOf(GameList list) {
    for (const Question& question : questions) {
        if (question.list == list) {
            return frmNewGame.lblNewGame[static_cast<std::size_t>(question.label)];
        }
    }
    return frmNewGame.lblNewGame[0];
}

void LayOutNewGameForm() {
    frmNewGame.window.name = "frmNewGame";
    PutNameBox();
    for (const Question& question : questions) {
        PutLabel(question.label, question.column, question.top, question.text);
        platform::DropDownList& list = ListOf(question.list);
        Put(list, Indexed("cboCombo", question.list),
            {question.column.listLeft, question.top, question.column.listWidth, controlHeight});
        list.label = &LabelOf(question.list);
        list.Fill({});
    }
    PutButton(1, 7230, "Save");
    PutButton(0, 8610, "Cancel");
    frmNewGame.window.Resize(clientWidth + platform::Window::frameWidth, clientHeight + platform::Window::frameHeight);
}

}  // namespace ballhaven
