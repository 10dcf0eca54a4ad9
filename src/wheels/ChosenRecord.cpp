#include "wheels/ChosenRecord.h"

#include "state/modUTILS.h"

namespace ballhaven {

namespace {

// A list's record: pick i in the two columns from 3 * i - 2 on, with a blank behind it.
constexpr int pickWidth = 2;
constexpr int pickStride = 3;

}  // namespace

int ChosenRecordOf(int slot, PickColumn list) {
    return list == mainPicks ? slot : gameSlots + slot;
}

void DecodeChosenPicks(std::string_view record, std::span<std::int16_t> slots) {
    auto slot = slots.begin();
    for (int field = 0; field < chosenPicks; ++field) {
        const std::int16_t pick = modUTILS::PickOfField(modUTILS::Columns(record, pickStride * field + 1, pickWidth));
        if (pick > -1) {
            *slot++ = pick;
        }
    }
}

std::string EncodeChosenPicks(std::span<const std::int16_t> slots) {
    std::string record(static_cast<std::size_t>(chosenRecordLength), ' ');
    int column = 1;
    for (const std::int16_t pick : slots) {
        if (pick != -1) {
            // QUIRK PICK-TWO-DIGITS-1: of a cell number above 99 its first two digits are stored, as in the plays.
            modUTILS::SetColumns(record, column, modUTILS::FixedWidth(std::to_string(pick), pickWidth));
            column += pickStride;
        }
    }
    return record;
}

}  // namespace ballhaven
