// How a part of the program tells the player that something failed.
//
// Code below the shell reports through a function that it is given; the shell shows message boxes,
// the command-line tools write to standard error, tests collect the texts.

#pragma once

#include <functional>
#include <string_view>

namespace ventrel {

/// The picture (and the system sound) of a message box.
enum class MessageIcon {
    none,
    stop, ///< file, memory and display failures
    question,
    exclamation, ///< questions that guard something, and warnings
    information, ///< input errors
};

/// Shows one finished text (Windows-1252) to the player and returns when it has been taken note of.
using FailureReporter = std::function<void(std::string_view text, MessageIcon icon)>;

} // namespace ventrel
