#include "data/exchange/FileForm.h"

#include "data/exchange/CsvText.h"
#include "data/exchange/DrawCheck.h"
#include "data/exchange/PlayExport.h"
#include "data/folder/Refusal.h"

#include <algorithm>
#include <istream>
#include <span>

namespace ballhaven::data {

namespace {

constexpr int recordsToFindADrawIn = 20;
constexpr const char* noDrawInSight =
    "none of its first lines holds a date or a pick in the columns of a draw; choose the right ones with --columns";

bool HasDigit(std::string_view text) {
    return text.find_first_of("0123456789") != std::string_view::npos;
}

std::string_view FieldAt(const Fields& fields, std::size_t place) {
    return place < fields.size() ? fields[place] : std::string_view();
}

std::string_view DateField(const Fields& fields, const DrawColumns& columns) {
    return FieldAt(fields, columns.places.front());
}

/// Whether a record holds a date, if only one that the calendar does not have, or a pick: a line of which nothing may
/// get lost.
bool HoldsSomeOfADraw(const Fields& fields, const DrawColumns& columns, int gameType) {
    const std::string_view date = DateField(fields, columns);
    const auto isPick = [&](std::size_t place) { return PickIn(FieldAt(fields, place), gameType).has_value(); };
    return DateIn(date, DateOrder::monthFirst) || DateIn(date, DateOrder::dayFirst) ||
           std::ranges::any_of(std::span(columns.places).subspan(1), isPick);
}

/// Whether the record that the text stands at is the line that tells a spreadsheet the delimiter.
bool NamesDelimiter(const CsvText& text) {
    return text.Fields().front().starts_with(delimiterMark) && text.Line() == 1;
}

void RefusePlays(const Fields& first) {
    std::string names;
    for (const std::string_view field : std::span(first).first(std::min(first.size(), playColumns))) {
        names.append(names.empty() ? "" : ",").append(field);
    }
    if (names == playColumnNames) {
        throw Refusal("it holds plays, as \"export --plays\" writes them; draws alone can be imported");
    }
}

/// The records from the one at which the text stands to the first draw, `atLeast` of them; none where no draw is in
/// sight.
std::optional<int> RecordsBeforeDraw(CsvText& text, const DrawColumns& columns, int gameType, int atLeast) {
    for (int records = 0; records < recordsToFindADrawIn; ++records) {
        if (records >= atLeast && HoldsSomeOfADraw(text.Fields(), columns, gameType)) {
            return records;
        }
        if (!text.Next()) {
            break;
        }
    }
    return std::nullopt;
}

/// Finds columns and header, from the first record on that does not name the delimiter.
void LookAtHead(FileForm& form, CsvText& text, const GivenForm& given, const GameRules& rules) {
    RefusePlays(text.Fields());
    const bool hasNames = NamesColumns(given.columns);
    form.columns = ChosenColumns(given.columns, TotalPicksOf(rules), hasNames ? text.Fields() : Fields());
    const bool isHeader = given.header.value_or(hasNames || !HasDigit(DateField(text.Fields(), form.columns)));
    const bool isOfThisGame = FaultOfWidth(text.Fields(), form.columns).empty();
    if (given.header == false) {
        return;
    }
    const bool headerIsGiven = hasNames || given.header;
    const std::optional<int> above = RecordsBeforeDraw(text, form.columns, rules.gameType, headerIsGiven ? 1 : 0);
    if (!above && isHeader && !isOfThisGame) {
        throw Refusal(noDrawInSight);
    }
    // Without a draw in sight, line after line is told what keeps it from being one.
    form.recordsAbove += above.value_or(isHeader ? 1 : 0);
}

/// The order of the dates of the draws, by as many of them as it takes to know.
DateOrder OrderOfDates(CsvText& text, const FileForm& form) {
    DateOrderFinder finder;
    for (int record = 0; text.Next() && !finder.IsDecided(); ++record) {
        if (record >= form.recordsAbove) {
            finder.Look(DateField(text.Fields(), form.columns), text.Line());
        }
    }
    return finder.Order();
}

}  // namespace

FileForm RecognisedForm(std::istream& bytes, const GivenForm& given, const GameRules& rules) {
    RequireText(bytes);
    FileForm form;
    form.delimiter = given.delimiter ? *given.delimiter : RecognisedDelimiter(bytes);
    CsvText head(bytes, form.delimiter);
    bool hasRecord = head.Next();
    if (hasRecord && NamesDelimiter(head)) {
        form.recordsAbove = 1;
        hasRecord = head.Next();
    }
    if (!hasRecord) {
        throw Refusal("it holds no draw");
    }
    LookAtHead(form, head, given, rules);
    Rewind(bytes);
    CsvText all(bytes, form.delimiter);
    form.dates = given.dates ? *given.dates : OrderOfDates(all, form);
    Rewind(bytes);
    return form;
}

}  // namespace ballhaven::data
