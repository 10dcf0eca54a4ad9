#pragma once

#include <string>
#include <string_view>

namespace ballhaven::platform {

/// The character of a byte of Windows-1252. The five bytes without a character there stand for the control codes of
/// the same number, so that every byte has a character of its own.
[[nodiscard]] char16_t CharacterOfByte(unsigned char byte);

/// Puts a character behind a text in UTF-8.
void AppendUtf8(std::string& text, char32_t character);

/// Text in Windows-1252 as UTF-16.
[[nodiscard]] std::u16string ToUtf16(std::string_view text);

/// Text in Windows-1252 as UTF-8.
[[nodiscard]] std::string ToUtf8(std::string_view text);

/// UTF-16 as text in Windows-1252; a character that has no byte there becomes "?".
[[nodiscard]] std::string FromUtf16(std::u16string_view text);

}  // namespace ballhaven::platform
