#pragma once

#include "platform/printing/PrinterDevice.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <variant>

namespace ballhaven::platform {

/// A character column of the font that is set. Column 1 begins at the left edge of the printable area, and a column is
/// as wide as a character on the average.
struct ColumnStop {
    int column;
};

/// What a line is made of: texts, which follow each other without a gap, and stops between them.
using PrintItem = std::variant<ColumnStop, std::string>;

/// One job of a printer, which begins with the first print. Positions and measures are in twips from the left top
/// corner of the printable area. Every operation that reaches the device may throw `PrinterFailure`; what it would have
/// changed stays then as it was, but for the items of a line that are on the paper already.
class Printer {
  public:
    explicit Printer(std::unique_ptr<PrinterDevice> printerDevice) : device(std::move(printerDevice)) {}

    /// Prints items from the current position on, and ends the line. A stop that lies behind the position already takes
    /// effect on the next line.
    void PrintLine(std::initializer_list<PrintItem> items = {});

    /// Prints items and leaves the line open.
    void Print(std::initializer_list<PrintItem> items);

    /// Ends the page; printing goes on at the top of the next.
    void NewPage();

    /// Ends the last page and the job, and sends it to the printer. A job in which nothing was printed sends nothing.
    void EndDoc();

    /// The font's name as it was set; a name that cannot be had fails with `noSuchFont`. The empty name is the device's
    /// own font.
    [[nodiscard]] const std::string& FontName() const { return font.name; }
    void SetFontName(const std::string& name);
    [[nodiscard]] double FontSize() const { return font.size; }
    void SetFontSize(double points);
    void SetBold(bool bold);
    void SetItalic(bool italic);
    void SetUnderline(bool underline);

    [[nodiscard]] double CurrentX() const { return x; }
    [[nodiscard]] double CurrentY() const { return y; }
    void SetCurrentX(double left) { x = left; }
    void SetCurrentY(double top) { y = top; }

    /// The printable area.
    [[nodiscard]] double ScaleWidth() const { return device->PageWidth(); }
    [[nodiscard]] double ScaleHeight() const { return device->PageHeight(); }

    [[nodiscard]] double TextWidth(const std::string& text) const { return device->TextWidth(text); }

    /// The height of a line of text, whatever it says.
    [[nodiscard]] double TextHeight() const { return device->LineHeight(); }

    /// The number of the page that is being printed, from 1.
    [[nodiscard]] int Page() const { return page; }

  private:
    void BeginJob();
    void EndLine();
    void GoTo(ColumnStop stop);
    void PrintText(const std::string& text);
    void SetFont(const PrinterFont& wanted);

    std::unique_ptr<PrinterDevice> device;
    PrinterFont font;
    double x = 0;
    double y = 0;
    int page = 1;
    bool jobBegun = false;
};

}  // namespace ballhaven::platform
