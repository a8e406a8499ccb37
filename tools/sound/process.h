// Starting other programs.

#pragma once

#include <string>
#include <vector>

#include "base/result.h"

namespace ventrel::sound {

/// Runs a program found on the path, with its arguments, to its end. What it says goes where ours does.
Result<> run(const std::vector<std::string>& words);

} // namespace ventrel::sound
