#include "data/guarantee/ProofText.h"

#include "data/folder/Picks.h"
#include "data/guarantee/SetProof.h"
#include "plays/PlaySlips.h"
#include "state/PickText.h"

#include <string>

namespace ballhaven::data {

namespace {

std::string Headings(int drawn) {
    std::string line;
    for (int column = 1; column <= drawn; ++column) {
        line += (column == 1 ? "pick" : ",pick") + std::to_string(column);
    }
    return line;
}

}  // namespace

void TellProof(const GameRules& rules, const Wheel& wheel, int drawn, int hits, ProofOf kind,
               const std::function<void(std::string_view line)>& tell) {
    std::vector<std::string> texts;
    for (const int number : wheel.numbers) {
        texts.push_back(PickToText(number, rules.gameType));
    }
    std::string line;
    const auto putSet = [&line, &texts](std::span<const int> set) {
        line.clear();
        for (const int place : set) {
            line += line.empty() ? "" : ",";
            line += texts[static_cast<std::size_t>(place)];
        }
    };
    SetListener listener{.missed = [](std::span<const int>) {}, .hit = {}};
    if (kind == ProofOf::MissedSets) {
        tell(Headings(drawn) + "\n");
        listener.missed = [&](std::span<const int> set) {
            putSet(set);
            tell(line += '\n');
        };
    } else {
        tell(Headings(drawn) + ",play\n");
        listener.hit = [&](std::span<const int> set, int play) {
            putSet(set);
            line += ',' + NameOfPlay(wheel.plays[static_cast<std::size_t>(play)]) + '\n';
            tell(line);
        };
    }
    TellSets(PlayBits(static_cast<int>(wheel.numbers.size()), wheel.holds), drawn, hits, listener);
}

}  // namespace ballhaven::data
