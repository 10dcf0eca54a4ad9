#include "plays/PlayRecord.h"

#include "plays/PickSlots.h"
#include "state/modUTILS.h"

#include <cstddef>

namespace ballhaven {

namespace {

const std::string emptyRecord(playRecordLength, ' ');

/// The text of a field of a record at its full length, without a copy of it.
std::string_view TextIn(std::string_view record, RecordField field) {
    return record.substr(static_cast<std::size_t>(field.first - 1), static_cast<std::size_t>(field.width));
}

}  // namespace

std::string PlayFileName(int slot) {
    return "PLAYS" + modUTILS::ZeroPadded(slot, 2) + ".CDB";
}

void DecodePlay(std::string_view record, PlayPicks& plays, int play) {
    if (record == emptyRecord) {  // as most are
        EmptyPlay(plays, play);
        return;
    }
    plays(mainPicks, play, 0) = MethodOfCode(TextIn(record, playField::method));
    for (const PickColumn list : {mainPicks, bonusPicks}) {
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            plays(list, play, slot) = modUTILS::PickOfField(TextIn(record, playField::Pick(list, slot)));
        }
    }
}

std::string EncodePlay(const PlayPicks& plays, int play) {
    std::string record(static_cast<std::size_t>(playRecordLength), ' ');
    SetField(record, playField::method, CodeOfMethod(plays(mainPicks, play, 0)));
    for (const PickColumn list : {mainPicks, bonusPicks}) {
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            const std::int16_t pick = plays(list, play, slot);
            if (pick >= 0) {
                // QUIRK PICK-TWO-DIGITS-1: of a cell number above 99 its first two digits are stored, so the last cells
                // of a board where numbers can repeat come back as cell 10. A wider field would make files that other
                // copies of the program read wrongly.
                SetField(record, playField::Pick(list, slot), modUTILS::PickField(pick));
            }
        }
    }
    return record;
}

}  // namespace ballhaven
