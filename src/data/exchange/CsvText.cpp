#include "data/exchange/CsvText.h"

#include "data/folder/Refusal.h"

#include <algorithm>
#include <array>
#include <istream>
#include <map>
#include <tuple>

namespace ballhaven::data {

namespace {

constexpr char quote = '"';
constexpr std::size_t longestRecord = 65'536;
constexpr std::size_t longestPlainRecord = 1024;

struct NamedDelimiter {
    char delimiter;
    std::string_view name;
};

constexpr std::array<NamedDelimiter, 3> usualDelimiters = {{{',', "comma"}, {';', "semicolon"}, {'\t', "tab"}}};
constexpr std::string_view nameOfBlank = "blank";
constexpr int linesToJudgeBy = 20;

bool IsLineEnd(char character) {
    return character == '\n' || character == '\r';
}

constexpr std::array<std::string_view, 2> fixedBlanks = {"\xC2\xA0", "\xE2\x80\xAF"};  // at which no line is broken
constexpr char fixedBlankOfWindows1252 = '\xA0';

bool IsAscii(char character) {
    return static_cast<unsigned char>(character) < 0x80;
}

/// Length of the blank, one at which no line is broken, that a text begins with; 0 for none.
std::size_t FixedBlankAtFront(std::string_view text) {
    if (text.empty() || IsAscii(text.front())) {
        return 0;
    }
    for (const std::string_view blank : fixedBlanks) {
        if (text.starts_with(blank)) {
            return blank.size();
        }
    }
    return text.starts_with(fixedBlankOfWindows1252) ? 1 : 0;
}

/// The same for the one that it ends with.
std::size_t FixedBlankAtEnd(std::string_view text) {
    if (text.empty() || IsAscii(text.back())) {
        return 0;
    }
    for (const std::string_view blank : fixedBlanks) {
        if (text.ends_with(blank)) {
            return blank.size();
        }
    }
    // Behind any other byte it can be a part of a character of UTF-8.
    return text.ends_with(fixedBlankOfWindows1252) && (text.size() == 1 || IsAscii(text[text.size() - 2])) ? 1 : 0;
}

/// How well a delimiter divides the first lines: how many of them have the same number of fields, two at least, and how
/// many fields that are.
struct Division {
    char delimiter = 0;
    int lines = 0;
    std::size_t fields = 0;
    std::optional<Refusal> refusal{};  ///< of the line after them

    [[nodiscard]] bool IsBetterThan(const Division& other) const {
        return std::tie(lines, fields) > std::tie(other.lines, other.fields);
    }
};

Division DivisionBy(std::istream& bytes, char delimiter) {
    Rewind(bytes);
    Division best{.delimiter = delimiter};
    std::map<std::size_t, int> linesOfWidth;
    try {
        CsvText text(bytes, delimiter);
        for (int line = 0; line < linesToJudgeBy && text.Next(); ++line) {
            ++linesOfWidth[text.Fields().size()];
        }
    } catch (const Refusal& refusal) {
        best.refusal = refusal;
    }
    linesOfWidth.erase(1);
    for (const auto& [fields, lines] : linesOfWidth) {
        if (std::tie(lines, fields) > std::tie(best.lines, best.fields)) {
            best.lines = lines;
            best.fields = fields;
        }
    }
    return best;
}

/// The delimiter that the first line names behind its mark.
std::optional<char> DelimiterOfFirstLine(std::istream& bytes) {
    Rewind(bytes);
    TextSource source(bytes);
    const std::string_view head = source.Next();
    const std::size_t place = delimiterMark.size();
    const bool isNamed = head.starts_with(delimiterMark) && head.size() > place + 1 && IsLineEnd(head[place + 1]);
    return isNamed ? DelimiterNamed(head.substr(place, 1)) : std::nullopt;
}

}  // namespace

bool CsvText::Next() {
    while (HasByte()) {
        firstLine = line;
        fields.clear();
        if (!TakePlainRecord()) {
            ReadRecord();
        }
        if (HasText()) {
            return true;
        }
    }
    return false;
}

bool CsvText::HasByte() {
    if (chunk.empty()) {
        chunk = source.Next();
    }
    return !chunk.empty();
}

char CsvText::Take() {
    const char character = chunk.front();
    chunk.remove_prefix(1);
    return character;
}

void CsvText::Keep(std::string_view piece) {
    if (text.size() + ends.size() + piece.size() > longestRecord) {
        throw Refusal("line " + std::to_string(firstLine) + " is longer than " + std::to_string(longestRecord) +
                      " bytes, so it holds no draw; a quote may be missing in it");
    }
    text += piece;
}

void CsvText::AddField(std::string_view field) {
    while (const std::size_t length = BlankAtFront(field)) {
        field.remove_prefix(length);
    }
    while (const std::size_t length = BlankAtEnd(field)) {
        field.remove_suffix(length);
    }
    const bool isBesideADelimiter = field.empty() && delimiter == ' ';
    if (!isBesideADelimiter) {
        fields.push_back(field);
    }
}

std::size_t CsvText::BlankAtFront(std::string_view field) const {
    return !field.empty() && IsBlank(field.front()) ? 1 : FixedBlankAtFront(field);
}

std::size_t CsvText::BlankAtEnd(std::string_view field) const {
    return !field.empty() && IsBlank(field.back()) ? 1 : FixedBlankAtEnd(field);
}

bool CsvText::IsBlank(char character) const {
    return (character == ' ' || character == '\t') && character != delimiter;
}

bool CsvText::EndsField(char character) const {
    return character == delimiter || IsLineEnd(character);
}

/// Takes a record as nearly all are: short, without quotes, and whole in the chunk, where its fields stay. The others
/// are left to `ReadRecord`.
bool CsvText::TakePlainRecord() {
    const std::string_view head = chunk.substr(0, longestPlainRecord);
    const std::size_t end = head.find('\n');
    if (end == std::string_view::npos) {
        return false;
    }
    std::string_view record = head.substr(0, end);
    if (record.ends_with('\r')) {
        record.remove_suffix(1);
    }
    if (record.find(quote) != std::string_view::npos || record.find('\r') != std::string_view::npos) {
        return false;
    }
    std::size_t begin = 0;
    for (std::size_t stop = record.find(delimiter); stop != std::string_view::npos;
         stop = record.find(delimiter, begin)) {
        AddField(record.substr(begin, stop - begin));
        begin = stop + 1;
    }
    AddField(record.substr(begin));
    chunk.remove_prefix(end + 1);
    ++line;
    return true;
}

void CsvText::ReadRecord() {
    text.clear();
    ends.clear();
    for (bool isLast = false; !isLast;) {
        ReadField();
        ends.push_back(text.size());
        isLast = !HasByte() || IsLineEnd(Peek());
        if (!isLast) {
            Take();
            Keep({});
        }
    }
    if (HasByte()) {
        TakeLineEnd();
    }
    std::size_t begin = 0;
    for (const std::size_t end : ends) {
        AddField(std::string_view(text).substr(begin, end - begin));
        begin = end;
    }
}

void CsvText::ReadField() {
    while (HasByte() && IsBlank(Peek())) {
        Take();
    }
    if (HasByte() && Peek() == quote) {
        ReadQuoted();
    }
    while (HasByte() && !EndsField(Peek())) {
        const auto* const end = std::ranges::find_if(chunk, [this](char each) { return EndsField(each); });
        const auto length = static_cast<std::size_t>(end - chunk.begin());
        Keep(chunk.substr(0, length));
        chunk.remove_prefix(length);
    }
}

void CsvText::ReadQuoted() {
    const std::int64_t openedIn = line;
    Take();
    while (HasByte()) {
        if (IsLineEnd(Peek())) {
            TakeLineEnd();
            Keep("\n");
            continue;
        }
        const char character = Take();
        if (character == quote) {
            if (!HasByte() || Peek() != quote) {
                return;
            }
            Take();
        }
        Keep(std::string_view(&character, 1));
    }
    throw Refusal("the quote that opens in line " + std::to_string(openedIn) + " never closes");
}

void CsvText::TakeLineEnd() {
    if (Take() == '\r' && HasByte() && Peek() == '\n') {
        Take();
    }
    ++line;
}

bool CsvText::HasText() const {
    return std::ranges::any_of(fields, [](std::string_view field) { return !field.empty(); });
}

char RecognisedDelimiter(std::istream& bytes) {
    if (const std::optional<char> named = DelimiterOfFirstLine(bytes)) {
        Rewind(bytes);
        return *named;
    }
    // Under a delimiter that is not the text's own a quote can seem to open in the middle of a field: a refusal counts
    // only where no delimiter reads the lines.
    Division best;
    Division bestRefused;
    for (const auto& [delimiter, name] : usualDelimiters) {
        const Division division = DivisionBy(bytes, delimiter);
        Division& bestOfItsKind = division.refusal ? bestRefused : best;
        if (division.IsBetterThan(bestOfItsKind) || (division.refusal && !bestRefused.refusal)) {
            bestOfItsKind = division;
        }
    }
    Rewind(bytes);
    if (best.lines == 0 && bestRefused.refusal) {
        throw Refusal(*bestRefused.refusal);
    }
    if (best.lines == 0) {
        throw Refusal(
            "no comma, semicolon or tab divides its lines into fields; name what does with --delimiter, such as blank");
    }
    return best.delimiter;
}

std::optional<char> DelimiterNamed(std::string_view name) {
    const auto* const usual = std::ranges::find(usualDelimiters, name, &NamedDelimiter::name);
    if (usual != usualDelimiters.end()) {
        return usual->delimiter;
    }
    if (name == nameOfBlank || name == " ") {
        return ' ';
    }
    constexpr std::string_view marks = "!#$%&'()*+,-./:;<=>?@[\\]^_`{|}~";
    return name == "\t" || (name.size() == 1 && marks.find(name.front()) != std::string_view::npos)
               ? std::optional(name.front())
               : std::nullopt;
}

std::string NameOfDelimiter(char delimiter) {
    if (delimiter == ' ') {
        return std::string(nameOfBlank);
    }
    const auto* const usual = std::ranges::find(usualDelimiters, delimiter, &NamedDelimiter::delimiter);
    return usual != usualDelimiters.end() ? std::string(usual->name) : std::string(1, delimiter);
}

void RequireText(std::istream& bytes) {
    Rewind(bytes);
    TextSource source(bytes);
    for (std::string_view chunk = source.Next(); chunk.find_first_not_of(" \t\r\n") == std::string_view::npos;
         chunk = source.Next()) {
        if (chunk.empty()) {
            throw Refusal("it is empty");
        }
    }
    Rewind(bytes);
}

void Rewind(std::istream& bytes) {
    bytes.clear();
    bytes.seekg(0);
}

}  // namespace ballhaven::data
