// The seam to the library that draws the characters of font files: FreeType, as openings that close
// themselves.
//
// Owned and driven by the FontSet. Nothing of FreeType leaves font_face.cpp.

#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "platform/text/font.h"

struct FT_LibraryRec_;
struct FT_FaceRec_;

namespace ventrel {

struct FreeTypeCloser {
    void operator()(FT_LibraryRec_* library) const;
    void operator()(FT_FaceRec_* face) const;
};

/// None when the library cannot start, which only a lack of memory explains.
using FreeTypeLibrary = std::unique_ptr<FT_LibraryRec_, FreeTypeCloser>;
FreeTypeLibrary startFreeType();

/// A face and the bytes it reads from. It must go before its library does.
struct FontFace {
    std::vector<std::byte> file;
    std::unique_ptr<FT_FaceRec_, FreeTypeCloser> face;
};

/// None when the file is missing, damaged or not a scalable face.
std::optional<FontFace> openFontFace(const FreeTypeLibrary& library, const std::filesystem::path& file);

/// Draws all characters of a face. `height` as in a FontRequest.
Font renderFont(const FontFace& face, int height);

/// What stands in for a font whose file is missing: it has measures, so that windows keep their shape, and
/// draws nothing.
Font blankFont(int height);

} // namespace ventrel
