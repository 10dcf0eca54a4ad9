#include "data/exchange/DrawColumns.h"

#include "data/folder/CountText.h"
#include "data/folder/Refusal.h"
#include "data/folder/ShownText.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <numeric>

namespace ballhaven::data {

namespace {

constexpr std::string_view digits = "0123456789";
constexpr std::size_t mostDigits = 5;

/// The entries of a choice, without the blanks around them.
std::vector<std::string> EntriesOf(std::string_view choice) {
    std::vector<std::string> entries;
    while (true) {
        const std::size_t comma = std::min(choice.find(','), choice.size());
        entries.push_back(modUTILS::Trimmed(choice.substr(0, comma)));
        if (comma == choice.size()) {
            return entries;
        }
        choice.remove_prefix(comma + 1);
    }
}

bool IsNumber(std::string_view text) {
    return !text.empty() && text.size() <= mostDigits && text.find_first_not_of(digits) == std::string_view::npos;
}

/// A number, or two with a hyphen between.
bool IsNumeric(std::string_view entry) {
    const std::size_t hyphen = entry.find('-');
    return hyphen == std::string_view::npos ? IsNumber(entry)
                                            : IsNumber(modUTILS::Trimmed(entry.substr(0, hyphen))) &&
                                                  IsNumber(modUTILS::Trimmed(entry.substr(hyphen + 1)));
}

void AppendNumbered(std::vector<std::size_t>& places, const std::string& entry) {
    const auto value = [](std::string_view text) { return static_cast<std::size_t>(modUTILS::ValueOf(text)); };
    const std::size_t hyphen = entry.find('-');
    const std::size_t first = value(entry);
    const std::size_t last = hyphen == std::string::npos ? first : value(std::string_view(entry).substr(hyphen + 1));
    if (first == 0 || last < first) {
        throw Refusal("there is no column " + entry + " to choose; columns count from 1");
    }
    for (std::size_t number = first; number <= last; ++number) {
        places.push_back(number - 1);
    }
}

/// A name as it is compared.
std::string Plain(std::string_view name) {
    std::string plain = modUTILS::Trimmed(ShownText(name));
    std::ranges::transform(plain, plain.begin(), modUTILS::LowerCase);
    return plain;
}

std::size_t PlaceNamed(const std::string& name, const Fields& header) {
    const auto isIt = [wanted = Plain(name)](std::string_view field) { return Plain(field) == wanted; };
    const auto found = std::ranges::find_if(header, isIt);
    if (found == header.end()) {
        std::string names;
        for (const std::string_view field : header) {
            names += (names.empty() ? "" : ", ") + Quoted(field);
        }
        throw Refusal("its header has no column " + Quoted(name) + "; it has " +
                      (names.empty() ? std::string("no names") : names));
    }
    if (std::any_of(found + 1, header.end(), isIt)) {
        throw Refusal("its header has the column " + Quoted(name) + " twice; choose it by its number");
    }
    return static_cast<std::size_t>(found - header.begin());
}

std::string Counted(std::size_t picks) {
    return "a date and " + CountText(static_cast<std::int64_t>(picks), "pick");
}

}  // namespace

bool NamesColumns(std::string_view choice) {
    return !choice.empty() && !std::ranges::all_of(EntriesOf(choice), IsNumeric);
}

DrawColumns ChosenColumns(std::string_view choice, int picks, const Fields& header) {
    const auto width = static_cast<std::size_t>(picks) + 1;
    if (choice.empty()) {
        std::vector<std::size_t> places(width);
        std::iota(places.begin(), places.end(), 0);
        return {places, false};
    }
    std::vector<std::size_t> places;
    for (const std::string& entry : EntriesOf(choice)) {
        if (IsNumeric(entry)) {
            AppendNumbered(places, entry);
        } else {
            places.push_back(PlaceNamed(entry, header));
        }
    }
    if (places.size() != width) {
        throw Refusal("--columns chooses " + std::to_string(places.size()) + " columns where the game wants " +
                      std::to_string(width) + ", " + Counted(width - 1));
    }
    std::vector<std::size_t> sorted = places;
    std::ranges::sort(sorted);
    if (const auto twice = std::ranges::adjacent_find(sorted); twice != sorted.end()) {
        throw Refusal("--columns chooses column " + std::to_string(*twice + 1) + " twice");
    }
    return {places, true};
}

std::string FaultOfWidth(const Fields& fields, const DrawColumns& columns) {
    const std::size_t needed = std::ranges::max(columns.places) + 1;
    if (fields.size() < needed) {
        return "it has " + CountText(std::ssize(fields), "field") + " where " +
               (columns.passesOthers ? "column " + std::to_string(needed) + " is chosen"
                                     : Counted(needed - 1) + " are " + std::to_string(needed));
    }
    const auto hasText = [](std::string_view field) { return !field.empty(); };
    if (!columns.passesOthers &&
        std::any_of(fields.begin() + static_cast<std::ptrdiff_t>(needed), fields.end(), hasText)) {
        return "it has " + std::to_string(fields.size()) + " fields where " + Counted(needed - 1) + " are " +
               std::to_string(needed) + "; choose the right ones with --columns";
    }
    return {};
}

}  // namespace ballhaven::data
