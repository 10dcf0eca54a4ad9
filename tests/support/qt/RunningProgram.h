#pragma once

#include "platform/Services.h"
#include "platform/controls/Window.h"
#include "support/Games.h"
#include "support/HistoryLog.h"
#include "support/MessageScript.h"
#include "support/RecordBytes.h"
#include "support/TemporaryDirectory.h"

#include <QAction>
#include <QApplication>
#include <QPoint>
#include <QTableView>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace ballhaven::support {

/// A game as a test has it in the files of its program directory.
struct StoredGame {
    int slot = 1;
    std::string name = "Six of 49";
    int gameType = 0;
    int mainPicks = 6;
    int bonusPicks = 0;
    int low = 1;
    int high = 49;
    int bonusLow = 1;
    int bonusHigh = 49;
    bool inOrder = false;
    std::string historySet = "100";
    std::vector<Draw> draws = {};
};

/// The program on a directory of its own, used as a person uses it: every widget is found by its name, must be in sight
/// and switched on, and is then clicked at its place in the window, or typed into. A modal window that the test does
/// not expect, or that it leaves open, fails the test and is closed, so that nothing hangs.
class RunningProgram : public ::testing::Test {
  protected:
    RunningProgram();
    ~RunningProgram() override;

    /// Before the start: puts a game with its draws into the files, cells into the first play of a game, and says which
    /// game was shown last and in which order (1 the oldest draw first).
    void Store(const StoredGame& game) const;
    void StorePlay(int slot, const std::vector<int>& mainCells) const;
    void StoreShown(int slot, int sortOrder) const;

    /// Before the start: marks the folder as mended. After it the mark stands in the files alone.
    void MendFiles() const;

    /// Starts the program, and waits until its main window is active.
    void Start();

    /// The close box of the main window.
    void Close();

    [[nodiscard]] QWidget& MainWindow() const;

    /// What the user does in the game dialog when it opens next, up to its closing. A dialog without such acts is one
    /// that the test does not expect; acts for which none has opened fail the test at its end.
    void InGameDialog(std::function<void()> acts);

    /// The game dialog, which must be open.
    [[nodiscard]] QWidget& GameDialog() const;

    /// What the user does in another modal window, such as the calendar, when it opens next, up to its closing; as for
    /// the game dialog.
    void InModal(const platform::Window& window, std::function<void()> acts);

    /// The widget of a name in an open window, which must be there; a hidden one too.
    template <typename Widget = QWidget>
    [[nodiscard]] Widget& Find(const char* name) const {
        for (const QWidget* window : OpenWindows()) {
            if (auto* const found = window->findChild<Widget*>(QString::fromLatin1(name))) {
                return *found;
            }
        }
        throw std::runtime_error(std::string("no such widget: ") + name);
    }

    /// The widget of a name, which must be in sight and switched on.
    template <typename Widget = QWidget>
    [[nodiscard]] Widget& Usable(const char* name) const {
        Widget& widget = Find<Widget>(name);
        EXPECT_TRUE(widget.isVisible()) << name;
        EXPECT_TRUE(widget.isEnabled()) << name;
        return widget;
    }

    /// Clicks a widget in its middle, or at a place of it.
    void Click(const char* name) const;
    void ClickAt(const char* name, QPoint place) const;

    /// Clicks the button that closes a modal window, as the last thing done in it.
    void ClickToClose(const char* button) const;

    /// Opens a drop-down list and clicks an entry.
    void ChooseEntry(const char* list, int entry) const;

    /// The texts of a drop-down list's entries.
    [[nodiscard]] std::vector<std::string> Entries(const char* list) const;

    /// Opens a menu and clicks an entry, or only finds the entry.
    void ChooseFromMenu(const char* menu, const char* entry) const;
    [[nodiscard]] QAction& MenuEntry(const char* entry) const;

    /// Keys for the widget that has the keyboard.
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void Type(const char* text);

    /// A cell of a grid: its text on screen, a click on it, and the colour that most of it has.
    [[nodiscard]] std::string CellText(const char* grid, int row, int column) const;
    void ClickCell(const char* grid, int row, int column) const;
    [[nodiscard]] QColor CellColor(const char* grid, int row, int column) const;

    /// Whether a cell shows almost a colour anywhere, as thin letters do.
    [[nodiscard]] bool CellHasColor(const char* grid, int row, int column, const QColor& color) const;

    /// The place of a cell within its grid, in pixels, scrolled into view.
    [[nodiscard]] QRect CellPlace(const char* grid, int row, int column) const;

    /// The headings of a grid's columns from left to right, and how many rows it shows.
    [[nodiscard]] std::vector<std::string> Headings(const char* grid) const;
    [[nodiscard]] int RowsShown(const char* grid) const;

    /// The text that is being typed into a grid's cell; none while there is no editor.
    [[nodiscard]] std::optional<std::string> EditorText(const char* grid) const;

    /// Drags the window's edge until its outer height, as the program reckons it, is so many twips.
    void DragToHeight(int twips) const;

    /// Columns of a game's record in the table of games, of the system's record with slot 0.
    [[nodiscard]] std::string RecordColumns(int slot, int first, int width) const;

    /// Notes from now on which files are saved, in their order.
    void WatchSaves();

    TemporaryDirectory directory;
    std::vector<int> exitCodes;
    std::vector<std::string> saved;

  private:
    struct ModalActs {
        const platform::Window* window;
        std::function<void()> acts;
    };

    [[nodiscard]] std::vector<QWidget*> OpenWindows() const;
    void ServeModalWindow();
    void ActInGameDialog(QWidget& dialog);
    void ActInModal(QWidget& window, const std::function<void()>& acts);
    [[nodiscard]] QTableView& PaneOf(const char* grid, int column, int& columnInPane) const;
    [[nodiscard]] QImage CellImage(const char* grid, int row, int column) const;

    QTimer modalWindows;
    std::deque<std::function<void()>> dialogActs;
    std::deque<ModalActs> modalActs;
    bool acting = false;

  protected:
    MessageScript boxes;
};

}  // namespace ballhaven::support
