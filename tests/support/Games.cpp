#include "support/Games.h"

#include "state/AppState.h"

#include <chrono>
#include <cstdio>
#include <stdexcept>

namespace ballhaven::support {

namespace {

std::int16_t Short(int value) {
    if (value < INT16_MIN || value > INT16_MAX) {
        throw std::out_of_range("A test's value does not fit into 16 bits: " + std::to_string(value));
    }
    return static_cast<std::int16_t>(value);
}

PlayPicks EmptyPlays() {
    PlayPicks plays;
    for (int play = 1; play <= playCount; ++play) {
        for (int slot = 1; slot <= picksPerPlay; ++slot) {
            plays(mainPicks, play, slot) = -1;
            plays(bonusPicks, play, slot) = -1;
        }
    }
    return plays;
}

}  // namespace

Game NumberGame() {
    return Game(false);
}

Game CardGame() {
    return Game(true);
}

Game& Game::Picks(int count) {
    picks = count;
    return *this;
}

Game& Game::From(int lowest) {
    low = lowest;
    return *this;
}

Game& Game::To(int highest) {
    high = highest;
    return *this;
}

Game& Game::Bonus(int count, BonusPool pool) {
    hasBonus = true;
    bonusPicks = count;
    bonusPool = pool;
    return *this;
}

Game& Game::BonusFrom(int lowest) {
    bonusLow = lowest;
    return *this;
}

Game& Game::BonusTo(int highest) {
    bonusHigh = highest;
    return *this;
}

Game& Game::WithDuplicates() {
    duplicates = true;
    return *this;
}

Game& Game::InOrder() {
    order = true;
    return *this;
}

Game& Game::HistorySet(int size) {
    historySet = size;
    return *this;
}

Game& Game::NewestFirst() {
    sortOrder = 0;
    return *this;
}

Game& Game::OldestFirst() {
    sortOrder = 1;
    return *this;
}

Game& Game::InSlot(int gameSlot) {
    slot = gameSlot;
    return *this;
}

int Game::Type() const {
    const int firstOfKind = cards ? 3 : 0;
    if (!hasBonus) {
        return firstOfKind;
    }
    return firstOfKind + (bonusPool == BonusPool::Same ? 1 : 2);
}

void ResetState() {
    appState = AppState{};
    appState.shortDateFormat = "m/d/y";
}

void SetUpGame(const Game& game) {
    const bool ownPool = game.bonusPool == BonusPool::Separate;
    appState.currentGame = Short(game.slot);
    appState.gameType = Short(game.Type());
    appState.mainPickCount = Short(game.picks);
    appState.bonusPickCount = Short(game.bonusPicks);
    appState.totalPicks = Short(game.picks + game.bonusPicks);
    appState.mainLow = Short(game.cards ? 1 : game.low);
    appState.mainHigh = Short(game.cards ? 52 : game.high);
    appState.bonusLow = Short(game.cards ? 1 : ownPool ? game.bonusLow : game.low);
    appState.bonusHigh = Short(game.cards ? 52 : ownPool ? game.bonusHigh : game.high);
    appState.duplicatesAllowed = game.duplicates && !game.cards;
    appState.orderMatters = game.order;
    appState.historySetSize = Short(game.historySet);
    appState.historySortOrder = Short(game.sortOrder);
    appState.slipColumns = game.cards ? 6 : 9;
    appState.hotTableChoice = 1;
    appState.hotSortChoice = 2;
    appState.currentPlay = 1;
    appState.currentSlip = 1;

    appState.HistoryTable = Table(1 + appState.totalPicks, historyRows);
    appState.historyLast = -1;
    appState.historyView = Table(1 + appState.totalPicks, game.historySet);
    appState.historyViewLast = -1;
    static const PlayPicks emptyPlays = EmptyPlays();
    appState.PlayTable = emptyPlays;
    appState.ShuffleTable = ChosenPicks();
}

std::string MendedSystemRecord() {
    return "01/1/1/000000" + std::string(50, ' ') + "M";
}

void MendFolder() {
    appState.systemRecord = MendedSystemRecord();
}

void SetUpDraws(const std::vector<Draw>& draws) {
    appState.HistoryTable = Table(1 + appState.totalPicks, historyRows);
    int row = 0;
    for (const Draw& draw : draws) {
        appState.HistoryTable(0, row) = SerialOf(draw.date);
        for (int column = 1; column <= appState.totalPicks; ++column) {
            const auto pick = static_cast<std::size_t>(column - 1);
            appState.HistoryTable(column, row) = pick < draw.picks.size() ? Short(draw.picks[pick]) : Short(-1);
        }
        ++row;
    }
    appState.historyLast = Short(row - 1);
}

void SetUpPlay(int play, const std::vector<int>& mainCells, const std::vector<int>& bonusCells) {
    const auto cellAt = [](const std::vector<int>& cells, int slot) {
        const auto index = static_cast<std::size_t>(slot - 1);
        return index < cells.size() ? Short(cells[index]) : Short(-1);
    };
    appState.PlayTable(mainPicks, play, 0) = 0;
    for (int slot = 1; slot <= picksPerPlay; ++slot) {
        appState.PlayTable(mainPicks, play, slot) = cellAt(mainCells, slot);
        appState.PlayTable(bonusPicks, play, slot) = cellAt(bonusCells, slot);
    }
}

std::int16_t SerialOf(const std::string& date) {
    using namespace std::chrono;
    unsigned monthNumber = 0;
    unsigned dayNumber = 0;
    int yearNumber = 0;
    if (std::sscanf(date.c_str(), "%u/%u/%d", &monthNumber, &dayNumber, &yearNumber) != 3) {
        throw std::invalid_argument("No date of month/day/year: " + date);
    }
    const year_month_day read = year{yearNumber} / month{monthNumber} / day{dayNumber};
    if (!read.ok()) {
        throw std::invalid_argument("No date of the calendar: " + date);
    }
    return Short(static_cast<int>((sys_days{read} - sys_days{year{1984} / January / 1}).count()));
}

}  // namespace ballhaven::support
