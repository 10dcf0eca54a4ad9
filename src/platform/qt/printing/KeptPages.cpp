#include "platform/qt/printing/KeptPages.h"

#include "platform/qt/printing/PrinterFonts.h"
#include "platform/qt/widgets/Conversions.h"

#include <QPainter>

#include <algorithm>

namespace ballhaven::platform {

namespace {

constexpr double twipsOfInch = 1440;
constexpr double twipsOfPoint = 20;

// What a font's own file says of its average counts other letters in each font, and in some is so small that "Numbers"
// would reach into the next column of a report.
double AverageWidth(const QFontMetricsF& metrics) {
    static const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    return metrics.horizontalAdvance(letters) / static_cast<double>(letters.size());
}

}  // namespace

KeptPages::KeptPages(std::unique_ptr<QPagedPaintDevice> pagedDevice) : paper(std::move(pagedDevice)) {
    UseFont(QtFontOf(PrinterFont()).value_or(QFont()));
}

KeptPages::~KeptPages() = default;

void KeptPages::BeginDocument() {
    GetReady();
    pages.emplace_back();
}

void KeptPages::NewPage() {
    pages.emplace_back();
}

void KeptPages::EndDocument() {
    Paint();
    Send();
    pages.clear();
}

void KeptPages::SetFont(const PrinterFont& font) {
    const std::optional<QFont> wanted = QtFontOf(font);
    if (!wanted) {
        throw PrinterFailure(noSuchFont);
    }
    UseFont(*wanted);
}

void KeptPages::DrawText(double x, double y, const std::string& text) {
    const double units = UnitsOfTwip();
    pages.back().push_back({QPointF(x * units, (y + FontInUse().ascent) * units), ToQString(text), fontInUse});
}

double KeptPages::PageWidth() const {
    return paper->pageLayout().paintRect(QPageLayout::Point).width() * twipsOfPoint;
}

double KeptPages::PageHeight() const {
    return paper->pageLayout().paintRect(QPageLayout::Point).height() * twipsOfPoint;
}

double KeptPages::TextWidth(const std::string& text) const {
    return FontInUse().metrics.horizontalAdvance(ToQString(text)) / UnitsOfTwip();
}

double KeptPages::UnitsOfTwip() const {
    return paper->logicalDpiX() / twipsOfInch;
}

// The reports set their font anew on each page.
void KeptPages::UseFont(const QFont& font) {
    const auto used = std::ranges::find(fonts, font, &UsedFont::font);
    fontInUse = static_cast<std::size_t>(used - fonts.begin());
    if (used == fonts.end()) {
        const QFontMetricsF metrics(font, paper.get());
        const double units = UnitsOfTwip();
        fonts.push_back(
            {font, metrics, metrics.ascent() / units, metrics.lineSpacing() / units, AverageWidth(metrics) / units});
    }
}

void KeptPages::Paint() const {
    QPainter painter;
    if (!painter.begin(paper.get())) {
        throw PrinterFailure(deviceNotReady);
    }
    for (const Page& page : pages) {
        if (&page != &pages.front() && !paper->newPage()) {
            throw PrinterFailure(deviceNotReady);
        }
        PaintPage(painter, page);
    }
    if (!painter.end()) {
        throw PrinterFailure(deviceNotReady);
    }
}

void KeptPages::PaintPage(QPainter& painter, const Page& page) const {
    std::size_t font = fonts.size();
    for (const KeptText& each : page) {
        if (each.font != font) {
            font = each.font;
            painter.setFont(fonts[font].font);
        }
        painter.drawText(each.baseline, each.text);
    }
}

}  // namespace ballhaven::platform
