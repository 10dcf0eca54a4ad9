#include "data/exchange/DrawImport.h"

#include "data/exchange/CsvText.h"
#include "data/exchange/DrawExport.h"
#include "data/exchange/DrawMerge.h"
#include "data/folder/Refusal.h"
#include "fuzz/FuzzInput.h"
#include "state/AppState.h"

#include <algorithm>
#include <array>
#include <optional>
#include <sstream>
#include <string>

namespace ballhaven::fuzz {
namespace {

constexpr std::size_t longestQuote = 200;

/// Rules as the game dialog lets them be, and limits and counts as a damaged record gives them. Those of cards are
/// fixed.
GameRules AnyRules(FuzzInput& input) {
    GameRules rules;
    rules.gameType = input.Choice(6);
    rules.mainPickCount = input.Choice(10);
    rules.bonusPickCount = input.Choice(4);
    const bool cards = IsCardGame(rules.gameType);
    rules.mainLow = cards ? 1 : input.Choice(2);
    rules.mainHigh = cards ? 52 : input.Choice(100);
    rules.bonusLow = cards ? 1 : input.Choice(2);
    rules.bonusHigh = cards ? 52 : input.Choice(100);
    rules.duplicatesAllowed = input.Choice(2) == 1;
    return rules;
}

data::GivenForm AnyForm(FuzzInput& input) {
    constexpr std::array<const char*, 6> choices = {"", "", "", "1,3-8", "date,n1,n2", "2,1"};
    data::GivenForm form;
    if (input.Choice(4) == 0) {
        form.delimiter = ",;\t|"[input.Choice(4)];
    }
    if (input.Choice(4) == 0) {
        form.dates = static_cast<data::DateOrder>(input.Choice(3));
    }
    if (input.Choice(4) == 0) {
        form.header = input.Choice(2) == 1;
    }
    form.columns = choices[static_cast<std::size_t>(input.Choice(choices.size()))];
    return form;
}

/// Every draw that was taken is one of the game.
void CheckDraws(const data::ImportedDraws& imported, const GameRules& rules, int lastDate) {
    int before = 0;
    for (const data::DrawOnFile& draw : imported.draws) {
        Expect(before < draw.date && draw.date <= lastDate, "dates ascend, each once, up to the last one");
        before = draw.date;
        Expect(std::ssize(draw.picks) == TotalPicksOf(rules), "a draw has its picks");
        const int low = std::min(rules.mainLow, rules.bonusLow);
        const int high = std::max(rules.mainHigh, rules.bonusHigh);
        for (const std::int16_t pick : draw.picks) {
            Expect(pick == -1 || (low <= pick && pick <= high), "a pick is within the limits");
        }
    }
}

/// What was taken comes back out of its export.
void CheckRoundTrip(const data::ImportedDraws& imported, const GameRules& rules) {
    std::istringstream csv(data::CsvOfDraws(rules, imported.draws));
    const data::GivenForm given{.delimiter = ',', .header = true};
    const data::FileForm form = data::RecognisedForm(csv, given, rules);
    const data::ImportedDraws again = data::ImportDraws(csv, form, rules, 32'767);
    Expect(again.faults.Count() == 0 && again.draws == imported.draws, "an export comes back as it was");
}

void CheckMerge(const data::ImportedDraws& imported, const GameRules& rules) {
    const data::MergedDraws first = data::Merged(rules, {}, imported.draws, false);
    Expect(first.draws.size() == std::min<std::size_t>(imported.draws.size(), historyRows), "a game keeps a thousand");
    const data::MergedDraws second = data::Merged(rules, first.draws, imported.draws, true);
    Expect(second.draws == first.draws && !second.changesGame, "the same draws again change nothing");
}

void CheckFaults(const data::ImportedDraws& imported) {
    for (const data::LineFault& fault : imported.faults.First()) {
        Expect(fault.line > 0 && !fault.words.empty(), "a fault has its line and its words");
        Expect(fault.words.size() <= longestQuote, "a fault is short");
        Expect(std::ranges::none_of(fault.words, [](char each) { return static_cast<unsigned char>(each) < ' '; }),
               "a fault has no control codes");
    }
}

void CheckImport(FuzzInput& input) {
    const GameRules rules = AnyRules(input);
    const data::GivenForm given = AnyForm(input);
    const int lastDate = input.Choice(2) == 0 ? 9999 : 32'767;
    std::istringstream bytes(input.Rest());
    try {
        const data::FileForm form = data::RecognisedForm(bytes, given, rules);
        const data::ImportedDraws imported = data::ImportDraws(bytes, form, rules, lastDate);
        CheckFaults(imported);
        CheckDraws(imported, rules, lastDate);
        CheckMerge(imported, rules);
        if (!imported.draws.empty()) {
            CheckRoundTrip(imported, rules);
        }
    } catch (const data::Refusal& refusal) {
        Expect(refusal.what()[0] != '\0', "a refusal has words");
    }
}

}  // namespace
}  // namespace ballhaven::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ballhaven::fuzz::FuzzInput input(data, size);
    ballhaven::fuzz::CheckImport(input);
    return 0;
}
