#pragma once

#include "data/exchange/FileForm.h"
#include "data/folder/DrawsOnFile.h"
#include "state/GameRules.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace ballhaven::data {

/// What is wrong with a line of a file.
struct LineFault {
    std::int64_t line = 0;
    std::string words;
};

/// The faults of a file: all are counted, the first 20 are kept.
class FaultList {
  public:
    void Add(std::int64_t line, const std::string& words);
    [[nodiscard]] const std::vector<LineFault>& First() const { return first; }
    [[nodiscard]] std::int64_t Count() const { return count; }

  private:
    std::vector<LineFault> first;
    std::int64_t count = 0;
};

/// What a file of draws holds.
struct ImportedDraws {
    std::vector<DrawOnFile> draws;  ///< those without a fault, in ascending order of date, each date once
    int incomplete = 0;             ///< how many of them lack a pick
    FaultList faults;
};

/// Reads the draws of a file from its beginning and checks each against the rules of the game; `lastDate` as in
/// `CheckDraw`. Takes no more memory than the program has dates for. Throws Refusal as `CsvText` does.
[[nodiscard]] ImportedDraws ImportDraws(std::istream& bytes, const FileForm& form, const GameRules& rules,
                                        int lastDate);

}  // namespace ballhaven::data
