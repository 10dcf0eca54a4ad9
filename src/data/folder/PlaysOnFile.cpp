#include "data/folder/PlaysOnFile.h"

#include "data/folder/FolderFiles.h"
#include "plays/PlayRecord.h"
#include "state/modUTILS.h"

namespace ballhaven::data {

PlayPicks PlaysOf(std::string_view content) {
    PlayPicks plays;
    for (int play = 1; play <= playCount; ++play) {
        const std::string_view record = content.substr(0, playRecordLength);
        content.remove_prefix(record.size());
        DecodePlay(modUTILS::FixedWidth(record, playRecordLength), plays, play);
    }
    return plays;
}

PlayPicks ReadPlays(const std::string& directory, int slot) {
    return PlaysOf(ReadFolderFile(directory, PlayFileOf(slot)).value_or(""));
}

}  // namespace ballhaven::data
