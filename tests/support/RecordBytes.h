#pragma once

#include "state/AppState.h"
#include "support/Games.h"
#include "support/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ballhaven::support {

/// A field of a record by name, for the words of a failed test: first column from 1, and width.
struct NamedField {
    std::string name;
    int first;
    int width;
};

/// What a test knows of a file's records, written down apart from the program's own tables.
struct RecordFormat {
    int length;
    int count;
    std::vector<NamedField> fields;

    /// The bytes of a whole file: blanks, but for the records that are given, each padded with blanks.
    [[nodiscard]] std::string File(const std::map<int, std::string>& records = {}) const;

    /// A record, from 1, out of the bytes of a file.
    [[nodiscard]] std::string Record(const std::string& file, int record) const;

    /// Success when two files hold the same bytes, else the number of the first record and the name of the first field
    /// in which they differ.
    [[nodiscard]] ::testing::AssertionResult Same(const std::string& expected, const std::string& actual) const;
};

/// The text padded with blanks to a length.
[[nodiscard]] std::string Padded(std::string_view text, int length);

/// The text with others put over its columns, counted from 1.
[[nodiscard]] std::string WithColumns(std::string text, const std::map<int, std::string>& columns);

/// Tests in a program directory of their own.
class DataFileTest : public ::testing::Test {
  protected:
    DataFileTest() { appState.programDirectory = directory.Path(); }

    TemporaryDirectory directory;
};

}  // namespace ballhaven::support
