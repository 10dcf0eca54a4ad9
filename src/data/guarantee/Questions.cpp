#include "data/guarantee/Questions.h"

#include "data/folder/Refusal.h"
#include "data/guarantee/SetCounts.h"

#include <algorithm>

namespace ballhaven::data {

namespace {

/// From so many sets on a question is announced, waits until it is asked for, and is not answered.
constexpr std::uint64_t manySets = 10'000'000;
constexpr std::uint64_t mostSetsUnasked = 100'000'000;
constexpr std::uint64_t mostSets = 4'000'000'000;

void RefuseTooMany(const Question& question, int numbers) {
    if (question.sets > mostSets) {
        throw Refusal(SizeText(question, numbers) + " are too many to look at: " + std::to_string(mostSets) +
                      " are the most. Name fewer numbers with --numbers, or ask for fewer with --drawn.");
    }
}

}  // namespace

Questions QuestionsFor(int numbers, int mainPicks, int drawn, int hits) {
    const int mostDrawn = std::min(numbers, mainPicks);
    if (drawn > mostDrawn) {
        throw Refusal("A draw holds at most " + std::to_string(mostDrawn) + " of the chosen numbers: --drawn " +
                      std::to_string(drawn) + " asks for more.");
    }
    const int highestDrawn = drawn == 0 ? mostDrawn : drawn;
    if (hits > highestDrawn) {
        throw Refusal("Of " + std::to_string(highestDrawn) + " drawn numbers no play hits more: --hits " +
                      std::to_string(hits) + " asks for it.");
    }
    Questions questions;
    const SetCounts counts;
    for (int size = std::max({drawn, hits, 1}); size <= highestDrawn; ++size) {
        const Question question{.drawn = size,
                                .fewestHits = std::max(hits, 1),
                                .mostHits = hits == 0 ? size : hits,
                                .sets = counts(numbers, size)};
        if (drawn != 0) {
            RefuseTooMany(question, numbers);
        }
        const bool waits = drawn == 0 && question.sets > mostSetsUnasked;
        (waits ? questions.leftOut : questions.asked).push_back(question);
    }
    return questions;
}

bool TakesAWhile(const Question& question) {
    return question.sets > manySets;
}

std::string SizeText(const Question& question, int numbers) {
    return std::to_string(question.sets) + " sets of " + std::to_string(question.drawn) + " out of " +
           std::to_string(numbers);
}

}  // namespace ballhaven::data
