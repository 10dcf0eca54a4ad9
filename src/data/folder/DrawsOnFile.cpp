#include "data/folder/DrawsOnFile.h"

#include "data/folder/FolderFiles.h"
#include "state/modUTILS.h"

#include <algorithm>
#include <array>
#include <span>

namespace ballhaven::data {

namespace {

std::string_view RecordOf(std::string_view content, int record) {
    const auto begin = static_cast<std::size_t>((record - 1) * drawRecordLength);
    return begin < content.size() ? content.substr(begin, drawRecordLength) : std::string_view();
}

/// A record that the end of its file may have cut, at its full length.
std::string WholeRecord(std::string_view record) {
    return modUTILS::FixedWidth(record, drawRecordLength);
}

}  // namespace

void SortByDate(std::vector<DrawOnFile>& draws) {
    std::ranges::stable_sort(draws, {}, &DrawOnFile::date);
}

DrawsOnFile DrawsOf(std::string_view content, int picks) {
    DrawsOnFile file;
    file.digits = DateDigitsOf(WholeRecord(RecordOf(content, headerRecord)));
    std::vector<std::int16_t> cells(static_cast<std::size_t>(1 + picks));
    for (int record = firstDrawRecord; record <= drawFileRecords; ++record) {
        const std::string_view text = RecordOf(content, record);
        if (text.empty()) {
            break;
        }
        if (DecodeDraw(WholeRecord(text), file.digits, cells)) {
            file.draws.push_back({cells.front(), {cells.begin() + 1, cells.end()}});
        }
    }
    return file;
}

BesideDraws BesideDrawsOf(std::string_view content, int picks) {
    BesideDraws beside;
    const DateDigits digits = DateDigitsOf(WholeRecord(RecordOf(content, headerRecord)));
    std::array<std::int16_t, 1 + mostPicksOfDraw> cells{};
    const std::span<const std::int16_t> behind =
        std::span(cells).subspan(static_cast<std::size_t>(std::min(picks, mostPicksOfDraw)) + 1);
    for (int record = firstDrawRecord; record <= drawFileRecords; ++record) {
        const std::string_view text = RecordOf(content, record);
        if (text.find_first_not_of(' ') == std::string_view::npos) {
            continue;
        }
        if (!DecodeDraw(WholeRecord(text), digits, cells)) {
            ++beside.recordsWithoutDate;
        } else if (std::ranges::any_of(behind, [](std::int16_t pick) { return pick >= 0; })) {
            ++beside.drawsWithMorePicks;
        }
    }
    return beside;
}

DrawsOnFile ReadDraws(const std::string& directory, const GameOnFile& game) {
    return DrawsOf(ReadFolderFile(directory, HistoryFileOf(game.slot)).value_or(""), TotalPicksOf(game.rules));
}

std::string ContentOf(const DrawsOnFile& file, const std::optional<std::string>& oldContent) {
    // A content of the older form, or none, is filled up, and gets the stamp as the program gives it.
    const std::string_view old = oldContent ? std::string_view(*oldContent) : std::string_view();
    std::string header = WholeRecord(RecordOf(old, headerRecord));
    if (old.size() <= std::size_t{drawRecordLength} * olderDrawFileRecords) {
        header = StampedHeader(header);
    }
    if (file.digits == DateDigits::Five) {
        header = WithFiveDigits(header);
    }
    std::string content = WholeRecord(header);
    content.reserve(std::size_t{drawRecordLength} * drawFileRecords);
    std::vector<std::int16_t> cells;
    for (const DrawOnFile& draw : std::span(file.draws).first(std::min<std::size_t>(file.draws.size(), historyRows))) {
        cells.assign(1, draw.date);
        cells.insert(cells.end(), draw.picks.begin(), draw.picks.end());
        content += EncodeDraw(cells, file.digits);
    }
    content.resize(std::size_t{drawRecordLength} * drawFileRecords, ' ');
    return content;
}

std::string WithFiveDigitDates(std::string content) {
    const auto length = static_cast<std::size_t>(drawRecordLength);
    constexpr auto fifthDigit = static_cast<std::size_t>(drawField::fifthDigit.first - 1);
    for (std::size_t row = length; row + fifthDigit < content.size(); row += length) {
        content[row + fifthDigit] = ' ';
    }
    const std::string header = WithFiveDigits(content.substr(0, length));
    return header + content.substr(std::min(length, content.size()));
}

}  // namespace ballhaven::data
