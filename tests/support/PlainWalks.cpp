#include "support/PlainWalks.h"

#include "forms/MainForm.h"
#include "state/AppState.h"
#include "state/modUTILS.h"

#include <algorithm>

namespace ballhaven::support {

namespace {

std::int16_t Cell(int game, int column) {
    return appState.historyView.PickAt(column, game);
}

int Candidate(int row) {
    return appState.hotNumberTable(1, row);
}

bool StandsIn(int game, int pick) {
    for (int column = 1; column <= appState.totalPicks; ++column) {
        if (Cell(game, column) == pick) {
            return true;
        }
    }
    return false;
}

bool IsJointGame(int game, int pick, int otherPick) {
    return StandsIn(game, pick) && StandsIn(game, otherPick);
}

std::string InLastGames(const std::string& words) {
    return words + " in last " + std::to_string(appState.historyViewLast + 1) + " games";
}

void CopyRow(const CountTable& from, int fromRow, CountTable& to, int toRow) {
    for (int column = 1; column < to.Columns(); ++column) {
        to(column, toRow) = from(column, fromRow);
    }
}

}  // namespace

BuiltTable BuiltHotPairs() {
    return {appState.hotPairTable, appState.hotPairLast, appState.hotPairStale, frmMainForm.grdHot.caption};
}

BuiltTable BuiltPairedOnce() {
    return {appState.pairedOnceTable, appState.pairedOnceLast, appState.pairedOnceStale, frmMainForm.grdHot.caption};
}

BuiltTable BuiltRepeaters() {
    return {appState.repeaterTable, appState.repeaterLast, appState.repeaterStale, frmMainForm.grdHot.caption};
}

BuiltTable BuiltNoHitters() {
    CountTable picks(1, static_cast<int>(appState.noHitterTable.size()));
    for (int row = 0; const int pick : appState.noHitterTable) {
        picks(0, row++) = pick;
    }
    return {picks, appState.noHitterLast, appState.noHitterStale, frmMainForm.grdHot.caption};
}

void WalkHotPairs(BuiltTable& built) {
    CountTable pairWork(4, 501);
    built.last = -1;
    int index = 0;
    int highest = 0;
    if (appState.historyViewLast > 0) {
        for (int i = 0; i <= appState.hotNumberLast - 1; ++i) {
            for (int j = i + 1; j <= appState.hotNumberLast; ++j) {
                int count = 0;
                for (int game = 0; game <= appState.historyViewLast; ++game) {
                    if (!IsJointGame(game, Candidate(i), Candidate(j))) {
                        continue;
                    }
                    ++count;
                    if (count >= 2) {
                        pairWork(1, index) = std::min(Candidate(i), Candidate(j));
                        pairWork(2, index) = std::max(Candidate(i), Candidate(j));
                        pairWork(3, index) = modUTILS::ToInt16(count);
                    }
                }
                if (count >= 2) {
                    ++index;
                    ++built.last;
                    highest = std::max(highest, count);
                }
            }
        }
    }
    if (built.last >= 0) {
        if (appState.hotTableChoice == 2) {
            built.caption = InLastGames("Hot Pairs");
        }
        built.rows = CountTable(4, built.last + 1);
        int next = 0;
        for (int count = highest; count >= 2; --count) {
            for (int x = appState.mainLow; x <= appState.mainHigh; ++x) {
                for (int y = appState.mainLow; y <= appState.mainHigh; ++y) {
                    for (int k = 0; k <= built.last; ++k) {
                        if (pairWork(3, k) == count && pairWork(1, k) == x && pairWork(2, k) == y) {
                            CopyRow(pairWork, k, built.rows, next++);
                        }
                    }
                }
            }
        }
    }
    if (built.last == -1 && appState.hotTableChoice == 2) {
        built.caption = "Pairs (none found)";
    }
    built.isStale = false;
}

void WalkPairedOnce(BuiltTable& built) {
    CountTable pairedOnceWork(3, 1001);
    built.last = -1;
    int index = 0;
    if (appState.historyViewLast > 0) {
        for (int i = 0; i <= appState.hotNumberLast - 1; ++i) {
            for (int j = appState.mainLow + i; j <= appState.hotNumberLast; ++j) {
                int count = 0;
                for (int game = 0; game <= appState.historyViewLast && count <= 1; ++game) {
                    if (IsJointGame(game, Candidate(i), Candidate(j))) {
                        ++count;
                    }
                }
                if (count != 1) {
                    continue;
                }
                if (Candidate(i) < Candidate(j)) {
                    pairedOnceWork(1, index) = Candidate(i);
                    pairedOnceWork(2, index) = Candidate(j);
                } else if (Candidate(j) < Candidate(i)) {
                    pairedOnceWork(1, index) = Candidate(j);
                    pairedOnceWork(2, index) = Candidate(i);
                }
                ++index;
                ++built.last;
            }
        }
    }
    if (built.last >= 0) {
        if (appState.hotTableChoice == 3) {
            built.caption = InLastGames("Paired once");
        }
        built.rows = CountTable(3, built.last + 1);
        int next = 0;
        for (int x = appState.mainLow; x <= appState.mainHigh; ++x) {
            for (int y = appState.mainLow; y <= appState.mainHigh; ++y) {
                for (int k = 0; k <= built.last; ++k) {
                    if (pairedOnceWork(1, k) == x && pairedOnceWork(2, k) == y) {
                        CopyRow(pairedOnceWork, k, built.rows, next++);
                    }
                }
            }
        }
    }
    if (built.last == -1 && appState.hotTableChoice == 3) {
        built.caption = "Paired once (none found)";
    }
    built.isStale = false;
}

void WalkRepeaters(BuiltTable& built) {
    CountTable repeaterWork(3, 1001);
    built.last = -1;
    int index = 0;
    int highest = 0;
    if (appState.hotNumberLast >= 0 && appState.historyViewLast >= 1) {
        for (int i = 0; i <= appState.hotNumberLast; ++i) {
            const int x = Candidate(i);
            std::int16_t repeats = 0;
            for (int game = 0; game <= appState.historyViewLast - 1; ++game) {
                for (int p = 1; p <= appState.totalPicks; ++p) {
                    for (int q = 1; q <= appState.totalPicks; ++q) {
                        if (Cell(game, p) == x && Cell(game + 1, q) == x) {
                            repeats = modUTILS::ToInt16(repeats + 1);
                        }
                    }
                }
            }
            if (repeats > 0) {
                highest = std::max<int>(highest, repeats);
                repeaterWork(1, index) = modUTILS::ToInt16(x);
                repeaterWork(2, index) = repeats;
                ++index;
                ++built.last;
            }
        }
    }
    if (built.last >= 0) {
        if (appState.hotTableChoice == 3) {
            built.caption = InLastGames("Hot Repeaters");
        }
        built.rows = CountTable(3, built.last + 1);
        int next = 0;
        for (int count = highest; count >= 1; --count) {
            for (int x = appState.mainLow; x <= appState.mainHigh; ++x) {
                for (int k = 0; k <= built.last; ++k) {
                    if (repeaterWork(1, k) == x && repeaterWork(2, k) == count) {
                        CopyRow(repeaterWork, k, built.rows, next++);
                    }
                }
            }
        }
    }
    if (built.last == -1 && appState.hotTableChoice == 3) {
        built.caption = "Hot Repeaters (none found)";
    }
    built.isStale = false;
}

void WalkNoHitters(BuiltTable& built) {
    CountTable noHitterWork(1, 1000);
    built.last = -1;
    int index = 0;
    int top = appState.mainHigh;
    if (appState.duplicatesAllowed && appState.mainLow == 0) {
        top = appState.mainHigh / appState.mainPickCount - 1;
    } else if (appState.duplicatesAllowed) {
        top = appState.mainHigh / appState.mainPickCount;
    }
    for (int x = appState.mainLow; x <= top; ++x) {
        bool isFound = false;
        for (int game = 0; game <= appState.historyViewLast && !isFound; ++game) {
            isFound = StandsIn(game, x);
        }
        if (!isFound) {
            noHitterWork(0, index) = modUTILS::ToInt16(x);
            ++index;
            ++built.last;
        }
    }
    if (built.last >= 0) {
        if (appState.hotTableChoice == 4) {
            built.caption = InLastGames("No Hitters");
        }
        built.rows = CountTable(1, built.last + 1);
        for (int k = 0; k <= built.last; ++k) {
            built.rows(0, k) = noHitterWork(0, k);
        }
    }
    if (built.last == -1 && appState.hotTableChoice == 4) {
        built.caption = "No Hitters (none found)";
    }
    built.isStale = false;
}

}  // namespace ballhaven::support
