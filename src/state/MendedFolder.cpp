#include "state/MendedFolder.h"

#include "state/AppState.h"
#include "state/GameRecordColumns.h"

namespace ballhaven {

namespace {

constexpr std::string_view mark = "M";

}  // namespace

bool IsMended(std::string_view systemRecord) {
    return FieldText(systemRecord, systemField::mendedMark) == mark;
}

std::string WithMendedMark(std::string_view systemRecord) {
    std::string record = modUTILS::FixedWidth(systemRecord, gameRecordLength);
    SetField(record, systemField::mendedMark, mark);
    return record;
}

bool FolderIsMended() {
    return IsMended(appState.systemRecord);
}

}  // namespace ballhaven
