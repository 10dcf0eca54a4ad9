#include "state/GameTable.h"

#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/RecordFile.h"
#include "state/modUTILS.h"

#include <string_view>

namespace ballhaven {

namespace {

constexpr int gameTableRecords = 1 + gameSlots;
constexpr int systemRecordNumber = 1;
constexpr std::string_view createdSystemRecord = "01/1/1/000000";

constexpr int lowestCard = 1;
constexpr int highestCard = 52;

RecordFile OpenedGameTable() {
    return {appState.programDirectory + "LOTTOSYS", gameRecordLength, gameTableRecords};
}

int RecordNumberOf(int slot) {
    return slot + 1;
}

void WriteRecord(int record, const std::string& text) {
    RecordFile file = OpenedGameTable();
    file.Write(record, text);
    file.Close();
}

/// The kinds of game that records of the older form tell apart: "N" numbers or "C" cards, with a bonus or without.
struct OlderKind {
    char letter;
    bool hasBonus;
    int gameType;
};

constexpr OlderKind olderKinds[] = {
    {'N', false, 0},
    {'N', true, 1},
    {'C', false, 3},
    {'C', true, 4},
};

const OlderKind* FindOlderKind(const std::string& record) {
    const std::string letter = FieldText(record, gameField::gameType);
    const bool hasBonus = FieldText(record, gameField::bonusPickCount) != "0";
    for (const OlderKind& kind : olderKinds) {
        if (kind.letter == letter[0] && kind.hasBonus == hasBonus) {
            return &kind;
        }
    }
    return nullptr;
}

void ConvertLimits(std::string& record, const OlderKind& kind) {
    if (IsCardGame(kind.gameType)) {
        SetFieldValue(record, gameField::mainLow, lowestCard);
        SetFieldValue(record, gameField::mainHigh, highestCard);
    }
    if (kind.hasBonus) {
        SetField(record, gameField::bonusLow, FieldText(record, gameField::mainLow));
        SetField(record, gameField::bonusHigh, FieldText(record, gameField::mainHigh));
    }
}

/// Brings a history set from the time of sets by fives to one that the selector shows. 995 becomes 1000, written "000".
void ConvertHistorySet(std::string& record) {
    int size = FieldValue(record, gameField::historySet);
    if (size < 1) {
        size = smallestHistorySet;
    }
    if (size % 10 == 5) {
        size += 5;
    }
    SetFieldValue(record, gameField::historySet, size);
}

/// Brings a record of the older form into the current one; one of the current form only gets a digit as its kind.
void ConvertOlderRecord(std::string& record) {
    if (const OlderKind* kind = FindOlderKind(record)) {
        SetFieldValue(record, gameField::gameType, kind->gameType);
        ConvertLimits(record, *kind);
        SetField(record, gameField::olderText, "");
        ConvertHistorySet(record);
    } else {
        SetFieldValue(record, gameField::gameType, FieldValue(record, gameField::gameType));
    }
}

bool HasConversionMark(const std::string& record) {
    const char mark = FieldText(record, gameField::conversion)[0];
    return mark == 'Y' || mark == 'N';
}

/// Column 51 of an older record is a number, which says "Y" where it is above the picks of a draw.
void ConvertMark(std::string& record) {
    const int picks = FieldValue(record, gameField::mainPickCount) + FieldValue(record, gameField::bonusPickCount);
    const RecordField olderNumber{gameField::conversion.first, 1};
    SetField(record, gameField::conversion, FieldValue(record, olderNumber) > picks ? "Y" : "N");
}

bool SaysYes(const std::string& record, RecordField field) {
    return FieldText(record, field) == "Y";
}

std::int16_t HistorySetOf(const std::string& record) {
    if (FieldText(record, gameField::historySet) == "000") {
        return largestHistorySet;
    }
    return FieldValue(record, gameField::historySet);
}

void DecodeLimits(const std::string& record) {
    if (IsCardGame(appState.gameType)) {
        appState.mainLow = appState.bonusLow = lowestCard;
        appState.mainHigh = appState.bonusHigh = highestCard;
        return;
    }
    appState.mainLow = FieldValue(record, gameField::mainLow);
    appState.mainHigh = FieldValue(record, gameField::mainHigh);
    appState.bonusLow = FieldValue(record, gameField::bonusLow);
    appState.bonusHigh = FieldValue(record, gameField::bonusHigh);
}

/// Fills the game variables from a record of the current form.
void DecodeGameRecord(const std::string& record) {
    appState.gameType = FieldValue(record, gameField::gameType);
    appState.historySetSize = HistorySetOf(record);
    appState.mainPickCount = FieldValue(record, gameField::mainPickCount);
    appState.bonusPickCount = FieldValue(record, gameField::bonusPickCount);
    appState.duplicatesAllowed = !IsCardGame(appState.gameType) && SaysYes(record, gameField::duplicates);
    appState.orderMatters = SaysYes(record, gameField::order);
    DecodeLimits(record);

    const int bonusPicksDrawn = HasBonus(appState.gameType) ? appState.bonusPickCount : 0;
    const int picks = appState.mainPickCount + bonusPicksDrawn;
    appState.totalPicks = modUTILS::ToInt16(picks == 0 ? 1 : picks);
}

void ResetSelections() {
    appState.nextLogDate = 0;
    appState.hotSortChoice = 2;
    appState.hotTableChoice = 1;
    appState.currentSlip = 1;
    appState.currentPlay = 1;
}

}  // namespace

void OpenGameTable() {
    RecordFile file = OpenedGameTable();
    // QUIRK GAME-TABLE-ONE-RECORD-1: a table of one record, 64 bytes, counts as empty and is built anew, settings
    // included. Such a table has settings but no slots, as a first start that was cut short leaves it; reading the
    // record and going on would make every slot a blank game without a name.
    if (file.Length() == 0 || file.Length() == gameRecordLength) {
        file.Write(systemRecordNumber, createdSystemRecord);
        for (int slot = 1; slot <= gameSlots; ++slot) {
            file.Write(RecordNumberOf(slot), BuildDefaultGameRecord(slot, 0));
        }
    }
    appState.systemRecord = file.Read(systemRecordNumber);
    file.Close();
}

void SaveSystemRecord() {
    WriteRecord(systemRecordNumber, appState.systemRecord);
}

std::string BuildDefaultGameRecord(int slot, int gameType) {
    const bool hasBonus = HasBonus(gameType);
    std::string record(gameRecordLength, ' ');
    for (const int column : gameField::separators) {
        modUTILS::SetColumns(record, column, "/");
    }
    SetField(record, gameField::slot, std::to_string(slot));
    SetField(record, gameField::name, undefinedGameName);
    SetFieldValue(record, gameField::historySet, smallestHistorySet);
    SetFieldValue(record, gameField::gameType, gameType);
    SetField(record, gameField::mainLow, "1");
    SetField(record, gameField::mainHigh, IsCardGame(gameType) ? "52" : "99");
    SetField(record, gameField::duplicates, "N");
    SetField(record, gameField::order, "N");
    SetField(record, gameField::mainPickCount, hasBonus ? "9" : "10");
    SetField(record, gameField::bonusPickCount, hasBonus ? "1" : "0");
    SetField(record, gameField::conversion, "N");
    SetField(record, gameField::bonusLow, FieldText(record, gameField::mainLow));
    SetField(record, gameField::bonusHigh, FieldText(record, gameField::mainHigh));
    return record;
}

void LoadGameRecord(int slot) {
    appState.gameRecord = ReadGameRecord(slot);
    ConvertOlderRecord(appState.gameRecord);

    // QUIRK LOAD-STORES-UNDER-CURRENT-1: the record is stored under the current game, not under the slot that was
    // asked for. It is meant: adding a game while another one is current gives up the current game's slot, which the
    // list shows as "un-defined" from then on, while its draws and plays stay. A guard, or storing under `slot`, would
    // leave a table in which that slot is still configured.
    SaveGameRecord(appState.currentGame);

    appState.historySortOrder = FieldValue(appState.systemRecord, systemField::sortOrder);
    ResetSelections();
    if (!HasConversionMark(appState.gameRecord)) {
        ConvertMark(appState.gameRecord);
        SaveGameRecord(appState.currentGame);
    }
    DecodeGameRecord(appState.gameRecord);
}

void SaveGameRecord(int slot) {
    WriteRecord(RecordNumberOf(slot), appState.gameRecord);
}

std::string ReadGameRecord(int slot) {
    RecordFile file = OpenedGameTable();
    std::string record = file.Read(RecordNumberOf(slot));
    file.Close();
    return record;
}

std::string GameName(const std::string& record) {
    return FieldText(record, gameField::name);
}

}  // namespace ballhaven
