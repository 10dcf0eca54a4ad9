#include "platform/qt/printing/Spooler.h"

#include "platform/qt/printing/PdfFile.h"

#include <QPrinter>
#include <QPrinterInfo>

namespace ballhaven::platform {

namespace {

std::unique_ptr<QPrinter> PrinterFor(const QString& name, const std::string& title) {
    auto printer = std::make_unique<QPrinter>(QPrinterInfo::printerInfo(name), QPrinter::HighResolution);
    printer->setDocName(FileNameOf(title));  // a spooler takes no control characters either
    printer->setCreator(QStringLiteral("Ballhaven"));
    return printer;
}

const QPrinter& AsPrinter(const QPagedPaintDevice& paper) {
    return static_cast<const QPrinter&>(paper);
}

}  // namespace

Spooler::Spooler(const std::string& jobTitle, const QString& printerName)
    : KeptPages(PrinterFor(printerName, jobTitle)) {}

void Spooler::GetReady() {
    const QPrinter& printer = AsPrinter(Paper());
    const QPrinterInfo now = QPrinterInfo::printerInfo(printer.printerName());
    if (!printer.isValid() || now.isNull() || now.state() == QPrinter::Error) {
        throw PrinterFailure(deviceNotReady);
    }
}

void Spooler::Send() {
    if (AsPrinter(Paper()).printerState() == QPrinter::Error) {
        throw PrinterFailure(deviceNotReady);
    }
}

}  // namespace ballhaven::platform
