#include "plays/PlayRecord.h"

#include "plays/PickSlots.h"
#include "plays/PlayMethodCode.h"
#include "state/modUTILS.h"

#include <cstddef>

namespace ballhaven {

namespace {

// A play's record: its method in columns 1-2, then the main picks from column 6 on and the bonus picks from column 36
// on, each in two columns behind a blank.
constexpr int methodColumn = 1;
constexpr std::size_t pickWidth = 2;

const std::string emptyRecord(playRecordLength, ' ');

constexpr int PickFieldColumn(int pickColumn, int slot) {
    return 3 * (pickColumn * picksPerPlay + slot) + 3;
}

}  // namespace

void DecodePlay(std::string_view record, PlayPicks& plays, int play) {
    if (record == emptyRecord) {  // as most are
        EmptyPlay(plays, play);
        return;
    }
    plays(mainPicks, play, 0) = MethodOfCode(record.substr(methodColumn - 1, methodCodeWidth));
    for (const int pickColumn : {mainPicks, bonusPicks}) {
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            const auto start = static_cast<std::size_t>(PickFieldColumn(pickColumn, slot) - 1);
            plays(pickColumn, play, slot) = modUTILS::PickOfField(record.substr(start, pickWidth));
        }
    }
}

std::string EncodePlay(const PlayPicks& plays, int play) {
    std::string record(static_cast<std::size_t>(playRecordLength), ' ');
    modUTILS::SetColumns(record, methodColumn, CodeOfMethod(plays(mainPicks, play, 0)));
    for (const int pickColumn : {mainPicks, bonusPicks}) {
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            const std::int16_t pick = plays(pickColumn, play, slot);
            if (pick >= 0) {
                // QUIRK PICK-TWO-DIGITS-1: of a cell number above 99 its first two digits are stored, so the last cells
                // of a board where numbers can repeat come back as cell 10. A wider field would make files that other
                // copies of the program read wrongly.
                modUTILS::SetColumns(record, PickFieldColumn(pickColumn, slot), modUTILS::PickField(pick));
            }
        }
    }
    return record;
}

}  // namespace ballhaven
