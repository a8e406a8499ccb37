// Faces and sizes of text, and their measures. Texts are Windows-1252.
//
// A FontSet owns the faces of the program's font folder and every font made of them; fonts are handed out as
// references and live as long as the set. A font is finished when it is made: all its characters are drawn
// once, and from then on it is a plain table. The font files' library is known to font_face.cpp alone.

#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "platform/canvas/canvas.h"
#include "platform/canvas/canvas_limits.h"

namespace ventrel {

/// The faces by the names under which the windows ask for them; each stands for a free face of the same
/// measures (docs/fonts.md).
enum class Face {
    arial,
    smallFonts,
    msSansSerif, ///< dialogs and message boxes
    courierNew,
};

struct FontRequest {
    Face face = Face::msSansSerif;
    /// Pixels: above 0 the height of a whole line's cell, below 0 the height of the characters alone. The
    /// characters never become smaller than can be read.
    int height = -11;
    bool bold = false;

    friend constexpr auto operator<=>(const FontRequest&, const FontRequest&) = default;
};

/// Around all that can be drawn.
inline constexpr Rect everywhere{-farthestPosition, -farthestPosition, farthestPosition, farthestPosition};

/// One character's picture: where it lies and how far it moves the pen.
struct Glyph {
    Rect ink; ///< from the pen at the top of the line; may stick out of the line on any side
    int advance = 0;
    std::size_t coverage = 0; ///< where its first row stands in the font's coverage
};

struct FontMeasures {
    int lineHeight = 0;   ///< from the top of one line to the top of the next
    int ascent = 0;       ///< from the top of a line to its base line
    int averageWidth = 0; ///< of the letters, as dialog units count it
};

/// One face at one size. A character that the face lacks shows as an empty box; control characters draw
/// nothing and take no room.
class Font {
public:
    static constexpr std::size_t glyphCount = 256;

    /// `coverage` holds the rows of every glyph's ink, a byte a pixel: 0 clear to 255 solid.
    Font(const FontMeasures& measures, const std::array<Glyph, glyphCount>& glyphs,
         std::vector<std::uint8_t> coverage);

    int lineHeight() const { return measures_.lineHeight; }
    int ascent() const { return measures_.ascent; }
    int averageWidth() const { return measures_.averageWidth; }

    /// How far the text moves the pen, in pixels: the sum of its characters, whatever stands beside what.
    int width(std::string_view text) const;

    /// Draws one line with its top-left corner at `corner`, where it falls inside `inside`.
    void draw(Canvas& canvas, Point corner, std::string_view text, Colour colour,
              const Rect& inside = everywhere) const;

private:
    const Glyph& glyph(char c) const { return glyphs_[static_cast<unsigned char>(c)]; }
    Rect ink(std::string_view text) const;

    FontMeasures measures_;
    std::array<Glyph, glyphCount> glyphs_;
    std::vector<std::uint8_t> coverage_;
};

class FontSet {
public:
    /// Loads the faces from the program's font folder. For one that is missing or damaged another of the
    /// folder stands in. Without any, fonts draw nothing.
    explicit FontSet(const std::filesystem::path& folder);
    ~FontSet();
    FontSet(FontSet&&) noexcept;
    FontSet& operator=(FontSet&&) noexcept;

    /// The faces that are missing or damaged, each by name (text 1, stop icon).
    std::span<const Failure> failures() const;
    /// There is one at least, so that texts can be read.
    bool hasFaces() const;

    /// The font for a request, made at the first call for it.
    const Font& font(const FontRequest& request);

private:
    struct Contents;
    std::unique_ptr<Contents> contents_;
};

} // namespace ventrel
