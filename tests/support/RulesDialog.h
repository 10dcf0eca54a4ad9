#pragma once

#include "forms/NewGameForm.h"
#include "support/RecordBytes.h"

#include <array>
#include <string>

namespace ballhaven::support {

inline constexpr std::array<GameList, 9> gameLists = {gameTypeList, mainCountList,  bonusCountList,
                                                      orderList,    duplicatesList, mainLowList,
                                                      mainHighList, bonusLowList,   bonusHighList};

/// The user's choice of an entry of the game dialog by its index, or by its text, which must be in the list.
void Choose(GameList list, int entry);
void ChooseText(GameList list, const char* text);

/// Puts a name into the game dialog's box.
void TypeName(const char* name);

/// Saves what the dialog shows, and returns the record.
std::string SavedRecord();

/// The rules of the game dialog without its window, on a program directory of the test's own: the lists answer the
/// user's choices as in the window.
class RulesDialog : public DataFileTest {
  protected:
    RulesDialog();

    /// Puts a record into slot 1, makes that slot the current one, and opens the dialog on it.
    void Open(const std::string& record);

    [[nodiscard]] std::string Stored(int slot) const;
};

}  // namespace ballhaven::support
