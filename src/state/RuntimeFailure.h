#pragma once

#include <stdexcept>
#include <string>

namespace ballhaven {

/// A failure that nothing in the program answers: the process ends after a box that names it.
class RuntimeFailure : public std::runtime_error {
  public:
    enum class Kind { Overflow, SubscriptOutOfRange, DivisionByZero, FileError };

    /// Overflow, subscript out of range or division by zero; the words name the kind.
    explicit RuntimeFailure(Kind failureKind);

    /// A file error, with the file's path and the system's reason.
    RuntimeFailure(const std::string& path, const std::string& reason);

    [[nodiscard]] Kind GetKind() const { return kind; }

  private:
    Kind kind;
};

}  // namespace ballhaven
