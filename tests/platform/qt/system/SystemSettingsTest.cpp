#include "platform/qt/system/SystemSettings.h"

#include "state/DateSerial.h"

#include <QLocale>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>

namespace ballhaven::platform {
namespace {

/// Gives variables of the environment other values for as long as it lives.
class LocaleVariables {
  public:
    LocaleVariables(const char* all, const char* time, const char* language) {
        Set(0, all);
        Set(1, time);
        Set(2, language);
    }
    ~LocaleVariables() {
        for (int index = 0; index < 3; ++index) {
            if (before[index]) {
                setenv(names[index], before[index]->c_str(), 1);
            } else {
                unsetenv(names[index]);
            }
        }
    }
    LocaleVariables(const LocaleVariables&) = delete;
    LocaleVariables& operator=(const LocaleVariables&) = delete;

  private:
    void Set(int index, const char* value) {
        if (const char* const old = std::getenv(names[index])) {
            before[index] = old;
        }
        setenv(names[index], value, 1);
    }

    const char* const names[3] = {"LC_ALL", "LC_TIME", "LANG"};
    std::optional<std::string> before[3];
};

TEST(SystemSettings, AnAmericanDatePutsTheMonthFirst) {
    EXPECT_EQ(ShortDatePatternOfLocale("en_US.UTF-8"), "M/d/yy");
}

TEST(SystemSettings, AGermanDateHasPoints) {
    EXPECT_EQ(ShortDatePatternOfLocale("de_DE.UTF-8"), "dd.MM.yy");
    EXPECT_EQ(ShortDatePatternOfLocale("de_DE@euro"), "dd.MM.yy");
}

TEST(SystemSettings, BlanksAndInvisibleMarksBesideTheSeparatorsAreTakenOut) {
    EXPECT_EQ(ShortDatePatternOfLocale("hu_HU.UTF-8"), "yyyy.MM.dd.");
    EXPECT_EQ(ShortDatePatternOfLocale("ko_KR.UTF-8"), "yy.M.d.");
    EXPECT_EQ(ShortDatePatternOfLocale("ar_EG.UTF-8"), "d/M/yyyy");
}

TEST(SystemSettings, AWordInADateIsTakenOut) {
    EXPECT_EQ(ShortDatePatternOfLocale("bg_BG.UTF-8"), "d.MM.yy.");
}

TEST(SystemSettings, EveryLocaleGivesAnOrderOfMonthDayAndYear) {
    const auto locales = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    ASSERT_GT(locales.size(), 100);
    for (const QLocale& locale : locales) {
        const std::string name = locale.name().toStdString();
        const std::string order = NormalisedDatePattern(ShortDatePatternOfLocale(name));
        std::string letters{order[0], order[2], order[4]};
        std::ranges::sort(letters);
        EXPECT_EQ(letters, "dmy") << name << " has " << order;
    }
}

TEST(SystemSettings, ALocaleWithoutALanguageHasNoPattern) {
    for (const char* name : {"", "C", "C.UTF-8", "POSIX"}) {
        EXPECT_EQ(ShortDatePatternOfLocale(name), "") << name;
    }
}

TEST(SystemSettings, TheLocaleOfDatesComesBeforeTheLanguageAndTheOneForAllBeforeBoth) {
    {
        const LocaleVariables variables("", "", "en_US.UTF-8");
        EXPECT_EQ(ShortDatePattern(""), "M/d/yy");
    }
    {
        const LocaleVariables variables("", "de_DE.UTF-8", "en_US.UTF-8");
        EXPECT_EQ(ShortDatePattern(""), "dd.MM.yy");
    }
    {
        const LocaleVariables variables("C", "de_DE.UTF-8", "en_US.UTF-8");
        EXPECT_EQ(ShortDatePattern(""), "");
    }
}

TEST(SystemSettings, TheExecutablesFolderCanBeOpened) {
    EXPECT_TRUE(std::filesystem::is_directory(ExecutableDirectory()));
}

TEST(SystemSettings, TheSystemsFolderEndsInItsSeparator) {
    EXPECT_EQ(SystemDirectory(), "/");
}

/// The date in the user's time zone by the standard library.
std::chrono::year_month_day LocalDate() {
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
    return std::chrono::year{local.tm_year + 1900} / (local.tm_mon + 1) / local.tm_mday;
}

TEST(SystemSettings, TheCurrentDateIsTheOneOfTheUsersTimeZone) {
    const std::chrono::year_month_day before = LocalDate();
    const std::chrono::year_month_day current = CurrentDate();
    EXPECT_TRUE(current == before || current == LocalDate()) << "at midnight the date changes meanwhile";
}

TEST(SystemSettings, MonthsDaysAndTheFirstDayOfTheWeekComeFromTheUsersLocale) {
    const QLocale locale = LocaleOfNames(QLocale::system());
    EXPECT_EQ(QString::fromStdString(MonthName(std::chrono::May)), locale.standaloneMonthName(5));
    EXPECT_EQ(QString::fromStdString(ShortDayName(std::chrono::Sunday)), locale.dayName(7, QLocale::ShortFormat));
    EXPECT_EQ(static_cast<int>(FirstDayOfWeek().iso_encoding()), static_cast<int>(QLocale::system().firstDayOfWeek()));
}

TEST(SystemSettings, MonthsAndDaysOutsideTheCodePageAreEnglish) {
    for (const char* name : {"ru_RU", "pl_PL", "el_GR", "ja_JP"}) {
        EXPECT_EQ(LocaleOfNames(QLocale(QLatin1String(name))).standaloneMonthName(3), QStringLiteral("March")) << name;
    }
    EXPECT_EQ(LocaleOfNames(QLocale(QStringLiteral("de_DE"))).standaloneMonthName(3), QString::fromUtf8("M\xC3\xA4rz"));
    EXPECT_EQ(LocaleOfNames(QLocale(QStringLiteral("fr_FR"))).standaloneMonthName(8), QString::fromUtf8("ao\xC3\xBBt"));
}

}  // namespace
}  // namespace ballhaven::platform
