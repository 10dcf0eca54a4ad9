#include "platform/files/CodePage.h"

#include <algorithm>
#include <array>

namespace ballhaven::platform {

namespace {

constexpr unsigned char firstOwn = 0x80;

// Bytes 0x80 to 0x9F; all others are the character of the same number.
constexpr std::array<char16_t, 32> ownCharacters{
    u'\u20AC', 0x0081,    u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',  // 80
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', 0x008D,    u'\u017D', 0x008F,     // 88
    0x0090,    u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',  // 90
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', 0x009D,    u'\u017E', u'\u0178',  // 98
};

bool IsOwn(unsigned char byte) {
    return byte >= firstOwn && byte < firstOwn + ownCharacters.size();
}

char ByteOfCharacter(char16_t character) {
    const auto* const found = std::ranges::find(ownCharacters, character);
    if (found != ownCharacters.end()) {
        return static_cast<char>(firstOwn + (found - ownCharacters.begin()));
    }
    if (character <= 0xFF && !IsOwn(static_cast<unsigned char>(character))) {
        return static_cast<char>(character);
    }
    return '?';
}

bool IsSecondHalf(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

}  // namespace

char16_t CharacterOfByte(unsigned char byte) {
    return IsOwn(byte) ? ownCharacters[static_cast<std::size_t>(byte - firstOwn)] : byte;
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

std::u16string ToUtf16(std::string_view text) {
    std::u16string characters;
    characters.reserve(text.size());
    for (const char each : text) {
        characters.push_back(CharacterOfByte(static_cast<unsigned char>(each)));
    }
    return characters;
}

std::string ToUtf8(std::string_view text) {
    std::string bytes;
    for (const char each : text) {
        AppendUtf8(bytes, CharacterOfByte(static_cast<unsigned char>(each)));
    }
    return bytes;
}

std::string FromUtf16(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t unit : text) {
        // A character of two units becomes one "?", for its first half.
        if (!IsSecondHalf(unit)) {
            bytes.push_back(ByteOfCharacter(unit));
        }
    }
    return bytes;
}

}  // namespace ballhaven::platform
