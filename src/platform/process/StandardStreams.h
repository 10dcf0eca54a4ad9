#pragma once

namespace ballhaven::platform {

/// Puts an empty stream in the place of each standard stream that the process was started without, so that no file
/// takes its number and gets the words that are meant for it. Whatever is written there fails, as it would without
/// one. To be called before anything is opened.
void FillStandardStreams();

}  // namespace ballhaven::platform
