#pragma once

#include "platform/printing/Printer.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ballhaven {

/// What a job that prints a report of the game at hand is called: "Six of 49 Data Report".
[[nodiscard]] std::string ReportTitle(std::string_view report);

/// Tells the user that the printer has failed.
void TellNotReady();

/// Prints the head of a page, which names the game at hand, in the font of the reports; where that cannot be had, in
/// the one that the printer has. `errorCode` is 0 then, and `lineCount` 2. Where the printer fails, the user is told,
/// `errorCode` is the number of the failure, and the report has to stop.
void printHeader(platform::Printer& printer, std::int16_t& lineCount, std::int16_t& errorCode);

}  // namespace ballhaven
