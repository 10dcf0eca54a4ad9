#include "printing/PageHead.h"

#include "platform/Boxes.h"
#include "state/AppState.h"
#include "state/GameRecord.h"
#include "state/modUTILS.h"

#include <functional>
#include <initializer_list>

namespace ballhaven {

namespace {

constexpr const char* reportFont = "Arial";
constexpr double reportFontSize = 12;
constexpr int headColumn = 5;

// QUIRK PAGE-HEAD-COUNT-1: the head takes four lines of the paper and counts as two. The limits of a page are reckoned
// from this count: four would cut each page by one row.
constexpr std::int16_t countedLines = 2;

using Step = std::function<void()>;

/// Goes through steps of the head. A font that cannot be had stops none of them, but leaves its number in `errorCode`;
/// after any other failure, which the user is told of, the result is false.
bool Run(std::initializer_list<Step> steps, std::int16_t& errorCode) {
    for (const Step& step : steps) {
        try {
            step();
        } catch (const platform::PrinterFailure& failure) {
            errorCode = modUTILS::ToInt16(failure.number);
            if (failure.number != platform::noSuchFont) {
                TellNotReady();
                return false;
            }
        }
    }
    return true;
}

}  // namespace

std::string ReportTitle(std::string_view report) {
    return modUTILS::Trimmed(modUTILS::Trimmed(GameName(appState.gameRecord)) + " " + std::string(report));
}

void TellNotReady() {
    platform::Tell("Printer Not Ready.\n\nPlease fix printer and try again.", platform::BoxIcon::Information);
}

void printHeader(platform::Printer& printer, std::int16_t& lineCount, std::int16_t& errorCode) {
    errorCode = 0;
    lineCount = 0;
    std::string fontBefore;
    const bool isReady = Run({[&] { printer.PrintLine({""}); }, [&] { fontBefore = printer.FontName(); },
                              [&] { printer.SetFontName(""); }, [&] { printer.SetFontName(reportFont); }},
                             errorCode);
    if (!isReady) {
        return;
    }
    bool isStyled = false;
    if (errorCode == 0) {
        isStyled = Run({[&] { printer.SetFontSize(reportFontSize); }, [&] { printer.SetBold(false); },
                        [&] { printer.SetItalic(false); }, [&] { printer.SetUnderline(false); }},
                       errorCode);
    } else {
        errorCode = 0;
        isStyled = Run({[&] { printer.SetFontName(fontBefore); }}, errorCode);
    }
    const std::string name = GameName(appState.gameRecord);
    if (isStyled && Run({[&] { printer.PrintLine(); },
                         [&] {
                             printer.PrintLine({platform::ColumnStop{headColumn}, "Ballhaven:  ", name});
                         },
                         [&] { printer.PrintLine(); }},
                        errorCode)) {
        lineCount = countedLines;
    }
}

}  // namespace ballhaven
