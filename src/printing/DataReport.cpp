#include "printing/DataReport.h"

#include "forms/PrintForm.h"
#include "platform/Services.h"
#include "platform/printing/Printer.h"
#include "printing/PageHead.h"
#include "printing/ReportPage.h"
#include "printing/ReportSections.h"
#include "state/RuntimeFailure.h"
#include "state/modUTILS.h"
#include "statistics/HotTables.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>

namespace ballhaven {

namespace {

std::span<const platform::CheckBox> SectionBoxes() {
    return std::span(frmPrint.chkPrint).first(reportSections);
}

bool PrintRows(ReportPage& page, ReportSection section, const SectionHead& head, int last) {
    for (int row = 0; row <= last; ++row) {
        if (const auto line = RowOfSection(section, row)) {
            page.PrintRow(*line);
            if (!page.GoOn(head, row == last)) {
                return false;
            }
        }
    }
    return true;
}

bool PrintPacked(ReportPage& page, ReportSection section, const SectionHead& head, int last, const Packing& packing) {
    std::string text;
    for (int row = 0; row <= last; ++row) {
        text += modUTILS::FixedWidth(EntryOfSection(section, row), packing.entryWidth);
        if (text.size() == static_cast<std::size_t>(packing.lineLength)) {
            page.PrintRow({{packing.column, text}});
            if (!page.GoOn(head, row == last)) {
                return false;
            }
            text.clear();
        }
    }
    if (!text.empty()) {
        // QUIRK REPORT-PART-LINE-1: a last line that is not full does not count, so the next section may begin a line
        // further down than elsewhere. Counting it would send that one to a page of its own in other cases than now.
        page.PrintUncounted({{packing.column, text}});
    }
    return true;
}

bool PrintSection(ReportPage& page, ReportSection section) {
    const SectionHead head = HeadOfSection(section);
    const int last = LastRowOfSection(section);
    page.PrintHead(head);
    if (last < 0) {
        page.PrintRemark(RemarkOfSection(section));
        return true;
    }
    const auto packing = PackingOfSection(section);
    const bool printed =
        packing ? PrintPacked(page, section, head, last, *packing) : PrintRows(page, section, head, last);
    if (printed) {
        page.EndSection();
    }
    return printed;
}

/// The log begins under the page head; another section that has no room on the page begins on the next.
bool PrintTickedSection(ReportPage& page, ReportSection section) {
    if (section != ReportSection::Log) {
        RefreshHotTable(TableOfSection(section));
        if (!page.HasRoomForSection() && !page.Turn()) {
            return false;
        }
    }
    return PrintSection(page, section);
}

bool PrintTickedSections(ReportPage& page) {
    for (std::int16_t index = 0; const platform::CheckBox& box : SectionBoxes()) {
        if (box.IsTicked() && !PrintTickedSection(page, ReportSection{index})) {
            return false;
        }
        ++index;
    }
    return true;
}

}  // namespace

void dataReport() {
    if (std::ranges::none_of(SectionBoxes(), &platform::CheckBox::IsTicked)) {
        return;
    }
    platform::Printer printer(platform::services.openPrinter(ReportTitle("Data Report")));
    ReportPage page(printer);
    if (!page.Begin()) {
        return;
    }
    try {
        if (PrintTickedSections(page)) {
            printer.EndDoc();
        }
    } catch (const RuntimeFailure&) {
        // QUIRK REPORT-SILENT-END-1: a failure in the middle, as by a pick with 328 hits, whose percentage does not fit
        // 16 bits, ends the report at that row without a word, and nothing is printed. Habits rest on it.
        return;
    } catch (const platform::PrinterFailure&) {
        return;
    }
}

}  // namespace ballhaven
