#include "support/qt/RunningProgram.h"

#include "forms/CalendarForm.h"
#include "forms/HelpBoxForm.h"
#include "forms/MainForm.h"
#include "forms/NewGameForm.h"
#include "forms/PlaysForm.h"
#include "forms/PrintForm.h"
#include "forms/ShuffleForm.h"
#include "history/HistoryFile.h"
#include "platform/Application.h"
#include "platform/controls/Window.h"
#include "platform/files/FileSystem.h"
#include "platform/files/Paths.h"
#include "plays/PlayFile.h"
#include "start/Start.h"
#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/GameTable.h"
#include "support/FreshStart.h"
#include "support/qt/TestWindow.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <utility>

namespace ballhaven::support {

namespace {

constexpr int twipsPerPixel = 15;
constexpr int gameRecordBytes = 64;
constexpr int frameOfMark = 2;
constexpr int almost = 100;              // of a colour's 255 parts: thin letters are drawn paler
constexpr int modalWindowInterval = 50;  // milliseconds

void PressWindow(const QWidget& widget, QPoint place) {
    QWidget* const window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, place));
    Settle();
}

std::string GameRecordOf(const StoredGame& game) {
    std::string record = BuildDefaultGameRecord(game.slot, game.gameType);
    SetField(record, gameField::name, game.name);
    SetField(record, gameField::historySet, game.historySet);
    SetFieldValue(record, gameField::mainLow, game.low);
    SetFieldValue(record, gameField::mainHigh, game.high);
    SetField(record, gameField::order, game.inOrder ? "Y" : "N");
    SetFieldValue(record, gameField::mainPickCount, game.mainPicks);
    SetFieldValue(record, gameField::bonusPickCount, game.bonusPicks);
    SetFieldValue(record, gameField::bonusLow, game.bonusLow);
    SetFieldValue(record, gameField::bonusHigh, game.bonusHigh);
    return record;
}

}  // namespace

RunningProgram::RunningProgram() {
    appState.programDirectory = directory.Path();
    platform::services.endProcess = [this](int exitCode) { exitCodes.push_back(exitCode); };
    platform::services.executableDirectory = [this] { return directory.Path(); };
    platform::services.shortDatePattern = [](const std::string&) { return std::string("M/d/yyyy"); };
    platform::fileSystem.flush = [](int) { return 0; };  // waiting for the disk takes most of the time
    QObject::connect(&modalWindows, &QTimer::timeout, [this] { ServeModalWindow(); });
    modalWindows.start(modalWindowInterval);
}

RunningProgram::~RunningProgram() {
    EXPECT_TRUE(dialogActs.empty()) << "The game dialog did not open.";
    for (const ModalActs& expected : modalActs) {
        ADD_FAILURE() << expected.window->name << " did not open.";
    }
    CloseForms();
    Settle();
}

void RunningProgram::Store(const StoredGame& game) const {
    appState.currentGame = static_cast<std::int16_t>(game.slot);
    OpenGameTable();
    appState.gameRecord = GameRecordOf(game);
    SaveGameRecord(game.slot);
    LoadGameRecord(game.slot);
    LoadHistory();
    SetUpDraws(game.draws);
    SaveHistory(0);
    ResetState();
    appState.programDirectory = directory.Path();
}

void RunningProgram::StorePlay(int slot, const std::vector<int>& mainCells) const {
    appState.currentGame = static_cast<std::int16_t>(slot);
    LoadPlayFile();
    SetUpPlay(1, mainCells);
    SavePlayFile();
    ResetState();
    appState.programDirectory = directory.Path();
}

void RunningProgram::StoreShown(int slot, int sortOrder) const {
    OpenGameTable();
    SetFieldValue(appState.systemRecord, systemField::shownSlot, slot);
    SetFieldValue(appState.systemRecord, systemField::sortOrder, sortOrder);
    SaveSystemRecord();
    ResetState();
    appState.programDirectory = directory.Path();
}

void RunningProgram::MendFiles() const {
    OpenGameTable();
    std::string table = directory.Read("LOTTOSYS");
    table[63] = 'M';
    directory.Write("LOTTOSYS", table);
    ResetState();
    appState.programDirectory = directory.Path();
}

void RunningProgram::Start() {
    ResetState();
    StartProgram();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&MainWindow()));
    ASSERT_TRUE(QTest::qWaitFor([] { return !frmMainForm.windowStarting; }));
    Settle();
}

void RunningProgram::Close() {
    MainWindow().close();
    Settle();
}

void RunningProgram::ServeModalWindow() {
    QWidget* const window = QApplication::activeModalWidget();
    if (window == nullptr || acting) {
        return;
    }
    if (window == dynamic_cast<QWidget*>(frmNewGame.window.view)) {
        if (frmNewGame.filling) {
            return;  // not activated yet
        }
        if (!dialogActs.empty()) {
            ActInGameDialog(*window);
            return;
        }
    }
    for (auto expected = modalActs.begin(); expected != modalActs.end(); ++expected) {
        if (window == dynamic_cast<QWidget*>(expected->window->view)) {
            const std::function<void()> acts = std::move(expected->acts);
            modalActs.erase(expected);
            ActInModal(*window, acts);
            return;
        }
    }
    ADD_FAILURE() << "A modal window: " << window->objectName().toStdString();
    window->close();
}

void RunningProgram::ActInGameDialog(QWidget& dialog) {
    const std::function<void()> acts = std::move(dialogActs.front());
    dialogActs.pop_front();
    acting = true;
    Settle();
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor(
        [&dialog] { return dialog.isActiveWindow() && dialog.isAncestorOf(QApplication::focusWidget()); }));
    try {
        acts();
    } catch (const std::exception& missing) {
        ADD_FAILURE() << missing.what();  // it must not travel through the toolkit
    }
    acting = false;
}

void RunningProgram::ActInModal(QWidget& window, const std::function<void()>& acts) {
    acting = true;
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    try {
        acts();
    } catch (const std::exception& missing) {
        ADD_FAILURE() << missing.what();  // it must not travel through the toolkit
    }
    acting = false;
}

void RunningProgram::InModal(const platform::Window& window, std::function<void()> acts) {
    modalActs.push_back({&window, std::move(acts)});
}

void RunningProgram::InGameDialog(std::function<void()> acts) {
    dialogActs.push_back(std::move(acts));
}

QWidget& RunningProgram::GameDialog() const {
    auto* const window = dynamic_cast<QWidget*>(frmNewGame.window.view);
    if (window == nullptr) {
        throw std::runtime_error("the game dialog is not open");
    }
    return *window;
}

std::vector<QWidget*> RunningProgram::OpenWindows() const {
    std::vector<QWidget*> windows = {&MainWindow()};
    for (const platform::Window* window : {&frmNewGame.window, &ahcCalendar.window, &frmShuffle.window,
                                           &frmPlays.window, &frmPrint.window, &frmHelpBox.window}) {
        if (auto* const widget = dynamic_cast<QWidget*>(window->view)) {
            windows.push_back(widget);
        }
    }
    return windows;
}

QWidget& RunningProgram::MainWindow() const {
    auto* const window = dynamic_cast<QWidget*>(frmMainForm.window.view);
    if (window == nullptr) {
        throw std::runtime_error("the main window is not open");
    }
    return *window;
}

void RunningProgram::Click(const char* name) const {
    ClickAt(name, Find(name).rect().center());
}

void RunningProgram::ClickAt(const char* name, QPoint place) const {
    PressWindow(Usable(name), place);
}

// Without handling events meanwhile: those that come of the closing are for the loop in which the window was opened.
void RunningProgram::ClickToClose(const char* button) const {
    QTest::mouseClick(&Usable(button), Qt::LeftButton);
}

void RunningProgram::ChooseEntry(const char* list, int entry) const {
    auto& box = Usable<QComboBox>(list);
    QTest::mouseClick(&box, Qt::LeftButton);
    QAbstractItemView* const entries = box.view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(entries));
    const QModelIndex index = entries->model()->index(entry, 0);
    entries->scrollTo(index);
    const QPoint place = entries->visualRect(index).center();
    // A list takes no click until the mouse has left the place where it was opened.
    QTest::mouseMove(entries->viewport(), entries->viewport()->rect().topLeft());
    QTest::mouseMove(entries->viewport(), entries->viewport()->rect().bottomRight());
    QTest::mouseMove(entries->viewport(), place);
    QTest::mouseClick(entries->viewport(), Qt::LeftButton, {}, place);
    Settle();
}

std::vector<std::string> RunningProgram::Entries(const char* list) const {
    const auto& box = Find<QComboBox>(list);
    std::vector<std::string> entries;
    for (int entry = 0; entry < box.count(); ++entry) {
        entries.push_back(box.itemText(entry).toStdString());
    }
    return entries;
}

QAction& RunningProgram::MenuEntry(const char* entry) const {
    return Find<QAction>(entry);
}

void RunningProgram::ChooseFromMenu(const char* menu, const char* entry) const {
    auto& bar = Usable<QMenuBar>("menuBar");
    auto& list = Find<QMenu>(menu);
    QAction& action = MenuEntry(entry);
    ASSERT_TRUE(action.isVisible() && action.isEnabled()) << entry;
    PressWindow(bar, bar.actionGeometry(list.menuAction()).center());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    QTest::mouseClick(&list, Qt::LeftButton, {}, list.actionGeometry(&action).center());
    Settle();
}

void RunningProgram::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    Settle();
}

void RunningProgram::Type(const char* text) {
    for (const char* letter = text; *letter != '\0'; ++letter) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), *letter);
    }
    Settle();
}

QTableView& RunningProgram::PaneOf(const char* grid, int column, int& columnInPane) const {
    columnInPane = column;
    for (int pane = 0;; ++pane) {
        auto& view = Find<QTableView>((std::string(grid) + ".pane(" + std::to_string(pane) + ")").c_str());
        if (columnInPane < view.model()->columnCount()) {
            return view;
        }
        columnInPane -= view.model()->columnCount();
    }
}

std::string RunningProgram::CellText(const char* grid, int row, int column) const {
    int inPane = 0;
    const QAbstractItemModel* const model = PaneOf(grid, column, inPane).model();
    return model->index(row, inPane).data().toString().toStdString();
}

QRect RunningProgram::CellPlace(const char* grid, int row, int column) const {
    int inPane = 0;
    QTableView& pane = PaneOf(grid, column, inPane);
    const QModelIndex index = pane.model()->index(row, inPane);
    EXPECT_TRUE(index.isValid()) << grid << ", row " << row << ", column " << column;
    pane.scrollTo(index);
    const QRect place = pane.visualRect(index);
    return {pane.viewport()->mapTo(&Find(grid), place.topLeft()), place.size()};
}

void RunningProgram::ClickCell(const char* grid, int row, int column) const {
    ClickAt(grid, CellPlace(grid, row, column).center());
}

QImage RunningProgram::CellImage(const char* grid, int row, int column) const {
    const QRect place = CellPlace(grid, row, column);
    Settle();
    return Find(grid).grab(place).toImage();
}

QColor RunningProgram::CellColor(const char* grid, int row, int column) const {
    const QImage image = CellImage(grid, row, column);
    std::map<QRgb, int> pixels;
    // Within the frame that marks the current cell.
    for (int y = frameOfMark; y < image.height() - frameOfMark; ++y) {
        for (int x = frameOfMark; x < image.width() - frameOfMark; ++x) {
            ++pixels[image.pixel(x, y)];
        }
    }
    return std::ranges::max_element(pixels, {}, &std::pair<const QRgb, int>::second)->first;
}

bool RunningProgram::CellHasColor(const char* grid, int row, int column, const QColor& color) const {
    const QImage image = CellImage(grid, row, column);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (std::abs(pixel.red() - color.red()) < almost && std::abs(pixel.green() - color.green()) < almost &&
                std::abs(pixel.blue() - color.blue()) < almost) {
                return true;
            }
        }
    }
    return false;
}

std::vector<std::string> RunningProgram::Headings(const char* grid) const {
    std::vector<std::string> headings;
    for (const QTableView* pane : Find(grid).findChildren<QTableView*>()) {
        for (int column = 0; column < pane->model()->columnCount(); ++column) {
            headings.push_back(pane->model()->headerData(column, Qt::Horizontal).toString().toStdString());
        }
    }
    return headings;
}

int RunningProgram::RowsShown(const char* grid) const {
    int inPane = 0;
    return PaneOf(grid, 0, inPane).model()->rowCount();
}

std::optional<std::string> RunningProgram::EditorText(const char* grid) const {
    const auto* const editor = Find(grid).findChild<QLineEdit*>(QString::fromLatin1(grid) + QStringLiteral(".editor"));
    if (editor == nullptr || !editor->isVisible()) {
        return std::nullopt;
    }
    return editor->text().toStdString();
}

void RunningProgram::DragToHeight(int twips) const {
    const int menuHeight = Find("menuBar").height();
    const int client = (twips - platform::Window::frameHeight) / twipsPerPixel;
    MainWindow().resize(MainWindow().width(), client + menuHeight);
    Settle();
}

void RunningProgram::WatchSaves() {
    platform::fileSystem.rename = [this](const std::string& from, const std::string& to) {
        saved.push_back(to.substr(to.rfind(platform::directorySeparator) + 1));
        return platform::SystemFiles().rename(from, to);
    };
}

std::string RunningProgram::RecordColumns(int slot, int first, int width) const {
    const auto offset = static_cast<std::size_t>(slot * gameRecordBytes + first - 1);
    return directory.Read("LOTTOSYS").substr(offset, static_cast<std::size_t>(width));
}

}  // namespace ballhaven::support
