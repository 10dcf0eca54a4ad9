#include "data/exchange/DrawImport.h"

#include "data/exchange/CsvText.h"
#include "data/exchange/DrawCheck.h"
#include "data/folder/IsoDate.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace ballhaven::data {

namespace {

constexpr std::size_t faultsKept = 20;
constexpr std::size_t dateCount = std::size_t{std::numeric_limits<std::int16_t>::max()} + 1;

bool LacksPick(const DrawOnFile& draw) {
    return std::ranges::find(draw.picks, -1) != draw.picks.end();
}

}  // namespace

void FaultList::Add(std::int64_t line, const std::string& words) {
    ++count;
    if (first.size() < faultsKept) {
        first.push_back({line, words});
    }
}

ImportedDraws ImportDraws(std::istream& bytes, const FileForm& form, const GameRules& rules, int lastDate) {
    ImportedDraws imported;
    std::vector<std::int64_t> lineOfDate(dateCount, 0);
    CsvText text(bytes, form.delimiter);
    int above = form.recordsAbove;
    while (text.Next()) {
        if (above > 0) {
            --above;
            continue;
        }
        CheckedDraw checked = CheckDraw(text.Fields(), form.columns, form.dates, rules, lastDate);
        if (!checked.fault.empty()) {
            imported.faults.Add(text.Line(), checked.fault);
            continue;
        }
        std::int64_t& line = lineOfDate[static_cast<std::size_t>(checked.draw.date)];
        if (line != 0) {
            imported.faults.Add(text.Line(),
                                IsoDate(checked.draw.date) + " is the date of line " + std::to_string(line) + " too");
            continue;
        }
        line = text.Line();
        imported.incomplete += LacksPick(checked.draw) ? 1 : 0;
        imported.draws.push_back(std::move(checked.draw));
    }
    SortByDate(imported.draws);
    return imported;
}

}  // namespace ballhaven::data
