#pragma once

#include <stdexcept>

namespace ballhaven::data {

/// Why a command is not done: a message in UTF-8 that names what is wrong, where, and what to do. Nothing has been
/// changed where it is thrown, unless its words say so. It ends the command where the line was read; an importer on the
/// way may add to its words, or try another reading of its file. It is a standard exception, so that nothing else is
/// caught there in a way of its own.
class Refusal : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace ballhaven::data
