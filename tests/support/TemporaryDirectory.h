#pragma once

#include <map>
#include <string>
#include <string_view>

namespace ballhaven::support {

/// A program directory of its own for a test, with a blank in its name; removed with all that is in it at the end of
/// its scope.
class TemporaryDirectory {
  public:
    TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    ~TemporaryDirectory();

    /// With a separator at its end, as `programDirectory` has it.
    [[nodiscard]] const std::string& Path() const { return path; }

    /// The full path of a file in it.
    [[nodiscard]] std::string operator/(std::string_view name) const { return path + std::string(name); }

    /// Makes a file hold just these bytes.
    void Write(std::string_view name, std::string_view bytes) const;

    /// All bytes of a file. Throws std::runtime_error for one that is not there.
    [[nodiscard]] std::string Read(std::string_view name) const;

    [[nodiscard]] bool Has(std::string_view name) const;

    /// The names of all files with their bytes.
    [[nodiscard]] std::map<std::string, std::string> Files() const;

  private:
    std::string path;
};

}  // namespace ballhaven::support
