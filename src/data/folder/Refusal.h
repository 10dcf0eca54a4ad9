#pragma once

#include <stdexcept>

namespace ballhaven::data {

/// Why a command is not done: a message in UTF-8 that names what is wrong, where, and what to do. Nothing has been
/// changed where it is thrown, and it is caught only where the command's line was read.
class Refusal : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace ballhaven::data
