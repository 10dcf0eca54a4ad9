#pragma once

#include "platform/printing/PrinterDevice.h"

#include <memory>
#include <string>

namespace ballhaven::platform {

/// Opens the system's default printer for a job of a title; where the system has none, a PDF file in the user's folder
/// of documents, which the desktop shows when it is printed.
[[nodiscard]] std::unique_ptr<PrinterDevice> OpenDefaultPrinter(const std::string& title);

}  // namespace ballhaven::platform
