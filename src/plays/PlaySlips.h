#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ballhaven {

inline constexpr int playsPerSlip = 5;

/// The letters of a slip's lines, the first line's first.
inline constexpr std::string_view lineLetters = "ABCDE";

/// The slip, from 1, on which a play (from 1) stands.
[[nodiscard]] std::int16_t SlipOfPlay(int play);

/// The line, 1 to 5, of a play on its slip.
[[nodiscard]] int LineOfPlay(int play);

/// The name of a play in two parts: its slip with a point behind, such as "12.", and its line's letter, "A" to "E".
void PlaySlipLabel(int play, std::string& slipText, std::string& lineLetter);

/// The name in one, such as "12.B".
[[nodiscard]] std::string NameOfPlay(int play);

}  // namespace ballhaven
