// The words for what happens: the lines of the ticker and the phrases of the pilots, made from the events'
// facts in this one place.

#pragma once

#include <string>
#include <string_view>

#include "sim/game.h"

namespace ventrel {

MessageClass reportClass(Topic topic);

/// The line, Windows-1252.
std::string reportText(const Game& game, const Report& report);

/// The call as phrase characters.
std::string radioPhrase(const Game& game, const RadioCall& call);

} // namespace ventrel
