#pragma once

#include <functional>

namespace ballhaven::platform {

/// What the program does when its surroundings end: the start hangs it here.
struct CloseDownNotices {
    /// Saves what is dirty. The program goes on.
    std::function<void()> save;

    /// Closes the program as its user does, which ends the process.
    std::function<void()> close;
};

extern CloseDownNotices closeDownNotices;

/// Saves what is dirty, since the end may come: the desktop's session is about to close.
void SaveBeforeTheEnd();

/// Closes the program in order, whatever window, menu or question is open, and ends the process; while a failure is
/// being told, it ends the process only.
void CloseInOrder();

/// Saves what can be saved when the screen has gone already, with every box unseen, and ends the process.
void CloseWithoutAScreen();

}  // namespace ballhaven::platform
