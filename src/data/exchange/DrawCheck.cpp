#include "data/exchange/DrawCheck.h"

#include "data/folder/IsoDate.h"
#include "data/folder/ShownText.h"
#include "state/AppState.h"
#include "state/PickText.h"

#include <algorithm>
#include <charconv>
#include <span>

namespace ballhaven::data {

namespace {

constexpr std::size_t longestPick = 3;  // "10h"
constexpr int lastDateOfProgram = LastDateOf(DateDigits::Five);

/// Whether a pick, from 0, of a draw is a bonus pick.
bool IsBonus(const GameRules& rules, std::size_t pick) {
    return HasBonus(rules.gameType) && pick >= static_cast<std::size_t>(rules.mainPickCount);
}

/// What is wrong with a date by its serial, to follow its text.
std::string FaultOfSerial(int serial, int lastDate) {
    if (serial <= 0) {
        return " is before " + IsoDate(1) + ", the first date that the program keeps";
    }
    if (serial > lastDateOfProgram) {
        return " is after " + IsoDate(lastDateOfProgram) + ", the last date that the program keeps";
    }
    if (serial > lastDate) {
        return " is after " + IsoDate(lastDate) +
               ", the last date that this folder keeps; mend the folder first (ballhaven-data mend)";
    }
    return {};
}

/// Puts the date of a field into a draw, or returns what is wrong with it.
std::string TakeDate(DrawOnFile& draw, std::string_view field, DateOrder dates, int lastDate) {
    const std::optional<std::chrono::year_month_day> date = DateIn(field, dates);
    if (!date) {
        return Quoted(field) + " is no date of the form " + std::string(NameOf(dates)) +
               ", with four digits of the year";
    }
    if (!date->ok()) {
        return Quoted(field) + " is no day of the calendar" +
               (dates == DateOrder::yearFirst ? "" : " with dates " + std::string(NameOf(dates)));
    }
    const int serial = SerialOf(*date);
    if (const std::string fault = FaultOfSerial(serial, lastDate); !fault.empty()) {
        return Quoted(field) + fault;
    }
    draw.date = static_cast<std::int16_t>(serial);
    return {};
}

std::string FaultOfPick(const GameRules& rules, std::size_t pick, std::int16_t value) {
    const bool isBonus = IsBonus(rules, pick);
    const int low = isBonus ? rules.bonusLow : rules.mainLow;
    const int high = isBonus ? rules.bonusHigh : rules.mainHigh;
    if (low <= value && value <= high) {
        return {};
    }
    return std::to_string(value) + " is no " + (isBonus ? "bonus" : "main") + " pick of " + std::to_string(low) +
           " to " + std::to_string(high);
}

/// The first value of picks, empty cells apart, that stands among them twice; -1 for none.
std::int16_t FirstTwice(std::span<const std::int16_t> picks) {
    for (std::size_t pick = 0; pick < picks.size(); ++pick) {
        const auto behind = picks.subspan(pick + 1);
        if (picks[pick] >= 0 && std::ranges::find(behind, picks[pick]) != behind.end()) {
            return picks[pick];
        }
    }
    return -1;
}

std::string FaultOfRepeats(const GameRules& rules, const std::vector<std::int16_t>& picks) {
    if (rules.duplicatesAllowed) {
        return {};
    }
    // A pool of their own lets the bonus picks repeat what the main picks have.
    const std::span<const std::int16_t> all(picks);
    const std::size_t mains = BonusComesFromOwnPool(rules.gameType)
                                  ? std::min(static_cast<std::size_t>(rules.mainPickCount), picks.size())
                                  : picks.size();
    const std::int16_t twice = std::max(FirstTwice(all.first(mains)), FirstTwice(all.subspan(mains)));
    return twice < 0 ? std::string() : PickToText(twice, rules.gameType) + " stands twice in the draw";
}

}  // namespace

std::optional<std::int16_t> PickIn(std::string_view text, int gameType) {
    if (text.empty() || text.size() > longestPick) {
        return std::nullopt;
    }
    std::int16_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size() && text.front() != '-') {
        return number;
    }
    // The routine for cards checks no rank and wants no suit: only what turns back into the same text is a card.
    std::string card(text);
    const std::int16_t value = IsCardGame(gameType) ? TextToCard(card) : std::int16_t{0};
    return value > 0 && CardToText(value) == card ? std::optional(value) : std::nullopt;
}

CheckedDraw CheckDraw(const Fields& fields, const DrawColumns& columns, DateOrder dates, const GameRules& rules,
                      int lastDate) {
    CheckedDraw checked;
    checked.draw.picks.reserve(columns.places.size());
    checked.fault = FaultOfWidth(fields, columns);
    if (checked.fault.empty()) {
        checked.fault = TakeDate(checked.draw, fields[columns.places.front()], dates, lastDate);
    }
    for (std::size_t pick = 0; pick + 1 < columns.places.size() && checked.fault.empty(); ++pick) {
        const std::string_view field = fields[columns.places[pick + 1]];
        if (field.empty()) {
            checked.draw.picks.push_back(-1);
            continue;
        }
        const std::optional<std::int16_t> value = PickIn(field, rules.gameType);
        if (value) {
            checked.draw.picks.push_back(*value);
            checked.fault = FaultOfPick(rules, pick, *value);
        } else {
            checked.fault = Quoted(field) + " is no " + (IsCardGame(rules.gameType) ? "card" : "number");
        }
    }
    if (checked.fault.empty()) {
        checked.fault = FaultOfRepeats(rules, checked.draw.picks);
    }
    return checked;
}

}  // namespace ballhaven::data
