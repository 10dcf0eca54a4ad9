#pragma once

namespace ballhaven {

/// Opens the game dialog for the first slot that no game has been set up in, the current one if it is such a slot; says
/// so when all twenty are taken. The record of another free slot is stored over the current game's, whose name and
/// rules are gone then; its draws and plays stay in their files.
void AddGame();

/// Opens the game dialog for the current game.
void AlterGame();

/// Asks, and then wipes the draws, the plays, the chosen main picks and the rules of the current game. Its slot stays
/// the current one.
void DeleteGame();

/// Asks whether to set the game up, if the selected one is "un-defined", and on Yes opens the game dialog for it.
void AskToSetUpGame();

}  // namespace ballhaven
