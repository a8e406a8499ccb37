// The list of airports to choose from.

#pragma once

#include <optional>
#include <span>

#include "records/airport_catalogue.h"
#include "shell/shell.h"

namespace ventrel {

/// The chosen place in the catalogue; none when the player chose nothing.
std::optional<int> runAirportDialog(Shell& shell, std::span<const CatalogueEntry> catalogue);

} // namespace ventrel
