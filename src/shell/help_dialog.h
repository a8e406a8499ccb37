// Keys, mouse and rules in short.

#pragma once

#include "resources/help.h"
#include "shell/shell.h"

namespace ventrel {

/// What that keyboard has written on the keys of a row that go by their places.
std::string keysWithoutKeypad(const help::KeyRow& row, Backend& keyboard);

void runHelpDialog(Shell& shell);

} // namespace ventrel
