#include "forms/NewGameForm.h"

#include "platform/controls/LayoutTable.h"

namespace ballhaven {

NewGameForm frmNewGame;

namespace {

// A question stands left of its list, level with it. The first two rows take the whole width, the others two columns.
// The labels of column one are so wide that the two long questions break where their blanks stand.
const platform::PlacedControl places[] = {
    // clang-format off
    {frmNewGame.lblNewGame[0],  "lblNewGame",  0, nullptr, { 240,  315, 2400, 450}},
    {frmNewGame.txtNewGame[0],  "txtNewGame",  0, nullptr, {2760,  240, 7050, 315}},
    {frmNewGame.lblNewGame[1],  "lblNewGame",  1, nullptr, { 240,  765, 2400, 450}},
    {frmNewGame.cboCombo[0],    "cboCombo",    0, nullptr, {2760,  690, 7050, 315}},
    {frmNewGame.lblNewGame[4],  "lblNewGame",  4, nullptr, { 240, 1365, 4650, 450}},
    {frmNewGame.cboCombo[3],    "cboCombo",    3, nullptr, {5010, 1290,  780, 315}},
    {frmNewGame.lblNewGame[9],  "lblNewGame",  9, nullptr, { 240, 1965, 4650, 450}},
    {frmNewGame.cboCombo[4],    "cboCombo",    4, nullptr, {5010, 1890,  780, 315}},
    {frmNewGame.lblNewGame[2],  "lblNewGame",  2, nullptr, { 240, 2565, 4650, 450}},
    {frmNewGame.cboCombo[1],    "cboCombo",    1, nullptr, {5010, 2490,  780, 315}},
    {frmNewGame.lblNewGame[3],  "lblNewGame",  3, nullptr, {6210, 2565, 2700, 450}},
    {frmNewGame.cboCombo[2],    "cboCombo",    2, nullptr, {9030, 2490,  780, 315}},
    {frmNewGame.lblNewGame[10], "lblNewGame", 10, nullptr, { 240, 3165, 4650, 450}},
    {frmNewGame.cboCombo[5],    "cboCombo",    5, nullptr, {5010, 3090,  780, 315}},
    {frmNewGame.lblNewGame[7],  "lblNewGame",  7, nullptr, {6210, 3165, 2700, 450}},
    {frmNewGame.cboCombo[9],    "cboCombo",    9, nullptr, {9030, 3090,  780, 315}},
    {frmNewGame.lblNewGame[11], "lblNewGame", 11, nullptr, { 240, 3765, 4650, 450}},
    {frmNewGame.cboCombo[6],    "cboCombo",    6, nullptr, {5010, 3690,  780, 315}},
    {frmNewGame.lblNewGame[8],  "lblNewGame",  8, nullptr, {6210, 3765, 2700, 450}},
    {frmNewGame.cboCombo[10],   "cboCombo",   10, nullptr, {9030, 3690,  780, 315}},
    {frmNewGame.cmdNewGame[1],  "cmdNewGame",  1, nullptr, {7230, 4440, 1200, 375}},
    {frmNewGame.cmdNewGame[0],  "cmdNewGame",  0, nullptr, {8610, 4440, 1200, 375}},
    // clang-format on
};

const platform::ControlText texts[] = {
    {frmNewGame.lblNewGame[0].text, "Enter a name for this game:"},
    {frmNewGame.cmdNewGame[0].caption, "Cancel"},
    {frmNewGame.cmdNewGame[1].caption, "Save"},
};

/// What a list asks, which its label says.
struct Question {
    GameList list;
    int label;
    const char* text;
};

constexpr Question questions[] = {
    {gameTypeList, 1, "Select type of game:"},
    {orderList, 4,
     "Does it matter which order the numbers or cards are drawn?         "
     "(disregarding bonus...bonus  is always drawn last)"},
    {duplicatesList, 9,
     "Can a number be duplicated in the same drawing?             "
     "Example:  pair of 3's in Main set...or pair of 3's in Bonus set."},
    {mainCountList, 2, "How many Main numbers or cards are drawn each game?"},
    {bonusCountList, 3, "How many Bonus numbers or cards are drawn each game?"},
    {mainLowList, 10, "What is lowest Main number that can be drawn."},
    {bonusLowList, 7, "What is the lowest Bonus number that can be drawn."},
    {mainHighList, 11, "What is the highest Main number that can be drawn."},
    {bonusHighList, 8, "What is the highest Bonus number that can be drawn."},
};

constexpr int clientWidth = 10050;
constexpr int clientHeight = 5040;

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
    platform::PlaceControls(frmNewGame.window, places);
    platform::SetTexts(texts);
    frmNewGame.txtNewGame[0].maxLength = gameNameLength;
    frmNewGame.txtNewGame[0].text = "";
    frmNewGame.txtNewGame[0].label = &frmNewGame.lblNewGame[0];
    for (const Question& question : questions) {
        LabelOf(question.list).text = question.text;
        ListOf(question.list).label = &LabelOf(question.list);
        ListOf(question.list).Fill({});
    }
    frmNewGame.window.fixedSize = true;
    frmNewGame.window.Resize(clientWidth + platform::Window::frameWidth, clientHeight + platform::Window::frameHeight);
}

}  // namespace ballhaven
