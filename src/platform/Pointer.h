#pragma once

namespace ballhaven::platform {

/// Shows the hourglass over the whole screen for as long as it lives. Several may live at a time: the last one to go
/// puts the ordinary pointer back.
class WaitPointer {
  public:
    WaitPointer();
    ~WaitPointer();
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

/// Takes the hourglass off for as long as it lives, while the user is asked for something, and puts it back where it
/// was.
class WaitPointerLifted {
  public:
    WaitPointerLifted();
    ~WaitPointerLifted();
    WaitPointerLifted(const WaitPointerLifted&) = delete;
    WaitPointerLifted& operator=(const WaitPointerLifted&) = delete;

  private:
    const int waitersBefore;
};

}  // namespace ballhaven::platform
