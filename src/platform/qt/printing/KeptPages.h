#pragma once

#include "platform/printing/PrinterDevice.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPointF>
#include <QString>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

class QPainter;

namespace ballhaven::platform {

/// A printer that keeps its pages until the job ends, and then prints them all: of a job that is dropped nothing is on
/// the paper, whatever Qt does with pages that have been begun.
class KeptPages : public PrinterDevice {
  public:
    ~KeptPages() override;

    void BeginDocument() final;
    void NewPage() final;
    void EndDocument() final;
    void SetFont(const PrinterFont& font) final;
    void DrawText(double x, double y, const std::string& text) final;
    [[nodiscard]] double PageWidth() const final;
    [[nodiscard]] double PageHeight() const final;
    [[nodiscard]] double TextWidth(const std::string& text) const final;
    [[nodiscard]] double LineHeight() const final { return FontInUse().lineHeight; }
    [[nodiscard]] double CharacterWidth() const final { return FontInUse().characterWidth; }

  protected:
    /// `pagedDevice` is set up already: size of the paper, margins, resolution.
    explicit KeptPages(std::unique_ptr<QPagedPaintDevice> pagedDevice);
    [[nodiscard]] QPagedPaintDevice& Paper() const { return *paper; }

    /// The job begins. Throws where the printer does not take one.
    virtual void GetReady() = 0;

    /// The pages have been painted. Throws where they do not come to the printer.
    virtual void Send() = 0;

  private:
    /// A font that was set, with its measures in twips.
    struct UsedFont {
        QFont font;
        QFontMetricsF metrics;  ///< in the device's own units
        double ascent;
        double lineHeight;
        double characterWidth;
    };

    struct KeptText {
        QPointF baseline;  ///< where it begins, in the device's own units
        QString text;
        std::size_t font;  ///< in `fonts`
    };

    using Page = std::vector<KeptText>;

    [[nodiscard]] double UnitsOfTwip() const;
    void UseFont(const QFont& font);
    [[nodiscard]] const UsedFont& FontInUse() const { return fonts[fontInUse]; }
    void Paint() const;
    void PaintPage(QPainter& painter, const Page& page) const;

    std::unique_ptr<QPagedPaintDevice> paper;
    std::vector<UsedFont> fonts;
    std::size_t fontInUse = 0;
    std::vector<Page> pages;
};

}  // namespace ballhaven::platform
