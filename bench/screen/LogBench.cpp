// ScrollLog and TypePick: one key in the log of a full game, up to the finished drawing: an arrow that scrolls by a
// row, and a digit that opens the editor or Escape that closes it. The rival is a table view of the toolkit of the same
// size over a model of 1000 rows of texts.

#include "bench/screen/RunningScreen.h"
#include "forms/MainForm.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <benchmark/benchmark.h>

namespace ballhaven::bench {

namespace {

constexpr int rows = 1000;
constexpr int columns = 11;
constexpr int rowPixels = 15;

/// A plain table in a window of its own.
class PlainTable {
  public:
    PlainTable() : model(rows, columns) {
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                model.setItem(row, column, new QStandardItem(QString::number(row * columns + column)));
            }
        }
        view.setModel(&model);
        view.verticalHeader()->setDefaultSectionSize(rowPixels);
        view.resize(WidgetOf(frmMainForm.window, QStringLiteral("grdHist")).size());
        view.show();
        view.activateWindow();
        view.setFocus();
        QApplication::processEvents();
    }

    [[nodiscard]] int Row() const { return view.currentIndex().row(); }
    void GoTo(int row) { view.setCurrentIndex(model.index(row, 1)); }

  private:
    QStandardItemModel model;
    QTableView view;
};

/// The program's own log, with the keyboard on it.
class Log {
  public:
    Log() {
        auto* const window = dynamic_cast<QWidget*>(frmMainForm.window.view);
        window->activateWindow();
        QApplication::processEvents();
        frmMainForm.grdHist.TakeFocus();
    }

    [[nodiscard]] static int Row() { return frmMainForm.grdHist.CurrentRow(); }
    static void GoTo(int row) { frmMainForm.grdHist.GoTo({1, row, 1}); }
};

template <typename Table>
void Scroll(benchmark::State& state) {
    constexpr int belowFirstScreen = 100;
    StartOnScreen();
    Table table;
    table.GoTo(belowFirstScreen);
    for ([[maybe_unused]] const auto turn : state) {
        Press(Qt::Key_Down);
        if (table.Row() + 1 == rows) {
            state.PauseTiming();
            table.GoTo(belowFirstScreen);
            QApplication::processEvents();
            state.ResumeTiming();
        }
    }
    if (table.Row() <= belowFirstScreen) {
        state.SkipWithError("The table did not move");
    }
}

template <typename Table>
void TypeAndTakeBack(benchmark::State& state) {
    StartOnScreen();
    Table table;
    table.GoTo(0);
    bool typing = false;
    for ([[maybe_unused]] const auto turn : state) {
        typing = !typing;
        if (typing) {
            Press(Qt::Key_7, QStringLiteral("7"));
        } else {
            Press(Qt::Key_Escape);
        }
        if (typing != (qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr)) {
            state.SkipWithError("The editor does not follow the keys");
            break;
        }
    }
    if (typing) {
        Press(Qt::Key_Escape);
    }
}

BENCHMARK(Scroll<Log>)->Name("ScrollLog/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(Scroll<PlainTable>)->Name("ScrollLog/rival")->Unit(benchmark::kMillisecond);
BENCHMARK(TypeAndTakeBack<Log>)->Name("TypePick/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(TypeAndTakeBack<PlainTable>)->Name("TypePick/rival")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace ballhaven::bench
