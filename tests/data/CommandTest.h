#pragma once

#include "data/CommandLine.h"
#include "support/TemporaryDirectory.h"
#include "tools/SampleGames.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace ballhaven::data {

/// A stream that takes nothing, as one into a full disk.
class FullDisk : public std::streambuf {
  protected:
    int_type overflow(int_type) override { return traits_type::eof(); }
};

/// Commands that are run on the sample games, in a folder of their own.
class CommandTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(tools::FillSampleFolder(directory.Path()), ""); }

    /// Runs a line on the folder; what it says is in `out` and `notes`.
    ExitCode Run(const std::vector<std::string>& arguments) {
        out.str("");
        notes.str("");
        return RunCommandLine(arguments, directory.Path(), console);
    }

    /// Runs a line on the folder while the output takes nothing.
    ExitCode RunWithoutOutput(const std::vector<std::string>& arguments) {
        notes.str("");
        FullDisk disk;
        std::ostream full(&disk);
        return RunCommandLine(arguments, directory.Path(), {full, notes});
    }

    [[nodiscard]] bool Says(const std::string& words) const { return out.str().find(words) != std::string::npos; }
    [[nodiscard]] bool Notes(const std::string& words) const { return notes.str().find(words) != std::string::npos; }

    /// The files of the folder, without the folder of copies.
    [[nodiscard]] std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(directory.Path())) {
            if (entry.is_regular_file()) {
                files[entry.path().filename().string()] = directory.Read(entry.path().filename().string());
            }
        }
        return files;
    }

    /// Puts a text over the bytes of a file, from a column (from 1) of a record (from 1) on.
    void PutInto(const std::string& name, int record, int column, const std::string& text, int recordLength = 64) {
        std::string bytes = directory.Read(name);
        bytes.replace(static_cast<std::size_t>((record - 1) * recordLength + column - 1), text.size(), text);
        directory.Write(name, bytes);
    }

    /// The only copy that the folder keeps; the empty text where there is none, or another one too.
    [[nodiscard]] std::string OnlyCopy() const {
        if (!directory.Has("copies")) {
            return "";
        }
        std::vector<std::string> copies;
        for (const auto& entry : std::filesystem::directory_iterator(directory / "copies")) {
            copies.push_back(entry.path().string());
        }
        return copies.size() == 1 ? copies.front() : "";
    }

    support::TemporaryDirectory directory;
    std::ostringstream out;
    std::ostringstream notes;
    Console console{out, notes};
};

}  // namespace ballhaven::data
