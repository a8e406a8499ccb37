// Files in the making, under hidden names of their own, and what a killed program has left of them.
//
// Each is locked for as long as its maker lives. One that nobody holds is left over: nothing of it was ever
// seen under its final name. Private to this room.

#pragma once

#include <filesystem>

#include "base/file_handle.h"

namespace ventrel {

struct UnfinishedFile {
    FileHandle handle = FileHandle(); ///< locked where the disk can; not open where none could be made
    std::filesystem::path path = {};
    int error = 0; ///< then, the system's number of the reason
};

/// A new empty file of the folder that nobody else has.
UnfinishedFile makeUnfinishedFile(const std::filesystem::path& folder);

/// Takes those away whose makers have died, if they are the player's. What cannot be taken away stays.
void clearUnfinishedFiles(const std::filesystem::path& folder);

} // namespace ventrel
