#include "platform/qt/printing/PdfFile.h"

#include "platform/qt/widgets/Conversions.h"

#include <QBuffer>
#include <QFile>
#include <QLocale>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>

#include <system_error>
#include <utility>

namespace ballhaven::platform {

namespace {

constexpr int unitsOfInch = 1440;  // twips
constexpr double margin = 18;      // points: a quarter of an inch, as printers have it

struct Memory {
    Memory() { buffer.open(QIODevice::WriteOnly); }

    QBuffer buffer;
};

/// Pages that become a PDF in memory.
class PdfInMemory : private Memory, public QPdfWriter {
  public:
    explicit PdfInMemory(const QString& title) : QPdfWriter(&buffer) {
        const bool hasLetterPaper = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
        setResolution(unitsOfInch);
        setPageLayout(QPageLayout(QPageSize(hasLetterPaper ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
                                  QMarginsF(margin, margin, margin, margin)));
        setTitle(title);
        setCreator(QStringLiteral("Ballhaven"));
    }

    [[nodiscard]] std::string Bytes() const { return buffer.data().toStdString(); }
};

/// Does something with a file; a failure is the printer's.
template <typename Work>
auto AsPrinter(const Work& work) {
    try {
        return work();
    } catch (const std::system_error&) {
        throw PrinterFailure(deviceNotReady);
    }
}

}  // namespace

QString FileNameOf(const std::string& title) {
    const auto forbidden = QStringLiteral("/\\:*?\"<>|");
    QString name = ToQString(title).simplified();
    for (QChar& each : name) {
        if (!each.isPrint() || forbidden.contains(each)) {
            each = u'_';
        }
    }
    if (name.startsWith(u'.')) {
        name[0] = u'_';  // or it would be hidden
    }
    return name.isEmpty() ? QStringLiteral("Report") : name;
}

PdfFile::PdfFile(const std::string& jobTitle, std::string folderPath,
                 std::function<void(const std::string& path)> showFile)
    : KeptPages(std::make_unique<PdfInMemory>(ToQString(jobTitle))),
      name(QFile::encodeName(FileNameOf(jobTitle)).toStdString()),
      folder(std::move(folderPath)),
      show(std::move(showFile)) {}

void PdfFile::GetReady() {
    AsPrinter([this] { file = std::make_unique<NewFile>(folder, name, ".pdf"); });
}

void PdfFile::Send() {
    const auto& pdf = static_cast<const PdfInMemory&>(Paper());
    const std::string path = AsPrinter([this, &pdf] { return file->Save(pdf.Bytes()); });
    file.reset();
    show(path);
}

}  // namespace ballhaven::platform
