#pragma once

#include "plays/PlayMethodCode.h"
#include "state/AppState.h"
#include "state/RecordField.h"

#include <string>
#include <string_view>

namespace ballhaven {

// A file of plays, PLAYS01.CDB to PLAYS20.CDB: record n is play n. Texts and values only; nothing here knows a file or
// `appState`.

[[nodiscard]] std::string PlayFileName(int slot);

inline constexpr int playRecordLength = 64;
inline constexpr int olderPlayFileRecords = 1000;  ///< of the version that kept 1000 plays

namespace playField {

inline constexpr RecordField method{1, methodCodeWidth};

/// The pick in a slot (1 to 10) of a list: the main picks stand from column 6 on, the bonus picks from column 36 on.
[[nodiscard]] constexpr RecordField Pick(PickColumn list, int slot) {
    return {3 * (list * picksPerPlay + slot) + 3, 2};
}

}  // namespace playField

/// Puts a record, at its full length, into a play (1 to 5000), in all its slots. A field that holds no number reads as
/// 0.
void DecodePlay(std::string_view record, PlayPicks& plays, int play);

/// The record of a play. Of a cell number above 99 the first two digits are stored.
[[nodiscard]] std::string EncodePlay(const PlayPicks& plays, int play);

}  // namespace ballhaven
