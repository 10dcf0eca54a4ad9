#pragma once

#include "data/exchange/TextSource.h"

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ballhaven::data {

/// The records of a text whose fields a delimiter divides. A field can stand in quotes, with a quote of its own
/// doubled, and may then hold delimiters and line ends. Lines end in LF, CR LF or CR; those without any text are passed
/// over. No more than one record is ever in memory.
class CsvText {
  public:
    /// Reads from where the stream stands. The delimiter is no quote or line end. Where it is a blank, several of them
    /// are one, and no field is empty.
    CsvText(std::istream& bytes, char fieldDelimiter) : source(bytes), delimiter(fieldDelimiter) {}

    /// Takes the next record; false at the end. Throws Refusal for a record of more than 64 KiB, a quote that never
    /// closes, and what `TextSource` refuses.
    [[nodiscard]] bool Next();

    /// The record's fields, one at least, without the blanks around them; they live until the next record.
    [[nodiscard]] const std::vector<std::string_view>& Fields() const { return fields; }

    /// The line, from 1, in which the record begins.
    [[nodiscard]] std::int64_t Line() const { return firstLine; }

  private:
    [[nodiscard]] bool HasByte();
    [[nodiscard]] char Peek() const { return chunk.front(); }
    char Take();
    void Keep(std::string_view piece);
    void AddField(std::string_view field);
    [[nodiscard]] std::size_t BlankAtFront(std::string_view field) const;
    [[nodiscard]] std::size_t BlankAtEnd(std::string_view field) const;
    [[nodiscard]] bool IsBlank(char character) const;
    [[nodiscard]] bool EndsField(char character) const;

    [[nodiscard]] bool TakePlainRecord();
    void ReadRecord();
    void ReadField();
    void ReadQuoted();
    void TakeLineEnd();
    [[nodiscard]] bool HasText() const;

    TextSource source;
    char delimiter;
    std::string_view chunk;         ///< what is left of the source's last one
    std::string text;               ///< the fields of a record that is no plain one, one behind the other
    std::vector<std::size_t> ends;  ///< where each ends in it
    std::vector<std::string_view> fields;
    std::int64_t line = 1;
    std::int64_t firstLine = 1;
};

/// What a line begins with that tells a spreadsheet the delimiter: "sep=;".
inline constexpr std::string_view delimiterMark = "sep=";

/// The delimiter of a text: the one that its first line names so, else a comma, a semicolon or a tab, whichever most of
/// the first lines agree on. Leaves the stream at its beginning. Throws Refusal where none divides them; where the
/// lines cannot be read with any, as `CsvText` does.
[[nodiscard]] char RecognisedDelimiter(std::istream& bytes);

/// The delimiter with a name: "comma", "semicolon", "tab", "blank", or any character of ASCII itself but letters,
/// digits, quotes and control codes. None for any other text.
[[nodiscard]] std::optional<char> DelimiterNamed(std::string_view name);

/// What a delimiter is called.
[[nodiscard]] std::string NameOfDelimiter(char delimiter);

/// Looks whether a stream holds a text at all. Leaves it at its beginning. Throws Refusal for one of blanks and line
/// ends alone, and as `TextSource` does for the bytes before the first character that is none.
void RequireText(std::istream& bytes);

/// Puts a stream back to its beginning.
void Rewind(std::istream& bytes);

}  // namespace ballhaven::data
