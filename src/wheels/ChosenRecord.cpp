#include "wheels/ChosenRecord.h"

#include "state/modUTILS.h"

namespace ballhaven {

int ChosenRecordOf(int slot, PickColumn list) {
    return list == mainPicks ? slot : gameSlots + slot;
}

void DecodeChosenPicks(std::string_view record, std::span<std::int16_t> slots) {
    auto slot = slots.begin();
    for (int pick = 1; pick <= chosenPicks; ++pick) {
        const std::int16_t cell = modUTILS::PickOfField(FieldText(record, chosenField::Pick(pick)));
        if (cell > -1) {
            *slot++ = cell;
        }
    }
}

std::string EncodeChosenPicks(std::span<const std::int16_t> slots) {
    std::string record(static_cast<std::size_t>(chosenRecordLength), ' ');
    int pick = 1;
    for (const std::int16_t cell : slots) {
        if (cell != -1) {
            // QUIRK PICK-TWO-DIGITS-1: of a cell number above 99 its first two digits are stored, as in the plays.
            SetField(record, chosenField::Pick(pick++), std::to_string(cell));
        }
    }
    return record;
}

}  // namespace ballhaven
