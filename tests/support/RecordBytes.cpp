#include "support/RecordBytes.h"

#include <algorithm>

namespace ballhaven::support {

std::string RecordFormat::File(const std::map<int, std::string>& records) const {
    std::string file(static_cast<std::size_t>(length) * static_cast<std::size_t>(count), ' ');
    for (const auto& [record, text] : records) {
        file.replace(static_cast<std::size_t>((record - 1) * length), static_cast<std::size_t>(length),
                     Padded(text, length));
    }
    return file;
}

std::string RecordFormat::Record(const std::string& file, int record) const {
    return file.substr(static_cast<std::size_t>((record - 1) * length), static_cast<std::size_t>(length));
}

::testing::AssertionResult RecordFormat::Same(const std::string& expected, const std::string& actual) const {
    if (expected == actual) {
        return ::testing::AssertionSuccess();
    }
    if (expected.size() != actual.size()) {
        return ::testing::AssertionFailure() << actual.size() << " bytes instead of " << expected.size();
    }
    const auto place = static_cast<int>(std::ranges::mismatch(expected, actual).in1 - expected.begin());
    const int record = place / length + 1;
    const int column = place % length + 1;
    std::string fieldName = "no field";
    for (const NamedField& field : fields) {
        if (field.first <= column && column < field.first + field.width) {
            fieldName = field.name;
        }
    }
    return ::testing::AssertionFailure() << "record " << record << ", column " << column << " (" << fieldName << "):\n["
                                         << Record(actual, record) << "] instead of\n[" << Record(expected, record)
                                         << "]";
}

std::string Padded(std::string_view text, int length) {
    std::string padded(text);
    padded.resize(static_cast<std::size_t>(length), ' ');
    return padded;
}

std::string WithColumns(std::string text, const std::map<int, std::string>& columns) {
    for (const auto& [first, part] : columns) {
        text.replace(static_cast<std::size_t>(first - 1), part.size(), part);
    }
    return text;
}

}  // namespace ballhaven::support
