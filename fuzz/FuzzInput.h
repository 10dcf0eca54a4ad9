#pragma once

#include "support/TemporaryDirectory.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>

namespace ballhaven::fuzz {

/// The bytes that the fuzzer made, taken piece by piece.
class FuzzInput {
  public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : bytes(data, data + size) {}

    /// A number from 0 to `count` - 1; 0 when the bytes are used up.
    [[nodiscard]] int Choice(int count);

    /// A data file from all bytes that are left: as they are, or repeated up to one of the lengths at which the reader
    /// changes its way, give or take a byte. So a short input reaches every record of a large file.
    [[nodiscard]] std::string File(std::initializer_list<int> lengths) const;

    /// All bytes that are left.
    [[nodiscard]] std::string Rest() const;

    /// The 16-bit integer at a place in the bytes that are left, which are repeated without end; 0 without bytes.
    [[nodiscard]] std::int16_t Value(int place) const;

  private:
    [[nodiscard]] std::uint8_t At(std::size_t place) const;

    std::basic_string<std::uint8_t> bytes;
    std::size_t taken = 0;
};

/// The program directory of the fuzzer's process, in which `appState.programDirectory` points from the first call on.
const support::TemporaryDirectory& ProgramDirectory();

/// Stops the fuzzer with a finding where a claim does not hold.
void Expect(bool holds, const char* claim);

/// What a field of two columns gives back for a pick of 0 or more: at most its first two digits.
[[nodiscard]] std::int16_t FirstTwoDigits(std::int16_t pick);

}  // namespace ballhaven::fuzz
