// Faces and sizes of text, and their measures. The one place that knows FreeType is behind this header.
//
// A FontSet owns everything loaded; fonts are cheap references into it and live as long as it does.

#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "base/failure.h"
#include "platform/canvas/canvas.h"

namespace ventrel {

/// The faces by the names under which the windows ask for them; each stands for a free face of the same
/// measures.
enum class Face {
    arial,
    smallFonts,
    msSansSerif, ///< dialogs and message boxes
    courierNew,
};

struct FontRequest {
    Face face = Face::msSansSerif;
    /// Pixels: above 0 the height of a whole line's cell, below 0 the height of the characters alone.
    int height = -11;
    bool bold = false;

    friend constexpr auto operator<=>(const FontRequest&, const FontRequest&) = default;
};

/// One face at one size. Texts are Windows-1252; a character that the face lacks shows as an empty box.
class Font {
public:
    virtual ~Font() = default;

    virtual int lineHeight() const = 0;   ///< from the top of one line to the top of the next
    virtual int ascent() const = 0;       ///< from the top of a line to its base line
    virtual int averageWidth() const = 0; ///< of the letters, as dialog units count it
    /// How far the text moves the pen, in pixels.
    virtual int width(std::string_view text) const = 0;

    /// Draws one line with its top-left corner at `corner`, glyph by glyph; control characters draw nothing.
    virtual void draw(Canvas& canvas, Point corner, std::string_view text, Colour colour) const = 0;
};

class FontSet {
public:
    /// Loads the faces from the program's font folder. A missing or damaged one is reported by name (text 1,
    /// stop icon); `isComplete` then is false, and its fonts draw nothing.
    FontSet(const std::filesystem::path& folder, const FailureReporter& report);
    ~FontSet();
    FontSet(FontSet&&) noexcept;
    FontSet& operator=(FontSet&&) noexcept;

    bool isComplete() const;

    /// The font for a request, made at the first call for it.
    const Font& font(const FontRequest& request);

private:
    struct Contents;
    std::unique_ptr<Contents> contents_;
};

} // namespace ventrel
