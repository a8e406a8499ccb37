// What the dialogs before a shift share: the level, by its radio buttons from `new_game::firstSkill` on, and
// the airspace, by its button and its name.

#pragma once

#include <vector>

#include "platform/widgets/dialog.h"
#include "records/airport_catalogue.h"
#include "shell/shell.h"

namespace ventrel {

/// Of the options file, which keeps what was chosen.
inline constexpr std::string_view gameSection = "Game";
inline constexpr std::string_view nameKey = "Name"; ///< of the controller
inline constexpr std::string_view skillKey = "Skill";

/// Under which the player last began a game, or what stands for him who has not.
std::string lastControllerName(const Shell& shell);

/// All airspaces. Damaged files are told of in one box, and each only once.
std::vector<CatalogueEntry> openAirportCatalogue(Shell& shell);

/// The entry that the player has chosen; an empty one when the number names none.
CatalogueEntry chosenAirport(const Shell& shell, const std::vector<CatalogueEntry>& catalogue);

/// Lets the player choose one, which is kept and shown by the control `label`.
void chooseAirport(Shell& shell, const std::vector<CatalogueEntry>& catalogue, Dialog& dialog, int label);

/// Checks the level of the last time and returns its number, which may be out of range; then none is checked.
int checkLastSkill(const Shell& shell, Dialog& dialog);

/// The level that is checked; Custom also when none is.
Skill checkedSkill(const Dialog& dialog);

} // namespace ventrel
