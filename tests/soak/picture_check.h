// Whether the picture on the screen is the one that a full repaint would give.
//
// Asked in two halves with a pass of the loop between them: everything is painted anew, and then the screen
// must be the same. What a running game shows at a pace of its own is left out: its frames on the radar (each
// one moves the clouds on), the clock, the small scope, the ticker, the panel's preview and the strips.

#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "platform/canvas/bitmap.h"
#include "shell/program.h"

namespace ventrel {

class PictureCheck {
public:
    /// Pictures that differ are kept in that folder; with an empty path nowhere.
    explicit PictureCheck(std::filesystem::path kept) : kept_(std::move(kept)) {}

    /// Keeps the screen, and paints all windows anew.
    void paintAll(Program& program, const Bitmap& screen);

    /// What is wrong, in words; none when all is well. `name` is that of the pictures that are kept.
    std::optional<std::string> compare(Program& program, const Bitmap& screen, const std::string& name);

private:
    void keep(const std::string& name, const Bitmap& picture) const;

    std::filesystem::path kept_;
    std::optional<Bitmap> before_;
};

} // namespace ventrel
