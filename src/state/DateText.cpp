#include "state/DateText.h"

#include "platform/Services.h"
#include "state/AppState.h"
#include "state/DateMask.h"
#include "state/DateSerial.h"
#include "state/modUTILS.h"

#include <algorithm>

namespace ballhaven {

std::string ProbeShortDate() {
    return NormalisedDatePattern(platform::services.shortDatePattern(appState.windowsDirectory));
}

void DateToFileText(std::string& text) {
    text = NeutralText(text, appState.shortDateFormat);
}

void DateToSerial(std::string& text) {
    DateToFileText(text);
    const std::optional<std::int16_t> serial = SerialOfNeutral(text);
    // QUIRK DATE-BEFORE-1984-1: a year below 1984, and so every year of two digits, changes nothing: the caller goes on
    // with the date of the call before. Setting 0 here would turn a mistyped year into a row without a date, which
    // counts as empty and loses its picks.
    if (serial) {
        appState.dateSerial = *serial;
        appState.dateWeekday = WeekdayOf(*serial);
    }
}

std::int16_t ReadSerial(std::string text) {
    DateToSerial(text);
    return appState.dateSerial;
}

std::string SerialToDate(std::int16_t serial) {
    appState.monthDays = daysOfMonths;
    return TextOfSerial(serial, appState.shortDateFormat);
}

std::string ShortDate(std::chrono::year_month_day date) {
    std::string mask = platform::services.shortDatePattern(appState.windowsDirectory);
    if (mask.empty()) {
        mask = DateMaskOf(appState.shortDateFormat);
    }
    std::ranges::transform(mask, mask.begin(), modUTILS::LowerCase);
    return FormatDate(date, mask);
}

}  // namespace ballhaven
