#include "platform/Guard.h"

#include "platform/Application.h"
#include "platform/Boxes.h"
#include "platform/Services.h"

#include <exception>
#include <string>
#include <utility>

namespace ballhaven::platform {

namespace {

/// A failure is being dealt with: what the windows behind its box would do might fail again.
bool failing = false;

bool readingFailed = false;  ///< the failure on its way left a scope of `OnlyReads`
bool saveGivenUp = false;    ///< the failure on its way is a save's, of which the user knows

class Failing {
  public:
    Failing() : before(std::exchange(failing, true)) {}
    ~Failing() { failing = before; }
    Failing(const Failing&) = delete;
    Failing& operator=(const Failing&) = delete;

  private:
    const bool before;
};

bool AskToTryAgain(const std::exception& failure) {
    const Failing held;
    return Ask(std::string(failure.what()) +
                   "\n\nThe file is as it was when it was last saved. Make it possible to write it, and try again."
                   "\nOtherwise the program ends, and what has been changed since is lost.\n\nTry again?",
               BoxIcon::Critical);
}

/// Saves what can be saved. A save that fails as the failure did of which the user knows is not asked about once more.
void SaveBeforeTheEnd(const std::string& known) {
    for (const std::function<void()>& save : services.savesBeforeTheEnd) {
        bool open = true;
        while (open) {
            try {
                save();
                open = false;
            } catch (const std::exception& failure) {
                open = failure.what() != known && AskToTryAgain(failure);
            }
        }
    }
}

void EndBy(const std::exception& failure) {
    const Failing held;
    const bool inReading = std::exchange(readingFailed, false);
    const bool told = std::exchange(saveGivenUp, false);
    if (inReading || told) {
        SaveBeforeTheEnd(failure.what());
    }
    if (!told) {
        Tell(services.explainFailure(failure, inReading), BoxIcon::Critical);
    }
    EndProcess(1);
}

}  // namespace

void RunGuarded(const std::function<void()>& act) {
    if (failing) {
        return;
    }
    readingFailed = false;
    saveGivenUp = false;
    try {
        act();
    } catch (const std::exception& failure) {
        EndBy(failure);
    }
}

void RunGuardedReading(const std::function<void()>& reading) {
    try {
        const OnlyReads scope;
        reading();
    } catch (const std::exception& failure) {
        if (!failing) {
            EndBy(failure);
        }
    }
}

OnlyReads::OnlyReads() : failuresBefore(std::uncaught_exceptions()) {}

OnlyReads::~OnlyReads() {
    if (std::uncaught_exceptions() > failuresBefore && !failing) {
        readingFailed = true;
    }
}

void SaveOrAskAgain(const std::function<void()>& save) {
    for (;;) {
        try {
            save();
            return;
        } catch (const std::exception& failure) {
            if (failing || !AskToTryAgain(failure)) {
                saveGivenUp = !failing;
                throw;
            }
        }
    }
}

}  // namespace ballhaven::platform
