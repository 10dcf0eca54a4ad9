#include "data/guarantee/NamedNumbers.h"

#include "data/folder/Refusal.h"
#include "state/AppState.h"
#include "state/PickText.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <set>
#include <string>

namespace ballhaven::data {

namespace {

constexpr std::string_view separators = ", \t";

struct Stretch {
    int first;
    int last;
};

/// The number that a text is from end to end.
std::optional<int> ParsedNumber(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::optional<Stretch> CardsIn(std::string text) {
    const std::string typed = text;
    const bool isLongEnough = typed.size() == 2 || typed.size() == 3;
    const int card = isLongEnough ? TextToCard(text) : 0;
    return CardToText(card) == text && !text.empty() ? std::optional(Stretch{card, card}) : std::nullopt;
}

std::optional<Stretch> NumbersIn(std::string_view text) {
    const std::size_t hyphen = text.find('-');
    const std::optional<int> first = ParsedNumber(text.substr(0, hyphen));
    const std::optional<int> last = hyphen == std::string_view::npos ? first : ParsedNumber(text.substr(hyphen + 1));
    return first && last ? std::optional(Stretch{*first, *last}) : std::nullopt;
}

[[noreturn]] void Refuse(const GameRules& rules, std::string_view text) {
    throw Refusal("\"" + std::string(text) + "\" names no main picks of this game: " +
                  (IsCardGame(rules.gameType) ? "name cards as Ah, 10c, Kd or 2s."
                                              : "name numbers from " + std::to_string(rules.mainLow) + " to " +
                                                    std::to_string(rules.mainHigh) + ", such as 3,7,20-25."));
}

Stretch StretchIn(const GameRules& rules, std::string_view text) {
    const std::optional<Stretch> found = IsCardGame(rules.gameType) ? CardsIn(std::string(text)) : NumbersIn(text);
    if (!found || found->first < rules.mainLow || found->last > rules.mainHigh || found->last < found->first) {
        Refuse(rules, text);
    }
    return *found;
}

}  // namespace

std::vector<int> NamedNumbers(const GameRules& rules, std::string_view text) {
    std::set<int> numbers;
    std::size_t begin = text.find_first_not_of(separators);
    while (begin != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
        const Stretch stretch = StretchIn(rules, text.substr(begin, end - begin));
        for (int number = stretch.first; number <= stretch.last; ++number) {
            numbers.insert(number);
        }
        begin = text.find_first_not_of(separators, end);
    }
    if (numbers.empty()) {
        Refuse(rules, text);
    }
    return {numbers.begin(), numbers.end()};
}

}  // namespace ballhaven::data
