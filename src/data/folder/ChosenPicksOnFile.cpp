#include "data/folder/ChosenPicksOnFile.h"

#include "data/folder/FolderFiles.h"
#include "state/modUTILS.h"
#include "wheels/ChosenRecord.h"

#include <algorithm>

namespace ballhaven::data {

ChosenPicks ChosenPicksOf(std::string_view content, int slot) {
    ChosenPicks chosen;
    for (const PickColumn list : {mainPicks, bonusPicks}) {
        const auto begin = static_cast<std::size_t>((ChosenRecordOf(slot, list) - 1) * chosenRecordLength);
        const std::string_view record = content.substr(std::min(begin, content.size()), chosenRecordLength);
        DecodeChosenPicks(modUTILS::FixedWidth(record, chosenRecordLength), chosen.Slots(list));
    }
    return chosen;
}

ChosenPicks ReadChosenPicks(const std::string& directory, int slot) {
    return ChosenPicksOf(ReadFolderFile(directory, ChosenPicksFile()).value_or(""), slot);
}

}  // namespace ballhaven::data
