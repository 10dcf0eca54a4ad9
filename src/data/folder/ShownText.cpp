#include "data/folder/ShownText.h"

#include "platform/files/CodePage.h"

namespace ballhaven::data {

namespace {

constexpr std::size_t longestQuote = 40;

bool ContinuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
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
            if (place == text.size() || !ContinuesCharacter(text[place])) {
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

std::string ShownText(std::string_view text) {
    return IsUtf8(text) ? WithoutControls(text) : ShownWindows1252(text);
}

std::string ShownWindows1252(std::string_view text) {
    return WithoutControls(platform::ToUtf8(text));
}

std::string Quoted(std::string_view text) {
    std::string shown = ShownText(text);
    if (shown.size() <= longestQuote) {
        return "\"" + shown + "\"";
    }
    std::size_t end = longestQuote;
    while (end > 0 && ContinuesCharacter(shown[end])) {
        --end;
    }
    return std::string("\"").append(shown, 0, end).append("...\"");
}

}  // namespace ballhaven::data
