#pragma once

#include <functional>

namespace ballhaven::platform {

/// Runs what the toolkit calls when the user acts, so that no exception travels through it. A failure that nothing
/// caught is told in one critical box, in the words of `services.explainFailure`, and the process ends. What has not
/// been saved is lost, unless the failure left it whole: a failure in a scope of `OnlyReads`, or of a save that the
/// user has given up. Then `services.savesBeforeTheEnd` run first.
///
/// While a box of a failure is open, no act is run.
void RunGuarded(const std::function<void()>& act);

/// Runs what the toolkit calls to draw, which changes nothing: as `RunGuarded`, but all of it is a scope of
/// `OnlyReads`, and it is run also while a box of a failure is open, so that the windows behind the box keep their
/// contents. A failure of its own is passed over then.
void RunGuardedReading(const std::function<void()>& reading);

/// A scope that counts or draws, and changes neither draws nor plays: a failure that leaves it leaves them whole.
class OnlyReads {
  public:
    OnlyReads();
    ~OnlyReads();
    OnlyReads(const OnlyReads&) = delete;
    OnlyReads& operator=(const OnlyReads&) = delete;

  private:
    const int failuresBefore;
};

/// Runs a save. When it fails, the user is asked whether to try again, for as long as he says so; then its failure goes
/// on, and the guard, which has nothing to add to the question, ends the process.
void SaveOrAskAgain(const std::function<void()>& save);

}  // namespace ballhaven::platform
