#include "support/PrinterRecord.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace ballhaven::support {

namespace {

constexpr double characterWidth = 120;
constexpr double lineHeight = 240;

std::string TextOf(const PrinterRecord::Page& page) {
    std::vector<std::string> lines;
    for (const PrinterRecord::PrintedText& each : page) {
        const auto line = static_cast<std::size_t>(std::lround(each.y / lineHeight));
        const auto column = static_cast<std::size_t>(std::lround(each.x / characterWidth));
        lines.resize(std::max(lines.size(), line + 1));
        lines[line].resize(std::max(lines[line].size(), column + each.text.size()), ' ');
        lines[line].replace(column, each.text.size(), each.text);
    }
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

}  // namespace

class PrinterRecord::Device final : public platform::PrinterDevice {
  public:
    explicit Device(PrinterRecord& printerRecord) : record(printerRecord) {}

    void BeginDocument() override {
        record.Count();
        job.emplace_back();
    }

    void NewPage() override {
        record.Count();
        job.emplace_back();
    }

    void EndDocument() override {
        record.Count();
        record.jobs.push_back(std::exchange(job, {}));
    }

    void SetFont(const platform::PrinterFont& wanted) override {
        if (record.missingFonts.contains(wanted.name)) {
            throw platform::PrinterFailure(platform::noSuchFont);
        }
        font = wanted;
    }

    void DrawText(double x, double y, const std::string& text) override {
        record.Count();
        job.back().push_back({x, y, text, font});
    }

    [[nodiscard]] double PageWidth() const override { return record.pageWidth; }
    [[nodiscard]] double PageHeight() const override { return record.pageHeight; }
    [[nodiscard]] double TextWidth(const std::string& text) const override {
        record.CountWidth(text);
        const auto own = record.ownWidths.find(text);
        return own != record.ownWidths.end() ? own->second : characterWidth * static_cast<double>(text.size());
    }
    [[nodiscard]] double LineHeight() const override { return lineHeight; }
    [[nodiscard]] double CharacterWidth() const override { return characterWidth; }

  private:
    PrinterRecord& record;
    platform::PrinterFont font;
    Job job;
};

std::unique_ptr<platform::PrinterDevice> PrinterRecord::OpenDevice() {
    return std::make_unique<Device>(*this);
}

std::string PrinterRecord::AsText() const {
    std::string text;
    for (std::size_t job = 0; job < jobs.size(); ++job) {
        text += job > 0 ? "=====\n" : "";
        for (std::size_t page = 0; page < jobs[job].size(); ++page) {
            text += (page > 0 ? "-----\n" : "") + TextOf(jobs[job][page]);
        }
    }
    return text;
}

void PrinterRecord::FailFrom(int operation, int number) {
    operations = 0;
    failing = operation;
    lastFailing = std::numeric_limits<int>::max();
    errorNumber = number;
}

void PrinterRecord::FailOnceAt(int operation, int number) {
    FailFrom(operation, number);
    lastFailing = operation;
}

void PrinterRecord::FailWidthOnce(const std::string& text, int asksBefore) {
    asksBeforeFailing[text] = asksBefore;
}

void PrinterRecord::CountWidth(const std::string& text) {
    const auto asked = asksBeforeFailing.find(text);
    if (asked != asksBeforeFailing.end() && asked->second-- == 0) {
        asksBeforeFailing.erase(asked);
        throw platform::PrinterFailure(platform::deviceNotReady);
    }
}

void PrinterRecord::Count() {
    ++operations;
    if (failing > 0 && operations >= failing && operations <= lastFailing) {
        throw platform::PrinterFailure(errorNumber);
    }
}

}  // namespace ballhaven::support
