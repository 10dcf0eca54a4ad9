#include "platform/qt/printing/Spooler.h"

#include "platform/printing/Printer.h"

#include <QString>
#include <gtest/gtest.h>

#include <memory>

namespace ballhaven::platform {
namespace {

TEST(Spooler, APrinterThatTheSystemDoesNotKnowIsNotReady) {
    Printer printer(std::make_unique<Spooler>("Six of 49 Data Report", QStringLiteral("no such printer")));
    EXPECT_THROW(printer.PrintLine({""}), PrinterFailure);
}

TEST(Spooler, ItsMeasuresAreThereBeforeTheFirstLine) {
    const Spooler spooler("Six of 49 Data Report", QStringLiteral("no such printer"));
    EXPECT_GT(spooler.PageWidth(), 7 * 1440);
    EXPECT_GT(spooler.PageHeight(), 10 * 1440);
    EXPECT_GT(spooler.CharacterWidth(), 50);
}

}  // namespace
}  // namespace ballhaven::platform
