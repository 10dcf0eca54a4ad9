#include "data/exchange/FileForm.h"

#include "data/exchange/CsvText.h"
#include "data/folder/Refusal.h"

#include <algorithm>
#include <istream>

namespace ballhaven::data {

namespace {

bool HasDigit(std::string_view text) {
    return text.find_first_of("0123456789") != std::string_view::npos;
}

std::string_view DateField(const Fields& fields, const DrawColumns& columns) {
    const std::size_t place = columns.places.front();
    return place < fields.size() ? fields[place] : std::string_view();
}

/// Whether the first line of a file names its columns.
bool HasHeader(const Fields& first, const GivenForm& given, int picks) {
    if (given.header || NamesColumns(given.columns)) {
        return given.header.value_or(true);
    }
    return !HasDigit(DateField(first, ChosenColumns(given.columns, picks, {})));
}

/// The order of the dates in this record and in those that follow it, as far as it takes to know.
DateOrder OrderOfDates(CsvText& text, const DrawColumns& columns, bool passesFirst) {
    DateOrderFinder finder;
    bool hasDraw = !passesFirst || text.Next();
    if (!hasDraw) {
        throw Refusal("it holds a header and no draw");
    }
    while (hasDraw && !finder.IsDecided()) {
        finder.Look(DateField(text.Fields(), columns), text.Line());
        hasDraw = text.Next();
    }
    return finder.Order();
}

}  // namespace

FileForm RecognisedForm(std::istream& bytes, const GivenForm& given, int picks) {
    FileForm form;
    form.delimiter = given.delimiter ? *given.delimiter : RecognisedDelimiter(bytes);
    CsvText text(bytes, form.delimiter);
    if (!text.Next()) {
        throw Refusal("it holds no draw");
    }
    form.hasHeader = HasHeader(text.Fields(), given, picks);
    form.columns = ChosenColumns(given.columns, picks, form.hasHeader ? text.Fields() : Fields());
    form.dates = given.dates ? *given.dates : OrderOfDates(text, form.columns, form.hasHeader);
    Rewind(bytes);
    return form;
}

}  // namespace ballhaven::data
