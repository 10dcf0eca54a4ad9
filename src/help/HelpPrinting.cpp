#include "help/HelpPrinting.h"

#include "platform/Services.h"
#include "state/DateText.h"

#include <cmath>
#include <string_view>

namespace ballhaven {

namespace {

using platform::Printer;

// In twips
constexpr double halfInch = 720;
constexpr double inch = 1440;

constexpr int tabWidth = 10;  // digits

/// Runs one statement of the print; its failure is passed over.
// QUIRK HELP-PRINT-SILENT-1: a printer that is not ready yields nothing here and says nothing, unlike in the reports.
// Habits rest on it.
template <typename Statement>
void PassOver(const Statement& statement) {
    try {
        statement();
    } catch (const platform::PrinterFailure&) {
    }
}

/// What a test of the printer's measures says. One that fails is passed over like any statement: what comes next is
/// what it guards.
template <typename Test>
bool Holds(const Test& test) {
    bool holds = true;
    PassOver([&] { holds = test(); });
    return holds;
}

bool BelongsToWord(char character) {
    return static_cast<unsigned char>(character) > ' ';
}

/// Takes the characters from the front of a text that belong to a word, or those that do not.
std::string_view TakeRun(std::string_view& text, bool ofWord) {
    std::size_t length = 0;
    while (length < text.size() && BelongsToWord(text[length]) == ofWord) {
        ++length;
    }
    const std::string_view run = text.substr(0, length);
    text.remove_prefix(length);
    return run;
}

void Print(Printer& printer, const std::string& text) {
    PassOver([&] { printer.Print({text}); });
}

/// Ends the line, and begins the next one on this page or, below the last line, on another.
// QUIRK HELP-LAST-PAGE-1: the page is tested when a line has ended, whether anything follows or not, so a text that
// ends with the last line of a page gets one more, with its heading and footer alone. Habits rest on it.
void BreakLine(Printer& printer, const std::string& title) {
    PassOver([&] { printer.PrintLine(); });
    if (Holds([&] { return printer.CurrentY() > printer.ScaleHeight() - inch; })) {
        printHelpPage(printer, title, true);
    } else {
        printer.SetCurrentX(halfInch);
    }
}

void PrintWord(Printer& printer, const std::string& title, const std::string& word) {
    if (Holds([&] { return printer.CurrentX() + printer.TextWidth(word) > printer.ScaleWidth() - halfInch; })) {
        BreakLine(printer, title);
    }
    Print(printer, word);
}

/// A place on a tab already moves on to the next. A printer without measures has no tabs.
void GoToNextTab(Printer& printer) {
    const double digit = printer.TextWidth("0");
    if (digit > 0) {
        const auto digits = static_cast<int>(std::nearbyint((printer.CurrentX() - halfInch) / digit));
        printer.SetCurrentX(halfInch + (digits + tabWidth - digits % tabWidth) * digit);
    }
}

void PrintGap(Printer& printer, const std::string& title, std::string_view gap) {
    for (const char character : gap) {
        if (character == ' ') {
            Print(printer, " ");
        } else if (character == '\n') {
            BreakLine(printer, title);
        } else if (character == '\t') {
            PassOver([&] { GoToNextTab(printer); });
        }
    }
}

}  // namespace

void printHelpText(const std::string& title, const std::string& text) {
    Printer printer(platform::services.openPrinter(title));
    PassOver([&] { printer.SetFontName("Times New Roman"); });
    PassOver([&] { printer.SetFontSize(10); });
    printHelpPage(printer, title, false);
    for (std::string_view rest = text; !rest.empty();) {
        PrintWord(printer, title, std::string(TakeRun(rest, true)));
        PrintGap(printer, title, TakeRun(rest, false));
    }
    PassOver([&] { printer.EndDoc(); });
}

void printHelpPage(Printer& printer, const std::string& title, bool eject) {
    if (eject) {
        PassOver([&] { printer.NewPage(); });
    }
    PassOver([&] { printer.SetCurrentY((inch - printer.TextHeight()) / 2); });
    PassOver([&] { printer.SetCurrentX((printer.ScaleWidth() - printer.TextWidth(title)) / 2); });
    Print(printer, title);

    PassOver([&] { printer.SetCurrentY(printer.ScaleHeight() - halfInch); });
    printer.SetCurrentX(halfInch);
    Print(printer, ShortDate(platform::services.today()));

    const std::string number = "Page " + std::to_string(printer.Page());
    PassOver([&] { printer.SetCurrentX(printer.ScaleWidth() - (printer.TextWidth(number) + halfInch)); });
    PassOver([&] { printer.SetCurrentY(printer.ScaleHeight() - halfInch); });
    Print(printer, number);

    printer.SetCurrentX(halfInch);
    printer.SetCurrentY(inch);
}

}  // namespace ballhaven
