#include "data/guarantee/SetProof.h"

#include "data/guarantee/HitLevels.h"

#include <vector>

namespace ballhaven::data {

namespace {

class SetList {
  public:
    SetList(const PlayBits& wheel, int drawn, int hitsWanted, const SetListener& setListener)
        : plays(wheel),
          levels(wheel, drawn, hitsWanted),
          hits(hitsWanted),
          set(static_cast<std::size_t>(drawn)),
          listener(setListener) {}

    /// The sets whose first `level` numbers stand in `set`, the next one being `next` or higher.
    void Tell(std::size_t level, int next) {
        if (const int play = FirstPlay(levels.AtLeast(static_cast<int>(level), hits)); play >= 0) {
            if (listener.hit) {
                TellHit(level, next, play);
            }
        } else if (level == set.size()) {
            listener.missed(set);
        } else {
            for (int number = next; number <= HighestAt(level); ++number) {
                set[level] = number;
                levels.Add(static_cast<int>(level) + 1, number);
                Tell(level + 1, number + 1);
            }
        }
    }

  private:
    /// Sets that begin so: a play that hits enough of the beginning hits enough of all of them.
    void TellHit(std::size_t level, int next, int play) {
        if (level == set.size()) {
            listener.hit(set, play);
            return;
        }
        for (int number = next; number <= HighestAt(level); ++number) {
            set[level] = number;
            TellHit(level + 1, number + 1, play);
        }
    }

    /// The highest number that leaves enough numbers behind it to fill the set.
    [[nodiscard]] int HighestAt(std::size_t level) const {
        return plays.Numbers() - static_cast<int>(set.size() - level);
    }

    const PlayBits& plays;
    HitLevels levels;
    int hits;
    std::vector<int> set;
    const SetListener& listener;
};

}  // namespace

void TellSets(const PlayBits& plays, int drawn, int hits, const SetListener& listener) {
    SetList(plays, drawn, hits, listener).Tell(0, 0);
}

}  // namespace ballhaven::data
