#pragma once

#include "data/checks/Examination.h"
#include "history/DrawRecord.h"

#include <string>
#include <vector>

namespace ballhaven::data {

/// A row of a file of draws that something stands in, or a row between others.
struct HistoryRow {
    int record = 0;
    int date = 0;  ///< serial, as the program reads it; 0 where it reads no draw
    std::string text;
};

/// "draw of 2004-05-06".
[[nodiscard]] std::string DrawSubject(int date);

/// Looks at the order of all rows of a file, and puts them as they are to be: draws together from the first row on, by
/// date, and behind them the rows in which the program reads no draw.
void CheckRowOrder(Examination& examination, const std::vector<HistoryRow>& rows, DateDigits digits,
                   bool folderIsMended);

}  // namespace ballhaven::data
