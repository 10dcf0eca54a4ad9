#include "data/exchange/TextSource.h"

#include "data/folder/Refusal.h"
#include "platform/files/CodePage.h"

#include <istream>

namespace ballhaven::data {

namespace {

constexpr std::size_t chunkSize = 16'384;
constexpr std::size_t longestQuote = 40;

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

void AppendUtf8(std::string& text, char32_t character) {
    const auto byte = [&text](char32_t value) { text += static_cast<char>(static_cast<unsigned char>(value)); };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0 | character >> 6U);
        byte(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        byte(0xE0 | character >> 12U);
        byte(0x80 | (character >> 6U & 0x3F));
        byte(0x80 | (character & 0x3F));
    } else {
        byte(0xF0 | character >> 18U);
        byte(0x80 | (character >> 12U & 0x3F));
        byte(0x80 | (character >> 6U & 0x3F));
        byte(0x80 | (character & 0x3F));
    }
}

/// Bytes that follow the first one of a character of UTF-8; none where no character begins so.
int BytesBehind(unsigned char first) {
    if (first < 0x80) {
        return 0;
    }
    if (0xC2 <= first && first <= 0xDF) {
        return 1;
    }
    if (0xE0 <= first && first <= 0xEF) {
        return 2;
    }
    return 0xF0 <= first && first <= 0xF4 ? 3 : -1;
}

bool IsUtf8(std::string_view text) {
    for (std::size_t place = 0; place < text.size();) {
        const int behind = BytesBehind(static_cast<unsigned char>(text[place++]));
        if (behind < 0) {
            return false;
        }
        for (int i = 0; i < behind; ++i, ++place) {
            if (place == text.size() || (static_cast<unsigned char>(text[place]) & 0xC0U) != 0x80) {
                return false;
            }
        }
    }
    return true;
}

/// Control codes, those of one byte and those that two bytes of UTF-8 make.
std::string WithoutControls(std::string_view text) {
    std::string shown;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const auto byte = static_cast<unsigned char>(text[place]);
        const bool isLongControl =
            byte == 0xC2 && place + 1 < text.size() && static_cast<unsigned char>(text[place + 1]) < 0xA0;
        if (isLongControl) {
            ++place;
        }
        shown += byte < 0x20 || byte == 0x7F || isLongControl ? '?' : text[place];
    }
    return shown;
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
            AppendUtf8(converted, 0x10000 + ((first - 0xD800U) << 10U) + (unit - 0xDC00U));
            return;
        }
        AppendUtf8(converted, replacement);
    }
    if (IsFirstSurrogate(unit)) {
        firstSurrogate = unit;
    } else {
        AppendUtf8(converted, IsSecondSurrogate(unit) ? replacement : unit);
    }
}

std::string ShownText(std::string_view field) {
    if (IsUtf8(field)) {
        return WithoutControls(field);
    }
    std::string text;
    for (const char each : field) {
        AppendUtf8(text, platform::CharacterOfByte(static_cast<unsigned char>(each)));
    }
    return WithoutControls(text);
}

std::string Quoted(std::string_view field) {
    std::string shown = ShownText(field.substr(0, longestQuote));
    return "\"" + shown + (field.size() > longestQuote ? "...\"" : "\"");
}

}  // namespace ballhaven::data
