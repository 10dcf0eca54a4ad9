#include "help/HelpPrinting.h"

#include "platform/Services.h"
#include "state/DateText.h"
#include "state/RuntimeFailure.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>
#include <string_view>
#include <utility>

namespace ballhaven {

namespace {

using platform::Printer;

// In twips
constexpr double halfInch = 720;
constexpr double inch = 1440;

constexpr int tabWidth = 10;  // digits

/// Runs one statement of the print; its failure, whatever it is, is passed over. Statements that ask neither the
/// printer nor the system for anything, such as setting a position that is known, cannot fail and stand without it.
// QUIRK HELP-PRINT-SILENT-1: a printer that is not ready yields nothing here and says nothing, unlike in the reports.
// Habits rest on it.
template <typename Statement>
void PassOver(const Statement& statement) {
    try {
        statement();
    } catch (const std::exception&) {
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

/// A printer for a job of a title; one that takes nothing where none can be opened.
Printer OpenPrinter(const std::string& title) {
    std::unique_ptr<platform::PrinterDevice> device = std::make_unique<platform::NoPrinter>();
    PassOver([&] { device = platform::services.openPrinter(title); });
    return Printer(std::move(device));
}

bool BelongsToWord(char character) {
    return static_cast<unsigned char>(character) > ' ';
}

/// Takes the characters in front of a place from a text.
std::string_view TakeUpTo(std::string_view& text, std::string_view::iterator end) {
    const std::string_view taken(text.begin(), end);
    text.remove_prefix(taken.size());
    return taken;
}

/// Takes the word at the front of a text, and what parts it from the next one; either can be empty.
std::string_view TakeWord(std::string_view& text) {
    return TakeUpTo(text, std::ranges::find_if_not(text, BelongsToWord));
}

std::string_view TakeGap(std::string_view& text) {
    return TakeUpTo(text, std::ranges::find_if(text, BelongsToWord));
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

/// How many digits have room in front of the current position, rounded. Raises the failure of a division by zero where
/// a digit has no width.
int DigitsBefore(const Printer& printer) {
    const double digit = printer.TextWidth("0");
    if (digit == 0) {
        throw RuntimeFailure(RuntimeFailure::Kind::DivisionByZero);
    }
    return static_cast<int>(std::nearbyint((printer.CurrentX() - halfInch) / digit));
}

/// A place on a tab already moves on to the next. One that cannot be told counts as the left margin.
void GoToNextTab(Printer& printer) {
    int digits = 0;
    PassOver([&] { digits = DigitsBefore(printer); });
    digits += tabWidth - digits % tabWidth;
    PassOver([&] { printer.SetCurrentX(halfInch + digits * printer.TextWidth("0")); });
}

void PrintGap(Printer& printer, const std::string& title, std::string_view gap) {
    for (const char character : gap) {
        if (character == ' ') {
            Print(printer, " ");
        } else if (character == '\n') {
            BreakLine(printer, title);
        } else if (character == '\t') {
            GoToNextTab(printer);
        }
    }
}

}  // namespace

void printHelpText(const std::string& title, const std::string& text) {
    Printer printer = OpenPrinter(title);
    PassOver([&] { printer.SetFontName("Times New Roman"); });
    PassOver([&] { printer.SetFontSize(10); });
    printHelpPage(printer, title, false);
    for (std::string_view rest = text; !rest.empty();) {
        PrintWord(printer, title, std::string(TakeWord(rest)));
        PrintGap(printer, title, TakeGap(rest));
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
    PassOver([&] { printer.Print({ShortDate(platform::services.today())}); });

    const std::string number = "Page " + std::to_string(printer.Page());
    PassOver([&] { printer.SetCurrentX(printer.ScaleWidth() - (printer.TextWidth(number) + halfInch)); });
    PassOver([&] { printer.SetCurrentY(printer.ScaleHeight() - halfInch); });
    Print(printer, number);

    printer.SetCurrentX(halfInch);
    printer.SetCurrentY(inch);
}

}  // namespace ballhaven
