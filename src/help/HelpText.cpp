#include "help/HelpText.h"

#include "help/AboutText.h"
#include "help/Instructions.h"

#include <span>
#include <string_view>

namespace ballhaven {

namespace {

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
    return {"About Ballhaven", Joined(AboutLines())};
}

}  // namespace ballhaven
