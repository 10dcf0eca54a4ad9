#include "support/Wheels.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace ballhaven::support {

namespace {

constexpr int modulus = 11;
constexpr int infinity = 11;

int NextOf(int point) {
    return point == infinity ? infinity : (point + 1) % modulus;
}

int NegativeReciprocalOf(int point) {
    if (point == infinity || point == 0) {
        return infinity - point;
    }
    int reciprocal = 1;
    while (point * reciprocal % modulus != modulus - 1) {
        ++reciprocal;
    }
    return reciprocal;
}

}  // namespace

std::vector<int> NumbersBelow(int count) {
    std::vector<int> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

int PlaysThatHit(const WheelPlays& plays, const std::vector<int>& set, int hits) {
    return static_cast<int>(std::ranges::count_if(plays, [&](const std::vector<int>& play) {
        return std::ranges::count_if(set, [&](int number) { return std::ranges::find(play, number) != play.end(); }) >=
               hits;
    }));
}

WheelPlays PlaysWithout(int numbers, const WheelPlays& leftOut) {
    const std::vector<int> all = NumbersBelow(numbers);
    WheelPlays plays;
    for (const std::vector<int>& missing : leftOut) {
        plays.emplace_back();
        std::ranges::set_difference(all, missing, std::back_inserter(plays.back()));
    }
    return plays;
}

WheelPlays SteinerPlaysOfTwelve() {
    std::set<std::vector<int>> found;
    WheelPlays open{{1, 3, 4, 5, 9, infinity}};
    while (!open.empty()) {
        const std::vector<int> play = open.back();
        open.pop_back();
        if (found.insert(play).second) {
            for (int (*const image)(int) : {NextOf, NegativeReciprocalOf}) {
                std::vector<int> moved(play.size());
                std::ranges::transform(play, moved.begin(), image);
                std::ranges::sort(moved);
                open.push_back(moved);
            }
        }
    }
    return {found.begin(), found.end()};
}

}  // namespace ballhaven::support
