#include "data/folder/IsoDate.h"

#include "state/DateSerial.h"

#include <cstdint>

namespace ballhaven::data {

std::string IsoDate(int serial) {
    return TextOfSerial(static_cast<std::int16_t>(serial), "y-m-d");
}

}  // namespace ballhaven::data
