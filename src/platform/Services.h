#pragma once

#include "platform/MessageBox.h"
#include "platform/printing/PrinterDevice.h"

#include <chrono>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ballhaven::platform {

[[nodiscard]] std::string EnglishMonthName(std::chrono::month month);
[[nodiscard]] std::string EnglishShortDayName(std::chrono::weekday day);

/// A random number from 0 up to but not 1, of a source into which the clock has just been stirred.
[[nodiscard]] float DrawByChance();

/// The surroundings that tests replace. The program sets all of them at its start; before that they answer as a
/// machine without a screen would: boxes are answered with Ok or No, and nothing is known of the system.
struct Services {
    std::function<BoxAnswer(const MessageBoxRequest&)> showMessageBox = [](const MessageBoxRequest& request) {
        return request.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
    };

    /// Ends the process at once with an exit code. A test's replacement may return.
    std::function<void(int exitCode)> endProcess;

    /// What the guard runs before the process ends by a failure that leaves draws and plays whole: each saves one file
    /// if it is dirty, and may fail.
    std::vector<std::function<void()>> savesBeforeTheEnd;

    /// What the user is told of a failure that ends the process: what happened, where, and the way out. A failure in
    /// work that only reads has come from counting or drawing, and everything has been saved after it.
    std::function<std::string(const std::exception& failure, bool inReading)> explainFailure =
        [](const std::exception& failure, bool) { return std::string(failure.what()); };

    /// A random number from 0 up to but not 1.
    std::function<float()> drawByChance = DrawByChance;

    std::function<void()> beep = [] {};

    /// Opens the printer, or what stands for it, for a job of a title, such as "Six of 49 Play Slips". Never null:
    /// where there is none, the device is not ready.
    std::function<std::unique_ptr<PrinterDevice>(const std::string& title)> openPrinter = [](const std::string&) {
        return std::make_unique<NoPrinter>();
    };

    /// Folder of the program's executable, with or without a separator at its end.
    std::function<std::string()> executableDirectory = [] { return std::string(); };

    /// The system's own folder of settings, with or without a separator at its end.
    std::function<std::string()> systemDirectory = [] { return std::string(); };

    /// The user's short-date pattern, such as "M/d/yyyy", for which `systemDirectory` may be looked into; empty where
    /// there is none.
    std::function<std::string(const std::string& systemDirectory)> shortDatePattern = [](const std::string&) {
        return std::string();
    };

    /// The current date where the user is.
    std::function<std::chrono::year_month_day()> today = [] {
        return std::chrono::year{1984} / std::chrono::January / 1;
    };

    /// The current time where the user is.
    std::function<std::chrono::local_seconds()> now = [] {
        return std::chrono::local_days{std::chrono::year{1984} / std::chrono::January / 1};
    };

    /// The day with which the user's week begins.
    std::function<std::chrono::weekday()> firstDayOfWeek = [] { return std::chrono::Sunday; };

    /// The names of months, such as "March", and the short ones of days, such as "Mon", in the user's language.
    std::function<std::string(std::chrono::month)> monthName = EnglishMonthName;
    std::function<std::string(std::chrono::weekday)> shortDayName = EnglishShortDayName;

    /// Whether an earlier instance of the program works on the same program folder. Throws std::system_error where the
    /// system does not tell.
    std::function<bool()> earlierInstanceRuns = [] { return false; };

    /// Brings the window of the instance whose application title is given to the front. False where none has answered
    /// in less than three seconds.
    std::function<bool(const std::string& title)> activateApplication = [](const std::string&) { return false; };
};

extern Services services;

}  // namespace ballhaven::platform
