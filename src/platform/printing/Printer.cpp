#include "platform/printing/Printer.h"

namespace ballhaven::platform {

void Printer::PrintLine(std::initializer_list<PrintItem> items) {
    Print(items);
    EndLine();
}

void Printer::Print(std::initializer_list<PrintItem> items) {
    BeginJob();
    for (const PrintItem& item : items) {
        if (const auto* const stop = std::get_if<ColumnStop>(&item)) {
            GoTo(*stop);
        } else {
            PrintText(std::get<std::string>(item));
        }
    }
}

void Printer::NewPage() {
    BeginJob();
    device->NewPage();
    ++page;
    x = 0;
    y = 0;
}

void Printer::EndDoc() {
    if (!jobBegun) {
        return;
    }
    device->EndDocument();
    jobBegun = false;
    page = 1;
    x = 0;
    y = 0;
}

void Printer::SetFontName(const std::string& name) {
    PrinterFont wanted = font;
    wanted.name = name;
    SetFont(wanted);
}

void Printer::SetFontSize(double points) {
    PrinterFont wanted = font;
    wanted.size = points;
    SetFont(wanted);
}

void Printer::SetBold(bool bold) {
    PrinterFont wanted = font;
    wanted.bold = bold;
    SetFont(wanted);
}

void Printer::SetItalic(bool italic) {
    PrinterFont wanted = font;
    wanted.italic = italic;
    SetFont(wanted);
}

void Printer::SetUnderline(bool underline) {
    PrinterFont wanted = font;
    wanted.underline = underline;
    SetFont(wanted);
}

void Printer::BeginJob() {
    if (!jobBegun) {
        device->BeginDocument();
        jobBegun = true;
    }
}

void Printer::EndLine() {
    x = 0;
    y += device->LineHeight();
}

void Printer::GoTo(ColumnStop stop) {
    const double place = (stop.column - 1) * device->CharacterWidth();
    if (x > place) {
        EndLine();
    }
    x = place;
}

void Printer::PrintText(const std::string& text) {
    if (!text.empty()) {
        device->DrawText(x, y, text);
        x += device->TextWidth(text);
    }
}

void Printer::SetFont(const PrinterFont& wanted) {
    device->SetFont(wanted);
    font = wanted;
}

}  // namespace ballhaven::platform
