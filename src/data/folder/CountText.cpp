#include "data/folder/CountText.h"

namespace ballhaven::data {

std::string CountText(std::int64_t count, const std::string& one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

}  // namespace ballhaven::data
