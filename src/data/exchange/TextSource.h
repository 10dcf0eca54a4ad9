#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace ballhaven::data {

/// The bytes of a text file, chunk by chunk and without its byte order mark. UTF-16, which only its mark tells, becomes
/// UTF-8; a text of one-byte characters or of UTF-8 stays as it is.
class TextSource {
  public:
    explicit TextSource(std::istream& fileBytes) : bytes(fileBytes) {}

    /// The next chunk, which lives until the one after it is asked for; empty at the end of the text. Throws Refusal
    /// where the file cannot be read, and for a zero, which no text has.
    [[nodiscard]] std::string_view Next();

  private:
    enum class Form { unknown, oneByte, utf16Little, utf16Big };

    [[nodiscard]] std::string_view Fill();
    [[nodiscard]] std::string_view WithoutMark(std::string_view chunk);
    [[nodiscard]] std::string_view Converted(std::string_view chunk);
    void Convert(char16_t unit);

    std::istream& bytes;
    Form form = Form::unknown;
    std::vector<char> buffer;
    std::string converted;
    int halfUnit = -1;            ///< the first byte of a unit of UTF-16 whose second is in the next chunk
    char16_t firstSurrogate = 0;  ///< of a pair whose second is still to come
};

}  // namespace ballhaven::data
