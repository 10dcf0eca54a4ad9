#include "support/qt/GridOnScreen.h"

#include "platform/Boxes.h"
#include "platform/Services.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace ballhaven::support {

namespace {

std::string Numbers(int one, int other) {
    return std::to_string(one) + "," + std::to_string(other);
}

const char* KeyName(platform::GridKey key) {
    switch (key) {
        case platform::GridKey::Insert:
            return "Insert";
        case platform::GridKey::Left:
            return "Left";
        case platform::GridKey::Right:
            return "Right";
        case platform::GridKey::Tab:
            return "Tab";
        case platform::GridKey::Other:
            return "Other";
    }
    return "";
}

}  // namespace

GridOnScreen::GridOnScreen() : before(new QLineEdit(&window)), after(nullptr) {
    before->setGeometry(10, 2, 100, 16);
    grid.name = "grid";
    grid.cellText = [this](const platform::GridCell& cell) -> std::optional<std::string> {
        ++cellsRead;
        if (cell.row >= static_cast<int>(cells.size())) {
            return std::nullopt;
        }
        return cells[static_cast<std::size_t>(cell.row)].at(static_cast<std::size_t>(cell.column));
    };
    ListenToMouse();
    ListenToEdits();
    grid.currentCellChanged = [this] {
        notices.push_back("change " + Numbers(grid.CurrentRow(), grid.CurrentColumn()));
    };
    grid.keyDown = [this](platform::GridKey key) {
        notices.push_back(std::string("key ") + KeyName(key));
        return false;
    };
    platform::services.showMessageBox = [this](const platform::MessageBoxRequest&) {
        ++boxes;
        // A real box takes the keyboard while it is open, and gives it back to the window.
        QWidget box;
        box.show();
        QApplication::setActiveWindow(&box);
        QApplication::processEvents();
        box.hide();
        QApplication::setActiveWindow(&window);
        QApplication::processEvents();
        return platform::BoxAnswer::Ok;
    };
}

GridOnScreen::~GridOnScreen() {
    grid.view = nullptr;
}

void GridOnScreen::ListenToMouse() {
    grid.mousePress = [this](int x, int y) { notices.push_back("press " + Numbers(x, y)); };
    grid.click = [this] { notices.emplace_back("click"); };
    grid.settled = [this] { notices.emplace_back("settled"); };
    grid.dropDown = [this](int column) { notices.push_back("drop " + std::to_string(column)); };
}

void GridOnScreen::ListenToEdits() {
    grid.acceptEdit = [this](int column, const std::string& text) {
        notices.push_back("check " + std::to_string(column) + " " + text);
        if (std::atoi(text.c_str()) > highest) {
            platform::Tell("Too high");
            return false;
        }
        return true;
    };
    grid.edited = [this](int column, const std::string& text) {
        notices.push_back("edited " + std::to_string(column));
        cells[static_cast<std::size_t>(grid.CurrentRow())][static_cast<std::size_t>(column)] = text;
    };
}

void GridOnScreen::Show() {
    widget = new platform::GridWidget(grid, &window);
    after = new QLineEdit(&window);
    const QRect place = widget->geometry();
    after->setGeometry(10, place.bottom() + 4, 100, 16);
    window.resize(place.right() + 10, place.bottom() + 24);
    window.show();
    QApplication::setActiveWindow(&window);
    before->setFocus();
    [[maybe_unused]] const bool shown = QTest::qWaitForWindowExposed(&window);
    QApplication::processEvents();
    notices.clear();
}

QPoint GridOnScreen::MiddleOf(int row, int column) const {
    for (int pane = 0; pane < grid.PaneCount(); ++pane) {
        if (grid.Pane(pane).Has(column)) {
            return MiddleOf({pane, row, column});
        }
    }
    return {-1, -1};
}

QPoint GridOnScreen::MiddleOf(const platform::GridCell& cell) const {
    const platform::GridPaneView* view = PaneView(cell.pane);
    return view->viewport()->mapTo(widget, view->CellPlace(cell).center());
}

void GridOnScreen::Click(QPoint position) {
    PressOnly(position);
    ReleaseOnly(position);
}

void GridOnScreen::PressOnly(QPoint position) {
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&window, position));
}

void GridOnScreen::MoveTo(QPoint position) {
    QTest::mouseMove(window.windowHandle(), widget->mapTo(&window, position));
}

void GridOnScreen::ReleaseOnly(QPoint position) {
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&window, position));
}

void GridOnScreen::ClickOn(QWidget& other) {
    const QPoint middle = other.mapTo(&window, other.rect().center());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, middle);
}

void GridOnScreen::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void GridOnScreen::Type(const std::string& text) {
    for (const char each : text) {
        QTest::keyClick(QApplication::focusWidget(), each);
    }
}

QImage GridOnScreen::Draw(double scale) {
    QImage image(widget->size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    widget->render(&image);
    return image;
}

QLineEdit* GridOnScreen::Editor() const {
    auto* editor = widget->findChild<QLineEdit*>(QStringLiteral("grid.editor"));
    return editor != nullptr && editor->isVisible() ? editor : nullptr;
}

platform::GridPaneView* GridOnScreen::PaneView(int pane) const {
    const auto name = QStringLiteral("grid.pane(%1)").arg(pane);
    return dynamic_cast<platform::GridPaneView*>(widget->findChild<QTableView*>(name));
}

std::vector<std::string> GridOnScreen::TakeNotices() {
    return std::exchange(notices, {});
}

QRgb PixelAt(const QImage& image, QPoint position) {
    return image.pixel(position * static_cast<int>(image.devicePixelRatio()));
}

LogOnScreen::LogOnScreen() {
    constexpr int columns = 11;
    constexpr int used = 6;
    for (int row = 0; row < 40; ++row) {
        auto& texts = cells.emplace_back(columns, "");
        texts[0] = (row < 9 ? "01/0" : "01/") + std::to_string(row + 1) + "/1999";
        for (int column = 1; column <= used; ++column) {
            texts[static_cast<std::size_t>(column)] = std::to_string((row * 7 + column * 5) % 49 + 1);
        }
    }
    grid.bounds = {150, 300, 5715, 4800};
    grid.SetColumns(columns);
    grid.AddPane(0, 0);
    grid.AddPane(1, columns - 1);
    grid.Pane(0).locked = true;
    grid.Pane(1).columnsWide = used;
    grid.showsRowMargin = true;
    grid.accessibleName = "Log";
    grid.rowNameColumn = 0;
    grid.Column(0).heading = "Historical Log";
    grid.Column(0).width = 1500;
    grid.Column(0).hasButton = true;
    for (int column = 1; column < columns; ++column) {
        grid.Column(column).styled = true;
        if (column > used) {
            grid.Column(column).locked = true;
            grid.Column(column).focusable = false;
            grid.Column(column).background = platform::buttonFaceColor;
        }
    }
    grid.SetRowCount(40);
}

BoardsOnScreen::BoardsOnScreen() {
    constexpr int boards = 5;
    constexpr int columns = 9;
    constexpr int rows = 24;
    grid.bounds = {150, 300, 220 * columns * boards + 160, 4660};
    grid.SetColumns(columns);
    grid.AddBoards(boards);
    grid.showsHeadings = false;
    grid.rowHeight = 180;
    grid.accessibleName = "Boards";
    for (int board = 0; board < boards; ++board) {
        grid.Pane(board).locked = true;
        grid.Pane(board).accessibleName = std::string("Line ") + static_cast<char>('A' + board);
    }
    for (int column = 0; column < columns; ++column) {
        grid.Column(column).width = 220;
        grid.Column(column).styled = true;
    }
    grid.cellText = [](const platform::GridCell& cell) {
        return std::string(1, static_cast<char>('A' + cell.pane)) + std::to_string(cell.row * columns + cell.column);
    };
    grid.cellStyle = [this](const platform::GridCell& cell, platform::CellStyle& style) {
        if (cell == chosen) {
            style = {platform::white, platform::black};
        }
    };
    grid.currentCellChanged = [this] {
        notices.push_back("change " + std::to_string(grid.CurrentPane()) + "," +
                          Numbers(grid.CurrentRow(), grid.CurrentColumn()));
    };
    grid.SetRowCount(rows);
}

}  // namespace ballhaven::support
