#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ballhaven::data {

/// What is asked of a wheel: when so many of its numbers are drawn, does a play always hit this or that many of them?
struct Question {
    int drawn = 0;
    int fewestHits = 0;
    int mostHits = 0;
    std::uint64_t sets = 0;  ///< sets of so many of the numbers, each of which is looked at

    bool operator==(const Question&) const = default;
};

/// The questions of a user, and those that nobody asked for expressly and that would take long.
struct Questions {
    std::vector<Question> asked{};
    std::vector<Question> leftOut{};
};

/// The questions for a wheel over so many chosen numbers, in a game with so many main picks. `drawn` and `hits` are
/// those that the user wants to know of, 0 for all. Throws Refusal where there is no such question, or where it would
/// take too long.
[[nodiscard]] Questions QuestionsFor(int numbers, int mainPicks, int drawn, int hits);

/// Whether a question takes so long that one should be told before.
[[nodiscard]] bool TakesAWhile(const Question& question);

/// Such as "13983816 sets of 6 out of 49".
[[nodiscard]] std::string SizeText(const Question& question, int numbers);

}  // namespace ballhaven::data
