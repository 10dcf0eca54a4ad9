#include "support/Views.h"

#include <algorithm>

namespace ballhaven {

std::ostream& operator<<(std::ostream& out, const PickHits& row) {
    return out << row.pick << " x" << row.hits;
}

std::ostream& operator<<(std::ostream& out, const PickPair& row) {
    return out << row.lower << ", " << row.higher;
}

std::ostream& operator<<(std::ostream& out, const PairHits& row) {
    return out << row.picks << " x" << row.hits;
}

namespace support {

Table ViewOf(const std::vector<DrawPicks>& draws) {
    std::size_t longest = 0;
    for (const DrawPicks& picks : draws) {
        longest = std::max(longest, picks.size());
    }
    Table view(static_cast<int>(longest) + 1, static_cast<int>(draws.size()), -1);
    for (int row = 0; const DrawPicks& picks : draws) {
        for (int column = 1; const int pick : picks) {
            view(column++, row) = static_cast<std::int16_t>(pick);
        }
        ++row;
    }
    return view;
}

DrawRows AllDraws(const Table& view) {
    return {view, view.Rows(), {1, view.Columns() - 1}};
}

}  // namespace support
}  // namespace ballhaven
