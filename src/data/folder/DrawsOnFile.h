#pragma once

#include "data/folder/GamesOnFile.h"
#include "history/DrawRecord.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ballhaven::data {

struct DrawOnFile {
    std::int16_t date = 0;            ///< serial, above 0
    std::vector<std::int16_t> picks;  ///< as many as a draw of the game has; -1 for a blank one

    bool operator==(const DrawOnFile&) const = default;
};

/// The draws of a file in the order of their rows.
struct DrawsOnFile {
    DateDigits digits = DateDigits::Four;
    std::vector<DrawOnFile> draws;

    bool operator==(const DrawsOnFile&) const = default;
};

/// Puts draws in ascending order of date; those of one date keep their order.
void SortByDate(std::vector<DrawOnFile>& draws);

/// What a content holds beside its draws, as a game with so many picks reads them.
struct BesideDraws {
    int recordsWithoutDate = 0;  ///< or with one that cannot be read, and something behind it
    int drawsWithMorePicks = 0;

    bool operator==(const BesideDraws&) const = default;
};

[[nodiscard]] BesideDraws BesideDrawsOf(std::string_view content, int picks);

/// The draws of a content, with this many picks. Rows without a date are left out.
[[nodiscard]] DrawsOnFile DrawsOf(std::string_view content, int picks);

/// The draws of a game of a folder; none where it has no file of draws yet. Throws Refusal.
[[nodiscard]] DrawsOnFile ReadDraws(const std::string& directory, const GameOnFile& game);

/// The content of a whole file with these draws in its first rows and the header of the old content, if there was any.
/// Of more than 1000 draws the last ones are not in it.
[[nodiscard]] std::string ContentOf(const DrawsOnFile& file, const std::optional<std::string>& oldContent);

/// A content of four digits with the mark of dates of five, each date the one that it was read as.
[[nodiscard]] std::string WithFiveDigitDates(std::string content);

}  // namespace ballhaven::data
