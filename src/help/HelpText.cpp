#include "help/HelpText.h"

#include "help/Instructions.h"

#include <span>
#include <string_view>

namespace ballhaven {

namespace {

constexpr std::int16_t instructionsTopic = 0;

constexpr std::string_view aboutLines[] = {
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

std::string Joined(std::span<const std::string_view> lines) {
    std::string text;
    for (const std::string_view line : lines) {
        text.append(line).append("\r\n");
    }
    return text;
}

}  // namespace

HelpText HelpOf(std::int16_t topic) {
    if (topic == instructionsTopic) {
        return {"Ballhaven Instructions", Joined(InstructionLines())};
    }
    return {"About Ballhaven", Joined(aboutLines)};
}

}  // namespace ballhaven
