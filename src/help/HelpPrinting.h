#pragma once

#include "platform/printing/Printer.h"

#include <string>

namespace ballhaven {

/// Prints a text with a heading on every page, as a job of its own: words are kept whole, a line feed ends a line, and
/// a tab goes on to the next multiple of ten digits' widths. Nothing fails: each
/// statement that does is passed over, and nothing is said of it.
void printHelpText(const std::string& title, const std::string& text);

/// Gives a page its heading and its footer, today's date and the number of the page, and goes to where the text begins;
/// on a page of its own with `eject`. What fails is passed over.
void printHelpPage(platform::Printer& printer, const std::string& title, bool eject);

}  // namespace ballhaven
