#include "data/guarantee/Guarantees.h"

#include "data/guarantee/HitLevels.h"
#include "data/guarantee/SetCounts.h"

#include <algorithm>
#include <bit>
#include <bitset>
#include <numeric>

namespace ballhaven::data {

namespace {

/// The level after whose sets the share is told: pairs are so few that it costs nothing, and so many that it moves.
constexpr int deepestReportedLevel = 2;

/// Numbers of hits whose guarantees are still in question.
using OpenHits = std::bitset<SetCounts::largestSet + 1>;

/// A set of plays without the words in which it is empty.
struct FullWord {
    std::size_t index;
    PlayBits::Word word;
};

/// The walk over all sets of chosen numbers, in lexicographic order, by sets that begin alike. Where the beginning
/// tells what all of them get, the walk does not go into them.
class SetWalk {
  public:
    SetWalk(const PlayBits& wheel, int drawn, int fewestHits, int mostHits, const ShareReport& shareReport)
        : plays(wheel),
          levels(wheel, drawn, mostHits),
          setSize(drawn),
          lowestHits(fewestHits),
          reportedLevel(std::min(deepestReportedLevel, drawn - 1)),
          set(static_cast<std::size_t>(drawn)),
          report(shareReport) {
        for (int hits = fewestHits; hits <= mostHits; ++hits) {
            guarantees.push_back({.drawn = drawn,
                                  .hits = hits,
                                  .sets = counts(wheel.Numbers(), drawn),
                                  .leastPlays = wheel.Plays() + 1});
            open.set(static_cast<std::size_t>(hits));
        }
    }

    std::vector<Guarantee> Run() {
        Visit(0, 0, open);
        return std::move(guarantees);
    }

  private:
    [[nodiscard]] Guarantee& For(int hits) { return guarantees[static_cast<std::size_t>(hits - lowestHits)]; }

    /// The sets whose first `level` numbers are those of `set`, the next one being `next` or higher.
    void Visit(int level, int next, OpenHits inQuestion) {
        const std::uint64_t sets = counts(plays.Numbers() - next, setSize - level);
        Settle(level, next, sets, inQuestion);
        if (inQuestion.any()) {
            if (level + 1 == setSize) {
                VisitLast(level, next, inQuestion);
            } else {
                VisitNext(level, next, inQuestion);
            }
        }
        if (level == reportedLevel || (level < reportedLevel && inQuestion.none())) {
            done += sets;
            report(static_cast<double>(done) / static_cast<double>(guarantees.front().sets));
        }
    }

    void VisitNext(int level, int next, OpenHits inQuestion) {
        const int last = plays.Numbers() - (setSize - level);
        for (int number = next; number <= last; ++number) {
            set[static_cast<std::size_t>(level)] = number;
            levels.Add(level + 1, number);
            Visit(level + 1, number + 1, inQuestion);
        }
    }

    /// Takes out of the question what the sets of a beginning cannot change or all answer alike.
    void Settle(int level, int next, std::uint64_t sets, OpenHits& inQuestion) {
        for (int hits = lowestHits; hits < lowestHits + static_cast<int>(guarantees.size()); ++hits) {
            if (!inQuestion[static_cast<std::size_t>(hits)]) {
                continue;
            }
            const int reached = CountPlays(levels.AtLeast(level, hits));
            const int withinReach = CountPlays(levels.AtLeast(level, hits - (setSize - level)));
            const bool changesNothing = reached > 0 && reached >= For(hits).leastPlays;
            if (!changesNothing && reached == withinReach) {
                std::iota(set.begin() + level, set.end(), next);
                Take(hits, sets, reached);
            }
            if (changesNothing || reached == withinReach) {
                inQuestion.reset(static_cast<std::size_t>(hits));
            }
        }
    }

    /// The sets that one more number completes: to the plays that hit enough come those one hit short that hold it.
    void VisitLast(int level, int next, OpenHits inQuestion) {
        for (int hits = lowestHits; hits < lowestHits + static_cast<int>(guarantees.size()); ++hits) {
            if (!inQuestion[static_cast<std::size_t>(hits)]) {
                continue;
            }
            const int reached = CountPlays(levels.AtLeast(level, hits));
            FindPlaysOneShort(level, hits);
            for (int number = next; number < plays.Numbers(); ++number) {
                const int enough = std::max(For(hits).leastPlays, 1) - reached;
                const int added = CountHolders(number, enough);
                if (added < enough) {
                    set.back() = number;
                    Take(hits, 1, reached + added);
                }
            }
        }
    }

    void FindPlaysOneShort(int level, int hits) {
        const auto reached = levels.AtLeast(level, hits);
        const auto oneLess = levels.AtLeast(level, hits - 1);
        oneShort.clear();
        for (std::size_t index = 0; index < reached.size(); ++index) {
            if (const PlayBits::Word word = oneLess[index] & ~reached[index]; word != 0) {
                oneShort.push_back({index, word});
            }
        }
    }

    /// How many of the plays one short hold a number, counted no further than `enough`.
    [[nodiscard]] int CountHolders(int number, int enough) const {
        const auto holders = plays.PlaysWith(number);
        int count = 0;
        for (const FullWord& few : oneShort) {
            count += std::popcount(few.word & holders[few.index]);
            if (count >= enough) {
                break;
            }
        }
        return count;
    }

    /// Takes note of sets, of which `set` is the first, for which so many plays hit enough.
    void Take(int hits, std::uint64_t sets, int hittingPlays) {
        Guarantee& guarantee = For(hits);
        if (hittingPlays == 0) {
            guarantee.missed += sets;
        }
        if (hittingPlays < guarantee.leastPlays) {
            guarantee.leastPlays = hittingPlays;
            guarantee.weakest = set;
        }
    }

    const PlayBits& plays;
    const SetCounts counts;
    HitLevels levels;
    int setSize;
    int lowestHits;
    int reportedLevel;
    std::vector<int> set;
    std::vector<Guarantee> guarantees;
    OpenHits open;
    std::vector<FullWord> oneShort;
    const ShareReport& report;
    std::uint64_t done = 0;
};

}  // namespace

std::vector<Guarantee> FindGuarantees(const PlayBits& plays, int drawn, int fewestHits, int mostHits,
                                      const ShareReport& report) {
    return SetWalk(plays, drawn, fewestHits, mostHits, report).Run();
}

}  // namespace ballhaven::data
