#include "state/GameRecord.h"

#include "state/AppState.h"
#include "state/GameRecordColumns.h"
#include "state/modUTILS.h"

namespace ballhaven {

namespace {

constexpr int lowestCard = 1;
constexpr int highestCard = 52;

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

bool SaysYes(const std::string& record, RecordField field) {
    return FieldText(record, field) == "Y";
}

void SetLimits(GameRules& rules, const std::string& record) {
    if (IsCardGame(rules.gameType)) {
        rules.mainLow = rules.bonusLow = lowestCard;
        rules.mainHigh = rules.bonusHigh = highestCard;
        return;
    }
    rules.mainLow = FieldValue(record, gameField::mainLow);
    rules.mainHigh = FieldValue(record, gameField::mainHigh);
    rules.bonusLow = FieldValue(record, gameField::bonusLow);
    rules.bonusHigh = FieldValue(record, gameField::bonusHigh);
}

}  // namespace

std::string NewSystemRecord() {
    return modUTILS::FixedWidth("01/1/1/000000", gameRecordLength);
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

std::string GameName(const std::string& record) {
    return FieldText(record, gameField::name);
}

bool IsUndefinedName(const std::string& name) {
    return modUTILS::Trimmed(name) == undefinedGameName;
}

bool CountsAsFree(const std::string& record) {
    // QUIRK UNDEFINED-NAME-1: a game whose name begins with "un-defined" counts as a free slot, and its name is not
    // offered for alteration. Files rest on it: comparing all 20 columns would take other slots of theirs for games.
    return GameName(record).starts_with(undefinedGameName);
}

std::string InPresentForm(std::string record) {
    if (const OlderKind* kind = FindOlderKind(record)) {
        SetFieldValue(record, gameField::gameType, kind->gameType);
        ConvertLimits(record, *kind);
        SetField(record, gameField::olderText, "");
        ConvertHistorySet(record);
    } else {
        SetFieldValue(record, gameField::gameType, FieldValue(record, gameField::gameType));
    }
    return record;
}

bool HasConversionMark(const std::string& record) {
    const char mark = FieldText(record, gameField::conversion)[0];
    return mark == 'Y' || mark == 'N';
}

std::string WithConversionMark(std::string record) {
    const int picks = FieldValue(record, gameField::mainPickCount) + FieldValue(record, gameField::bonusPickCount);
    const RecordField olderNumber{gameField::conversion.first, 1};
    SetField(record, gameField::conversion, FieldValue(record, olderNumber) > picks ? "Y" : "N");
    return record;
}

GameRules RulesOf(const std::string& record) {
    GameRules rules;
    rules.gameType = FieldValue(record, gameField::gameType);
    rules.mainPickCount = FieldValue(record, gameField::mainPickCount);
    rules.bonusPickCount = FieldValue(record, gameField::bonusPickCount);
    rules.duplicatesAllowed = !IsCardGame(rules.gameType) && SaysYes(record, gameField::duplicates);
    rules.orderMatters = SaysYes(record, gameField::order);
    SetLimits(rules, record);
    return rules;
}

std::int16_t HistorySetOf(const std::string& record) {
    if (FieldText(record, gameField::historySet) == "000") {
        return largestHistorySet;
    }
    return FieldValue(record, gameField::historySet);
}

}  // namespace ballhaven
