#include "plays/PlaySlips.h"

#include "state/modUTILS.h"

namespace ballhaven {

std::int16_t SlipOfPlay(int play) {
    return modUTILS::ToInt16((play + playsPerSlip - 1) / playsPerSlip);
}

int LineOfPlay(int play) {
    const int line = play % playsPerSlip;
    return line == 0 ? playsPerSlip : line;
}

void PlaySlipLabel(int play, std::string& slipText, std::string& lineLetter) {
    slipText = std::to_string(SlipOfPlay(play)) + ".";
    lineLetter.assign(1, lineLetters[static_cast<std::size_t>(LineOfPlay(play) - 1)]);
}

std::string NameOfPlay(int play) {
    std::string slip;
    std::string line;
    PlaySlipLabel(play, slip, line);
    return slip + line;
}

}  // namespace ballhaven
