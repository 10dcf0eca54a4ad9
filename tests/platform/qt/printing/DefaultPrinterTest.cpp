#include "platform/qt/printing/DefaultPrinter.h"

#include "platform/printing/Printer.h"
#include "platform/qt/printing/PdfFile.h"
#include "support/TemporaryDirectory.h"

#include <QByteArray>
#include <gtest/gtest.h>

#include <filesystem>

namespace ballhaven::platform {
namespace {

/// A variable of the environment with another value within a scope.
class Variable {
  public:
    Variable(const char* variableName, const std::string& value) : name(variableName), before(qgetenv(variableName)) {
        qputenv(name, QByteArray::fromStdString(value));
    }
    ~Variable() { qputenv(name, before); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    const char* const name;
    const QByteArray before;
};

class DefaultPrinter : public testing::Test {
  protected:
    support::TemporaryDirectory home;
    Variable homeVariable{"HOME", home.Path()};
    Variable configVariable{"XDG_CONFIG_HOME", home / "config"};
    Variable spoolerVariable{"CUPS_SERVER", home / "no-spooler"};
};

TEST_F(DefaultPrinter, OnAMachineWithoutOneIsAPdfFileAmongTheDocuments) {
    const std::unique_ptr<PrinterDevice> device = OpenDefaultPrinter("Six of 49 Data Report");
    ASSERT_NE(dynamic_cast<PdfFile*>(device.get()), nullptr);
    device->BeginDocument();
    EXPECT_TRUE(std::filesystem::exists(home / "Documents/Six of 49 Data Report.pdf.new"));
}

TEST_F(DefaultPrinter, IsNotReadyWhereTheDocumentsHaveNoFolder) {
    home.Write("Documents", "a file in its place");
    Printer printer(OpenDefaultPrinter("Six of 49 Data Report"));
    EXPECT_THROW(printer.PrintLine({""}), PrinterFailure);
    EXPECT_EQ(home.Read("Documents"), "a file in its place");
}

}  // namespace
}  // namespace ballhaven::platform
