#include "help/AboutText.h"

namespace ballhaven {

namespace {

constexpr std::string_view lines[] = {
    " Ballhaven",
    "  Version 1.5.6  12/02/02",
    "",
    " Keeps the drawings of up to 20 lottery games, shows what came up",
    " most and what did not, and fills in your play slips.",
    "",
    " Ballhaven foretells nothing. It counts what was drawn, and each",
    " drawing is as likely as any other.",
    "",
    " Your data are in the folder of the program. Keep a copy of it.",
    "",
    " Copyright (c) 2026 The Ballhaven developers",
    " This is free software under the MIT License. It comes without",
    " warranty of any kind.",
    "",
};

}  // namespace

std::span<const std::string_view> AboutLines() {
    return lines;
}

}  // namespace ballhaven
