// Plays the text files of tests/window on a headless machine: the same steps that play_in_window.sh, which
// describes them, takes in a real window.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/headless/script.h"

namespace ventrel {

struct PlayedProgram {
    HeadlessBackend& backend;
    /// What the program has written by now, a line each.
    const std::vector<std::string>& said;
};

/// Adds every step to the backend's timeline; steps that look fail the running test when it is not so. The
/// last one, "ends", is the caller's to see: the program's loop returns. Returns the number of steps.
int addWindowPlay(const PlayedProgram& program, const std::filesystem::path& play);

} // namespace ventrel
