#include "printing/ReportPage.h"

#include "printing/PageHead.h"

#include <cstddef>

namespace ballhaven {

namespace {

constexpr int leftColumn = 5;
constexpr int remarkColumn = 10;
constexpr std::size_t ruleLength = 70;

constexpr int linesOfHead = 6;
constexpr int linesOfRow = 2;
constexpr int fullPage = 47;
constexpr int lastLineForSection = 40;

}  // namespace

bool ReportPage::Begin() {
    return PrintPageHead();
}

bool ReportPage::Turn() {
    try {
        printer.NewPage();
    } catch (const platform::PrinterFailure&) {
        TellNotReady();
        return false;
    }
    return PrintPageHead();
}

bool ReportPage::HasRoomForSection() const {
    return lineCount <= lastLineForSection;
}

void ReportPage::PrintHead(const SectionHead& head) {
    printer.PrintLine();
    PrintLine({{leftColumn, std::string(ruleLength, head.rule)}});
    PrintLine({{leftColumn, head.title}});
    printer.PrintLine();
    PrintLine(head.columns);
    PrintLine({{leftColumn, std::string(ruleLength, '_')}});
    lineCount += linesOfHead;
}

void ReportPage::PrintRow(const ReportLine& row) {
    PrintLine(row);
    printer.PrintLine();
    lineCount += linesOfRow;
}

bool ReportPage::GoOn(const SectionHead& head, bool isLastRow) {
    if (lineCount < fullPage || isLastRow) {
        return true;
    }
    if (!Turn()) {
        return false;
    }
    PrintHead(head);
    return true;
}

void ReportPage::PrintUncounted(const ReportLine& line) {
    PrintLine(line);
}

void ReportPage::PrintRemark(const std::string& remark) {
    PrintLine({{remarkColumn, remark}});
    ++lineCount;
}

void ReportPage::EndSection() {
    printer.PrintLine();
    ++lineCount;
}

bool ReportPage::PrintPageHead() {
    std::int16_t errorCode = 0;
    printHeader(printer, lineCount, errorCode);
    return errorCode == 0;
}

void ReportPage::PrintLine(const ReportLine& line) {
    for (const ColumnText& each : line) {
        printer.Print({platform::ColumnStop{each.column}, each.text});
    }
    printer.PrintLine();
}

}  // namespace ballhaven
