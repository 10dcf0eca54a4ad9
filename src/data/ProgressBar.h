#pragma once

#include "data/Console.h"

#include <string>
#include <utility>

namespace ballhaven::data {

/// A bar on one line of the notes that grows while a work is done, and is gone at the end of the scope. Only a terminal
/// shows it.
class ProgressBar {
  public:
    /// The label stands before the bar.
    ProgressBar(const Console& output, std::string text) : console(output), label(std::move(text)) {}
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    /// The share of the work that is done, 0 to 1.
    void Show(double share);

  private:
    Console console;
    std::string label;
    int percentShown = -1;
};

}  // namespace ballhaven::data
