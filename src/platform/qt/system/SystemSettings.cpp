#include "platform/qt/system/SystemSettings.h"

#include "platform/qt/widgets/Conversions.h"

#include <QCoreApplication>
#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <QString>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace ballhaven::platform {

namespace {

/// The locale by which the user's system writes dates.
std::string DateLocale() {
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0') {
            return value;
        }
    }
    return {};
}

// Some locales put blanks or invisible marks of the writing direction beside their separators, or a word in quotes
// behind the year. Left there, they would be taken for separators themselves, or for one of the letters, and a word
// would be printed with its quotes.
void LeaveLettersAndSeparators(QString& pattern) {
    static const QRegularExpression word(QStringLiteral("'[^']*'"));
    pattern.remove(word);
    pattern.removeIf([](QChar each) { return each.isSpace() || each.category() == QChar::Other_Format; });
}

bool HasBytes(const QString& text) {
    return ToQString(FromQString(text)) == text;
}

/// Whether all months and days of a language can be written in the program's code page.
bool CanBeWritten(const QLocale& locale) {
    for (int month = 1; month <= 12; ++month) {
        if (!HasBytes(locale.standaloneMonthName(month))) {
            return false;
        }
    }
    for (int day = 1; day <= 7; ++day) {
        if (!HasBytes(locale.dayName(day, QLocale::ShortFormat))) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::string ExecutableDirectory() {
    // A folder's name need not be text in any encoding; the system's own link has its very bytes.
    std::error_code failure;
    const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", failure);
    if (!failure) {
        return executable.parent_path().string();
    }
    return QCoreApplication::applicationDirPath().toLocal8Bit().toStdString();
}

std::string SystemDirectory() {
    return "/";
}

std::string ShortDatePattern(const std::string&) {
    return ShortDatePatternOfLocale(DateLocale());
}

std::string ShortDatePatternOfLocale(const std::string& name) {
    const std::string language = name.substr(0, name.find_first_of(".@"));
    const QLocale locale(QString::fromStdString(language));
    if (language.empty() || language == "POSIX" || locale.language() == QLocale::C) {
        return {};
    }
    QString pattern = locale.dateFormat(QLocale::ShortFormat);
    LeaveLettersAndSeparators(pattern);
    return FromQString(pattern);
}

std::chrono::year_month_day CurrentDate() {
    const QDate current = QDate::currentDate();
    return std::chrono::year{current.year()} / current.month() / current.day();
}

std::chrono::weekday FirstDayOfWeek() {
    return std::chrono::weekday{static_cast<unsigned>(QLocale::system().firstDayOfWeek())};
}

QLocale LocaleOfNames(const QLocale& user) {
    return CanBeWritten(user) ? user : QLocale::c();
}

std::string MonthName(std::chrono::month month) {
    const auto number = static_cast<int>(static_cast<unsigned>(month));
    return FromQString(LocaleOfNames(QLocale::system()).standaloneMonthName(number));
}

std::string ShortDayName(std::chrono::weekday day) {
    const auto number = static_cast<int>(day.iso_encoding());
    return FromQString(LocaleOfNames(QLocale::system()).dayName(number, QLocale::ShortFormat));
}

}  // namespace ballhaven::platform
