#include "platform/Chance.h"

namespace ballhaven::platform {

namespace {

// The splitmix generator: a counter in steps of the golden ratio, and a mixing of its bits.
constexpr std::uint64_t goldenStep = 0x9E3779B97F4A7C15;

constexpr std::uint64_t Mix(std::uint64_t bits) {
    bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
    bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
    return bits ^ (bits >> 31);
}

constexpr int singlePrecisionBits = 24;

}  // namespace

void Chance::Reseed(std::uint64_t ticks) {
    state = Mix(state ^ ticks);
}

float Chance::Next() {
    state += goldenStep;
    return static_cast<float>(Mix(state) >> (64 - singlePrecisionBits)) / float{1 << singlePrecisionBits};
}

}  // namespace ballhaven::platform
