// What a message to the player is about.

#pragma once

namespace ventrel {

/// The picture (and the system sound) of a message box.
enum class MessageIcon {
    none,
    stop, ///< file, memory and display failures
    question,
    exclamation, ///< questions that guard something, and warnings
    information, ///< input errors
};

} // namespace ventrel
