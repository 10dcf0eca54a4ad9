#pragma once

namespace ballhaven::support {

/// Puts all that the program keeps beside its files back to the start of the process: the state (with "m/d/y" as the
/// pattern of dates), every form, the services, the calls of the system's files, the
/// application's title. The services are those of a machine without a screen, but a box or an end of the process that
/// no test has asked for fails it.
void StartAfresh();

/// Unloads every form that is loaded, without its handler of the unloading.
void CloseForms();

/// Within a test: puts the state and every form back, and lays the main window out. Services stay as they are.
void LayOutAfresh();

/// Starts every test of the process afresh, and leaves nothing of it behind. With the toolkit that is at work now.
/// To be called once, before the tests run.
void StartEveryTestAfresh();

}  // namespace ballhaven::support
