#include "data/exchange/DateForm.h"

#include "data/folder/Refusal.h"
#include "data/folder/ShownText.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace ballhaven::data {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days dayOfSerial0 = year{1984} / std::chrono::January / 1;

constexpr std::string_view separators = "-/., ";
constexpr std::string_view charactersOfTime = "0123456789:.+- APMZapmz";
constexpr std::size_t shortNameLength = 3;
constexpr std::size_t digitsOfYear = 4;
constexpr std::size_t digitsOfWholeDate = 8;

constexpr std::array<std::string_view, 12> monthNames = {"january",   "february", "march",    "april",
                                                         "may",       "june",     "july",     "august",
                                                         "september", "october",  "november", "december"};
constexpr std::array<std::string_view, 7> weekdayNames = {"monday", "tuesday",  "wednesday", "thursday",
                                                          "friday", "saturday", "sunday"};

bool IsDigit(char character) {
    return '0' <= character && character <= '9';
}

bool IsLetter(char character) {
    const char small = modUTILS::LowerCase(character);
    return 'a' <= small && small <= 'z';
}

bool IsBlank(char character) {
    return character == ' ';
}

bool IsSeparator(char character) {
    return separators.find(character) != std::string_view::npos;
}

/// Place of a name, from 0, in full or by its first three letters or more; the length of the list where it is none.
template <std::size_t count>
std::size_t PlaceOf(std::string_view word, const std::array<std::string_view, count>& names) {
    std::string small(word);
    std::ranges::transform(small, small.begin(), modUTILS::LowerCase);
    const auto* const found = std::ranges::find_if(
        names, [&](std::string_view name) { return small.size() >= shortNameLength && name.starts_with(small); });
    return static_cast<std::size_t>(found - names.begin());
}

/// A number or the name of a month in a date.
struct Part {
    int value = 0;
    std::size_t digitCount = 0;  ///< 0 for a name

    [[nodiscard]] bool IsName() const { return digitCount == 0; }
    [[nodiscard]] bool IsYear() const { return digitCount == digitsOfYear; }
};

/// A date before it is known which of its numbers is what.
struct WrittenDate {
    std::array<Part, 3> parts;
    char separator = ' ';  ///< the first character between the first two parts
};

/// Cuts a text to what stands behind its first `count` characters, which it returns.
std::string_view Cut(std::string_view& text, std::size_t count) {
    const std::string_view head = text.substr(0, count);
    text.remove_prefix(head.size());
    return head;
}

/// Cuts off all characters of a kind that the text begins with.
template <typename IsOfKind>
std::string_view CutRun(std::string_view& text, IsOfKind isOfKind) {
    return Cut(text, static_cast<std::size_t>(std::ranges::find_if_not(text, isOfKind) - text.begin()));
}

int Number(std::string_view text) {
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::optional<Part> CutPart(std::string_view& text) {
    if (const std::string_view number = CutRun(text, IsDigit); !number.empty()) {
        const Part part{Number(number), number.size()};
        return part.digitCount <= 2 || part.IsYear() ? std::optional(part) : std::nullopt;
    }
    const std::size_t place = PlaceOf(CutRun(text, IsLetter), monthNames);
    return place < monthNames.size() ? std::optional(Part{static_cast<int>(place) + 1, 0}) : std::nullopt;
}

/// Cuts off an English weekday, or what can be the short name of one in any language.
void CutWeekday(std::string_view& text) {
    std::string_view rest = text;
    const std::string_view word = CutRun(rest, IsLetter);
    const bool isDivided = !CutRun(rest, IsSeparator).empty();
    const bool isShort =
        !word.empty() && word.size() <= shortNameLength && PlaceOf(word, monthNames) == monthNames.size();
    if ((isShort && isDivided) || PlaceOf(word, weekdayNames) < weekdayNames.size()) {
        text = rest;
    }
}

/// Whether nothing follows a date but a point, blanks or a time of day.
bool EndsDate(std::string_view rest) {
    if (rest.starts_with('.')) {
        rest.remove_prefix(1);
    }
    if (rest.find_first_not_of(' ') == std::string_view::npos) {
        return true;
    }
    const char first = Cut(rest, 1).front();
    return (first == 'T' || first == ' ') && rest.find(':') != std::string_view::npos &&
           rest.find_first_not_of(charactersOfTime) == std::string_view::npos;
}

std::optional<WrittenDate> WholeNumberDate(std::string_view text) {
    const std::string_view number = CutRun(text, IsDigit);
    if (number.size() != digitsOfWholeDate || !EndsDate(text)) {
        return std::nullopt;
    }
    return WrittenDate{
        {Part{Number(number.substr(0, 4)), 4}, Part{Number(number.substr(4, 2)), 2}, Part{Number(number.substr(6)), 2}},
        '-'};
}

std::optional<WrittenDate> Written(std::string_view text) {
    CutRun(text, IsBlank);
    CutWeekday(text);
    if (const std::optional<WrittenDate> whole = WholeNumberDate(text)) {
        return whole;
    }
    WrittenDate date;
    for (std::size_t place = 0; place < date.parts.size(); ++place) {
        if (place > 0) {
            const std::string_view separator = CutRun(text, IsSeparator);
            if (separator.empty()) {
                return std::nullopt;
            }
            date.separator = place == 1 ? separator.front() : date.separator;
        }
        const std::optional<Part> part = CutPart(text);
        if (!part) {
            return std::nullopt;
        }
        date.parts[place] = *part;
    }
    return EndsDate(text) ? std::optional(date) : std::nullopt;
}

year_month_day DateOf(const Part& yearPart, const Part& monthPart, const Part& dayPart) {
    return year{yearPart.value} / month{static_cast<unsigned>(monthPart.value)} /
           day{static_cast<unsigned>(dayPart.value)};
}

/// The date where its month has a name: "21 May 2011", "May 21, 2011", "2011 May 21".
std::optional<year_month_day> NamedDate(const std::array<Part, 3>& parts) {
    const auto& [first, second, third] = parts;
    if (first.IsName() && !second.IsName() && !second.IsYear() && third.IsYear()) {
        return DateOf(third, first, second);
    }
    if (second.IsName() && first.IsYear() && !third.IsName() && !third.IsYear()) {
        return DateOf(first, second, third);
    }
    if (second.IsName() && !first.IsName() && !first.IsYear() && third.IsYear()) {
        return DateOf(third, second, first);
    }
    return std::nullopt;
}

bool IsNamed(const WrittenDate& date) {
    return std::ranges::any_of(date.parts, &Part::IsName);
}

bool YearIsFirst(const WrittenDate& date) {
    return !IsNamed(date) && date.parts[0].IsYear() && !date.parts[1].IsYear() && !date.parts[2].IsYear();
}

bool YearIsLast(const WrittenDate& date) {
    return !IsNamed(date) && !date.parts[0].IsYear() && !date.parts[1].IsYear() && date.parts[2].IsYear();
}

std::optional<year_month_day> DateOf(const WrittenDate& date, DateOrder order) {
    const auto& [first, second, third] = date.parts;
    if (IsNamed(date)) {
        return NamedDate(date.parts);
    }
    if (YearIsFirst(date)) {
        return DateOf(first, second, third);
    }
    if (!YearIsLast(date) || order == DateOrder::yearFirst) {
        return std::nullopt;
    }
    return order == DateOrder::monthFirst ? DateOf(third, first, second) : DateOf(third, second, first);
}

}  // namespace

std::string_view NameOf(DateOrder order) {
    switch (order) {
        case DateOrder::monthFirst:
            return "m/d/y";
        case DateOrder::dayFirst:
            return "d.m.y";
        default:
            return "y-m-d";
    }
}

std::optional<DateOrder> OrderNamed(std::string_view name) {
    constexpr std::size_t lengthOfName = 5;
    if (name.size() != lengthOfName || name[1] != name[3] || separators.find(name[1]) == std::string_view::npos) {
        return std::nullopt;
    }
    for (const DateOrder order : {DateOrder::monthFirst, DateOrder::dayFirst, DateOrder::yearFirst}) {
        const std::string_view letters = NameOf(order);
        if (name[0] == letters[0] && name[2] == letters[2] && name[4] == letters[4]) {
            return order;
        }
    }
    return std::nullopt;
}

std::optional<year_month_day> DateIn(std::string_view text, DateOrder order) {
    const std::optional<WrittenDate> written = Written(text);
    return written ? DateOf(*written, order) : std::nullopt;
}

std::optional<int> SerialNamed(std::string_view text) {
    const std::optional<year_month_day> date = DateIn(text, DateOrder::yearFirst);
    return date && date->ok() ? std::optional(SerialOf(*date)) : std::nullopt;
}

int SerialOf(const year_month_day& date) {
    return static_cast<int>((sys_days{date} - dayOfSerial0).count());
}

void DateOrderFinder::Look(std::string_view text, std::int64_t line) {
    const std::optional<WrittenDate> written = Written(text);
    if (written && YearIsFirst(*written)) {
        decided = DateOrder::yearFirst;
    }
    if (!written || !YearIsLast(*written)) {
        return;
    }
    yearStandsLast = true;
    const std::optional<year_month_day> monthFirst = DateOf(*written, DateOrder::monthFirst);
    const std::optional<year_month_day> dayFirst = DateOf(*written, DateOrder::dayFirst);
    if (monthFirst->ok() != dayFirst->ok()) {
        decided = monthFirst->ok() ? DateOrder::monthFirst : DateOrder::dayFirst;
    } else if (monthFirst->ok() && written->separator == '.') {
        decided = DateOrder::dayFirst;
    } else if (monthFirst->ok() && monthFirst != dayFirst && readInTwoWays.empty()) {
        readInTwoWays = Quoted(text) + " in line " + std::to_string(line);
    }
}

DateOrder DateOrderFinder::Order() const {
    if (decided) {
        return *decided;
    }
    if (!readInTwoWays.empty()) {
        throw Refusal("the date " + readInTwoWays +
                      ", as all others, can be read with the day or the month first; say with --dates d.m.y or "
                      "--dates m/d/y which it is");
    }
    return yearStandsLast ? DateOrder::monthFirst : DateOrder::yearFirst;
}

}  // namespace ballhaven::data
