#pragma once

#include <stdexcept>
#include <string>

namespace ballhaven::platform {

/// A font of the printer.
struct PrinterFont {
    std::string name;  ///< empty for the device's own
    double size = 10;  ///< in points
    bool bold = false;
    bool italic = false;
    bool underline = false;

    bool operator==(const PrinterFont&) const = default;
};

/// A font was asked for that cannot be had.
inline constexpr int noSuchFont = 380;

/// The device does not take what it is given.
inline constexpr int deviceNotReady = 1;

/// An operation of the printer has failed.
class PrinterFailure : public std::runtime_error {
  public:
    explicit PrinterFailure(int errorNumber)
        : std::runtime_error("Printer error " + std::to_string(errorNumber) + "."), number(errorNumber) {}

    const int number;
};

/// What one print job asks of a printer or what stands for one. Places and measures are in twips, counted from the left
/// top corner of the printable area. Every operation may throw `PrinterFailure`. A job that is dropped before its
/// `EndDocument` prints nothing.
class PrinterDevice {
  public:
    virtual ~PrinterDevice() = default;

    /// Begins the job with its first page. What measures and fonts need of the device works before that too.
    virtual void BeginDocument() = 0;
    virtual void NewPage() = 0;

    /// Ends the last page and the job, which goes to the printer.
    virtual void EndDocument() = 0;

    /// Takes a font for the texts that follow. One that cannot be had fails with `noSuchFont`, and the font stays.
    virtual void SetFont(const PrinterFont& font) = 0;
    virtual void DrawText(double x, double y, const std::string& text) = 0;

    [[nodiscard]] virtual double PageWidth() const = 0;
    [[nodiscard]] virtual double PageHeight() const = 0;

    /// Measures of the font that is set: of a text, of a line, and of a character on the average.
    [[nodiscard]] virtual double TextWidth(const std::string& text) const = 0;
    [[nodiscard]] virtual double LineHeight() const = 0;
    [[nodiscard]] virtual double CharacterWidth() const = 0;
};

/// A machine without a printer: its device takes nothing.
class NoPrinter final : public PrinterDevice {
  public:
    void BeginDocument() override { throw PrinterFailure(deviceNotReady); }
    void NewPage() override { throw PrinterFailure(deviceNotReady); }
    void EndDocument() override { throw PrinterFailure(deviceNotReady); }
    void SetFont(const PrinterFont&) override {}
    void DrawText(double, double, const std::string&) override { throw PrinterFailure(deviceNotReady); }
    [[nodiscard]] double PageWidth() const override { return 0; }
    [[nodiscard]] double PageHeight() const override { return 0; }
    [[nodiscard]] double TextWidth(const std::string&) const override { return 0; }
    [[nodiscard]] double LineHeight() const override { return 0; }
    [[nodiscard]] double CharacterWidth() const override { return 0; }
};

}  // namespace ballhaven::platform
