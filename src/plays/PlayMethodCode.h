#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace ballhaven {

/// How a play was made, or is to be made: entry 0 of a play's main picks, and of the chosen main picks.
enum PlayMethod : std::int16_t { byHand = 0, byShuffle = 1, byPartialWheel = 2, byFullWheel = 3 };

inline constexpr int methodCodeWidth = 2;

/// The codes of the methods in the files, by method; two blanks for a play made by hand.
inline constexpr std::array<std::string_view, 4> methodCodes = {"  ", "SH", "PW", "FW"};

/// The method that two columns of a record stand for; `byHand` for anything that is no code.
[[nodiscard]] constexpr std::int16_t MethodOfCode(std::string_view code) {
    for (const std::int16_t method : {byShuffle, byPartialWheel, byFullWheel}) {
        if (code == methodCodes[static_cast<std::size_t>(method)]) {
            return method;
        }
    }
    return byHand;
}

/// The code of a method; two blanks for any value that is no method.
[[nodiscard]] constexpr std::string_view CodeOfMethod(std::int16_t method) {
    if (method < byShuffle || method > byFullWheel) {
        return methodCodes[byHand];
    }
    return methodCodes[static_cast<std::size_t>(method)];
}

}  // namespace ballhaven
