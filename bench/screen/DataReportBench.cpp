// DataReport: all sections of 1000 draws of 10 picks as a PDF on the disk, against the same texts drawn at the same
// places with a bare painter into a PDF.

#include "printing/DataReport.h"

#include "bench/screen/RunningScreen.h"
#include "forms/PrintForm.h"
#include "platform/Services.h"
#include "platform/qt/printing/PdfFile.h"
#include "state/AppState.h"
#include "statistics/HotTables.h"
#include "support/PrinterRecord.h"
#include "support/TemporaryDirectory.h"

#include <QFont>
#include <QPainter>
#include <QPdfWriter>
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

namespace ballhaven::bench {

namespace {

constexpr int highest = 32;
constexpr int unitsOfInch = 1440;  // twips

/// 1000 draws that go round 32 numbers: none has 328 hits, and there are fewer pairs than Hot Pairs takes.
void ShowDraws() {
    StartOnScreen();
    for (int draw = 0; draw <= appState.historyViewLast; ++draw) {
        for (int pick = 1; pick <= appState.totalPicks; ++pick) {
            const int number = (draw * appState.totalPicks + pick) % highest + 1;
            appState.historyView(pick, draw) = static_cast<std::int16_t>(number);
        }
    }
    ComputeHotTable();
    for (int section = 0; section < reportSections; ++section) {
        frmPrint.chkPrint[static_cast<std::size_t>(section)].click = nullptr;
        frmPrint.chkPrint[static_cast<std::size_t>(section)].Tick(true);
    }
}

void Ours(benchmark::State& state) {
    ShowDraws();
    const support::TemporaryDirectory folder;
    std::string saved;
    platform::services.openPrinter = [&](const std::string& title) {
        return std::make_unique<platform::PdfFile>(title, folder.Path(),
                                                   [&](const std::string& path) { saved = path; });
    };
    for ([[maybe_unused]] const auto turn : state) {
        MarkHotTablesStale();
        saved.clear();
        dataReport();
        state.PauseTiming();
        if (saved.empty()) {
            state.SkipWithError("There is no report");
            return;
        }
        state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(saved));
        std::filesystem::remove(saved);
        state.ResumeTiming();
    }
}

/// The texts of the report, page by page.
support::PrinterRecord::Job TextsOfReport() {
    support::PrinterRecord record;
    platform::services.openPrinter = [&](const std::string&) { return record.OpenDevice(); };
    dataReport();
    return record.jobs.at(0);
}

void Rival(benchmark::State& state) {
    ShowDraws();
    const support::PrinterRecord::Job pages = TextsOfReport();
    const support::TemporaryDirectory folder;
    for ([[maybe_unused]] const auto turn : state) {
        QPdfWriter writer(QString::fromStdString(folder / "rival.pdf"));
        writer.setResolution(unitsOfInch);
        QPainter painter(&writer);
        painter.setFont(QFont(QStringLiteral("Liberation Sans"), 12));
        for (std::size_t page = 0; page < pages.size(); ++page) {
            if (page > 0) {
                writer.newPage();
            }
            for (const support::PrinterRecord::PrintedText& each : pages[page]) {
                painter.drawText(QPointF(each.x, each.y), QString::fromLatin1(each.text.c_str()));
            }
        }
        painter.end();
    }
    state.counters["pages"] = static_cast<double>(pages.size());
}

BENCHMARK(Ours)->Name("DataReport/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(Rival)->Name("DataReport/rival")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace ballhaven::bench
