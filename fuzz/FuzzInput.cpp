#include "fuzz/FuzzInput.h"

#include "state/AppState.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace ballhaven::fuzz {

int FuzzInput::Choice(int count) {
    if (taken == bytes.size()) {
        return 0;
    }
    return bytes[taken++] % count;
}

std::string FuzzInput::File(std::initializer_list<int> lengths) const {
    const std::string raw(bytes.begin() + static_cast<std::ptrdiff_t>(std::min(taken + 1, bytes.size())), bytes.end());
    const std::size_t choice = taken < bytes.size() ? bytes[taken] % (3 * lengths.size() + 1) : 0;
    if (choice == 0 || raw.empty()) {
        return raw;
    }
    const int around = *(lengths.begin() + (choice - 1) / 3) + static_cast<int>((choice - 1) % 3) - 1;
    std::string file;
    file.reserve(static_cast<std::size_t>(around) + raw.size());
    while (file.size() < static_cast<std::size_t>(around)) {
        file += raw;
    }
    file.resize(static_cast<std::size_t>(around));
    return file;
}

std::string FuzzInput::Rest() const {
    return {bytes.begin() + static_cast<std::ptrdiff_t>(taken), bytes.end()};
}

std::int16_t FuzzInput::Value(int place) const {
    const auto first = static_cast<std::size_t>(place) * 2;
    return static_cast<std::int16_t>(At(first) * 256 + At(first + 1));
}

std::uint8_t FuzzInput::At(std::size_t place) const {
    const std::size_t left = bytes.size() - taken;
    return left == 0 ? std::uint8_t{0} : bytes[taken + place % left];
}

const support::TemporaryDirectory& ProgramDirectory() {
    static const support::TemporaryDirectory directory;
    appState.programDirectory = directory.Path();
    return directory;
}

void Expect(bool holds, const char* claim) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", claim);
        std::abort();
    }
}

std::int16_t FirstTwoDigits(std::int16_t pick) {
    int digits = pick;
    while (digits > 99) {
        digits /= 10;
    }
    return static_cast<std::int16_t>(digits);
}

}  // namespace ballhaven::fuzz
