// A program folder without art: pictures of one colour, which are small and quickly read.

#pragma once

#include <filesystem>

#include "base/temp_folder.h"

namespace ventrel {

/// Fills the folder; airspaces and fonts are the real ones, as links.
void makePlainProgram(const std::filesystem::path& folder);

/// Such a folder for one test.
class PlainProgram {
public:
    PlainProgram() { makePlainProgram(folder_.path()); }
    const std::filesystem::path& folder() const { return folder_.path(); }

private:
    TempFolder folder_;
};

} // namespace ventrel
