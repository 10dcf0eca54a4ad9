#include "data/exchange/TextSource.h"

#include "data/folder/Refusal.h"
#include "platform/files/CodePage.h"

#include <istream>

namespace ballhaven::data {

namespace {

constexpr std::size_t chunkSize = 16'384;

constexpr std::string_view markOfUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view markOfUtf16Little = "\xFF\xFE";
constexpr std::string_view markOfUtf16Big = "\xFE\xFF";

constexpr char32_t replacement = 0xFFFD;

bool IsFirstSurrogate(char16_t unit) {
    return 0xD800 <= unit && unit <= 0xDBFF;
}

bool IsSecondSurrogate(char16_t unit) {
    return 0xDC00 <= unit && unit <= 0xDFFF;
}

}  // namespace

std::string_view TextSource::Next() {
    // A chunk of nothing but a mark, or of half a character, is not the end of the text.
    while (true) {
        std::string_view chunk = Fill();
        if (chunk.empty()) {
            return {};
        }
        if (form == Form::unknown) {
            chunk = WithoutMark(chunk);
        }
        if (form != Form::oneByte) {
            chunk = Converted(chunk);
        }
        if (chunk.find('\0') != std::string_view::npos) {
            throw Refusal("it holds zeros, so it is no text; save the draws as CSV");
        }
        if (!chunk.empty()) {
            return chunk;
        }
    }
}

std::string_view TextSource::Fill() {
    buffer.resize(chunkSize);
    bytes.read(buffer.data(), static_cast<std::streamsize>(chunkSize));
    if (bytes.bad()) {
        throw Refusal("it cannot be read to its end");
    }
    return {buffer.data(), static_cast<std::size_t>(bytes.gcount())};
}

std::string_view TextSource::WithoutMark(std::string_view chunk) {
    form = Form::oneByte;
    if (chunk.starts_with(markOfUtf8)) {
        return chunk.substr(markOfUtf8.size());
    }
    if (chunk.starts_with(markOfUtf16Little)) {
        form = Form::utf16Little;
        return chunk.substr(markOfUtf16Little.size());
    }
    if (chunk.starts_with(markOfUtf16Big)) {
        form = Form::utf16Big;
        return chunk.substr(markOfUtf16Big.size());
    }
    return chunk;
}

std::string_view TextSource::Converted(std::string_view chunk) {
    converted.clear();
    for (const char each : chunk) {
        const auto byte = static_cast<unsigned char>(each);
        if (halfUnit < 0) {
            halfUnit = byte;
            continue;
        }
        const unsigned unit = form == Form::utf16Big
                                  ? static_cast<unsigned>(halfUnit) << 8U | byte
                                  : static_cast<unsigned>(byte) << 8U | static_cast<unsigned>(halfUnit);
        halfUnit = -1;
        Convert(static_cast<char16_t>(unit));
    }
    return converted;
}

void TextSource::Convert(char16_t unit) {
    if (firstSurrogate != 0) {
        const char16_t first = firstSurrogate;
        firstSurrogate = 0;
        if (IsSecondSurrogate(unit)) {
            platform::AppendUtf8(converted, 0x10000 + ((first - 0xD800U) << 10U) + (unit - 0xDC00U));
            return;
        }
        platform::AppendUtf8(converted, replacement);
    }
    if (IsFirstSurrogate(unit)) {
        firstSurrogate = unit;
    } else {
        platform::AppendUtf8(converted, IsSecondSurrogate(unit) ? replacement : unit);
    }
}

}  // namespace ballhaven::data
