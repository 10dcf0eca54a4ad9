// RedrawBoards: the five boards of the Play Slips window drawn anew with the winners hi-lited, against the same boards
// without.

#include "bench/screen/RunningScreen.h"
#include "forms/PlaysForm.h"
#include "state/AppState.h"

#include <QImage>
#include <benchmark/benchmark.h>

namespace ballhaven::bench {

namespace {

void Redraw(benchmark::State& state, bool hiLite) {
    StartOnScreen();
    if (!frmPlays.window.IsLoaded()) {
        frmPlays.window.ShowInFront();
    }
    appState.hiLiteWinners = hiLite;
    QWidget& boards = WidgetOf(frmPlays.window, QStringLiteral("grdPlays(0)"));
    QImage image(boards.size(), QImage::Format_RGB32);
    for ([[maybe_unused]] const auto turn : state) {
        boards.render(&image);
    }
    benchmark::DoNotOptimize(image.constBits());
}

void Ours(benchmark::State& state) {
    Redraw(state, true);
}

void Rival(benchmark::State& state) {
    Redraw(state, false);
}

BENCHMARK(Ours)->Name("RedrawBoards/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(Rival)->Name("RedrawBoards/rival")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace ballhaven::bench
