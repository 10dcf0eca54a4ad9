#include "platform/qt/printing/DefaultPrinter.h"

#include "platform/qt/printing/PdfFile.h"
#include "platform/qt/printing/Spooler.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <QUrl>

namespace ballhaven::platform {

namespace {

/// The user's folder of documents, which is made where it is missing.
std::string DocumentsFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QDir().mkpath(folder);  // where that fails, the file in it will
    return QFile::encodeName(folder).toStdString();
}

void ShowInViewer(const std::string& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(path.c_str())));
}

}  // namespace

std::unique_ptr<PrinterDevice> OpenDefaultPrinter(const std::string& title) {
    const QString printer = QPrinterInfo::defaultPrinterName();
    if (!printer.isEmpty()) {
        return std::make_unique<Spooler>(title, printer);
    }
    return std::make_unique<PdfFile>(title, DocumentsFolder(), ShowInViewer);
}

}  // namespace ballhaven::platform
