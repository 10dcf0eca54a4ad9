#include "data/exchange/DrawExport.h"

#include "data/folder/IsoDate.h"
#include "data/folder/Picks.h"
#include "state/AppState.h"
#include "state/PickText.h"

namespace ballhaven::data {

namespace {

/// The names of columns of one sort: "bonus" alone, or "main1", "main2" and so on.
std::string Names(const std::string& sort, int count) {
    if (count == 1) {
        return "," + sort;
    }
    std::string names;
    for (int number = 1; number <= count; ++number) {
        names += "," + sort + std::to_string(number);
    }
    return names;
}

}  // namespace

std::string PickColumnNames(const GameRules& rules) {
    const int bonus = HasBonus(rules.gameType) ? rules.bonusPickCount : 0;
    return Names("main", TotalPicksOf(rules) - bonus) + Names("bonus", bonus);
}

std::string TextOfPick(int pick, int gameType) {
    std::string text = pick == noPick ? std::string() : PickToText(pick, gameType);
    return text.empty() ? "?" : text;
}

std::string CsvOfDraws(const GameRules& rules, std::vector<DrawOnFile> draws) {
    SortByDate(draws);
    std::string csv = "date" + PickColumnNames(rules) + "\n";
    for (const DrawOnFile& draw : draws) {
        csv += IsoDate(draw.date);
        for (const std::int16_t pick : draw.picks) {
            csv += ",";
            csv += pick < 0 ? std::string() : TextOfPick(pick, rules.gameType);
        }
        csv += "\n";
    }
    return csv;
}

}  // namespace ballhaven::data
