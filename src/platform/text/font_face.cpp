#include "platform/text/font_face.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <span>

#include "base/whole_file.h"
#include "base/windows1252.h"

namespace ventrel {

namespace {

constexpr std::size_t largestFontFile = std::size_t{16} << 20;

/// Below this, 6 and 8 and 3 and 9 run into one another (docs/fonts.md).
constexpr int smallestPixels = 9;
/// From here on strokes are thick enough to stay even by whatever hints.
constexpr int firstRoomyPixels = 15;
/// From here on stairs show, and shades between black and white no longer blur thin strokes.
constexpr int firstSmoothPixels = 24;

constexpr char firstPrintable = ' ';
constexpr char deleteCharacter = 0x7F;

constexpr int wholePixels(FT_Pos sixtyFourths) {
    return static_cast<int>((sixtyFourths + 32) >> 6);
}

constexpr int roundedUp(long numerator, long denominator) {
    return static_cast<int>((numerator + denominator - 1) / denominator);
}

bool isControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < firstPrintable || byte == deleteCharacter;
}

bool isLetter(std::size_t byte) {
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

/// The size of the characters for a request's height.
int characterPixels(const FT_FaceRec_& face, int height) {
    const int cell = face.ascender - face.descender;
    const int pixels = height > 0 ? (height * face.units_per_EM + cell / 2) / cell : -height;
    return std::max(pixels, smallestPixels);
}

/// A requested cell is kept to the pixel; the base line then stands where the descenders still fit.
FontMeasures lineMeasures(const FT_FaceRec_& face, int height, int pixels) {
    const int ascent = roundedUp(long{face.ascender} * pixels, face.units_per_EM);
    const int descent = roundedUp(-long{face.descender} * pixels, face.units_per_EM);
    const int lineHeight = height > 0 ? std::max(height, pixels) : ascent + descent;
    return {lineHeight, lineHeight - descent, 0};
}

/// The mean of the 52 letters, rounded.
int averageWidth(const std::array<Glyph, Font::glyphCount>& glyphs) {
    int sum = 0;
    int count = 0;
    for (std::size_t byte = 0; byte < glyphs.size(); ++byte) {
        sum += isLetter(byte) ? glyphs[byte].advance : 0;
        count += isLetter(byte) ? 1 : 0;
    }
    return (sum + count / 2) / count;
}

/// Up to its release 1 the faces' own hints make even letters in black and white; later ones are hinted for
/// shades, and leave bumps and gaps (docs/fonts.md).
bool isHintedForShades(FT_FaceRec_* face) {
    constexpr FT_Fixed releaseTwo = 2 << 16;
    const auto* head = static_cast<const TT_Header*>(FT_Get_Sfnt_Table(face, FT_SFNT_HEAD));
    return head != nullptr && head->Font_Revision >= releaseTwo;
}

FT_Int32 loadFlags(FT_FaceRec_* face, int pixels) {
    if (pixels >= firstSmoothPixels) {
        return FT_LOAD_RENDER | FT_LOAD_TARGET_NORMAL;
    }
    const bool needsOtherHints = pixels < firstRoomyPixels && isHintedForShades(face);
    return FT_LOAD_RENDER | FT_LOAD_TARGET_MONO |
           (needsOtherHints ? FT_LOAD_FORCE_AUTOHINT : FT_LOAD_DEFAULT);
}

/// How far a character moves the pen: what its hints say, but where they are not the face's own its true
/// width, which they would stretch.
int advanceOf(const FT_GlyphSlotRec_& slot, FT_Int32 flags) {
    constexpr int fixedToSixtyFourths = 10;
    const bool isStretched = (flags & FT_LOAD_FORCE_AUTOHINT) != 0;
    return wholePixels(isStretched ? slot.linearHoriAdvance >> fixedToSixtyFourths : slot.advance.x);
}

/// Appends the pixels of a drawn character, spreading bits to bytes where it was drawn in black and white.
void appendCoverage(const FT_Bitmap& bitmap, std::vector<std::uint8_t>& coverage) {
    for (unsigned y = 0; y < bitmap.rows; ++y) {
        const unsigned char* row = bitmap.buffer + static_cast<std::ptrdiff_t>(y) * bitmap.pitch;
        for (unsigned x = 0; x < bitmap.width; ++x) {
            const bool isSet = (row[x / 8] >> (7 - x % 8) & 1) != 0;
            coverage.push_back(bitmap.pixel_mode == FT_PIXEL_MODE_MONO ? (isSet ? 0xFF : 0) : row[x]);
        }
    }
}

/// The glyph of a character, or the face's empty box where it has none. A glyph that the file holds damaged
/// stays blank.
Glyph renderGlyph(FT_FaceRec_* face, char32_t character, int ascent, FT_Int32 flags,
                  std::vector<std::uint8_t>& coverage) {
    if (FT_Load_Glyph(face, FT_Get_Char_Index(face, character), flags) != 0) {
        return {};
    }
    const FT_GlyphSlotRec_& slot = *face->glyph;
    const Size size{static_cast<int>(slot.bitmap.width), static_cast<int>(slot.bitmap.rows)};
    Glyph glyph{Rect::at({slot.bitmap_left, ascent - slot.bitmap_top}, size), advanceOf(slot, flags),
                coverage.size()};
    appendCoverage(slot.bitmap, coverage);
    return glyph;
}

std::size_t bigEndian(std::span<const std::byte> bytes) {
    return std::accumulate(
        bytes.begin(), bytes.end(), std::size_t{0},
        [](std::size_t number, std::byte byte) { return number << 8 | std::to_integer<std::size_t>(byte); });
}

/// Whether all tables of a font file lie within it. The library is content with the first few, and leaves
/// out what a file that was cut short has lost.
bool isWhole(std::span<const std::byte> file) {
    constexpr std::size_t countAt = 4;
    constexpr std::size_t directoryAt = 12; // of records: name, checksum, offset, length of 4 bytes each
    constexpr std::size_t recordSize = 16;
    constexpr std::size_t offsetAt = 8;
    constexpr std::size_t lengthAt = 12;
    if (file.size() < directoryAt) {
        return false;
    }
    const std::size_t count = bigEndian(file.subspan(countAt, 2));
    if (file.size() < directoryAt + count * recordSize) {
        return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const auto record = file.subspan(directoryAt + i * recordSize, recordSize);
        if (bigEndian(record.subspan(offsetAt, 4)) + bigEndian(record.subspan(lengthAt, 4)) > file.size()) {
            return false;
        }
    }
    return true;
}

} // namespace

void FreeTypeCloser::operator()(FT_LibraryRec_* library) const {
    FT_Done_FreeType(library);
}

void FreeTypeCloser::operator()(FT_FaceRec_* face) const {
    FT_Done_Face(face);
}

FreeTypeLibrary startFreeType() {
    FT_Library library = nullptr;
    return FreeTypeLibrary(FT_Init_FreeType(&library) == 0 ? library : nullptr);
}

std::optional<FontFace> openFontFace(const FreeTypeLibrary& library, const std::filesystem::path& file) {
    auto content = readFileStart(file, largestFontFile);
    if (!library || !content || !isWhole(*content)) {
        return std::nullopt;
    }
    FontFace opened{std::move(*content), nullptr};
    FT_Face face = nullptr;
    if (FT_New_Memory_Face(library.get(), reinterpret_cast<const FT_Byte*>(opened.file.data()),
                           static_cast<FT_Long>(opened.file.size()), 0, &face) != 0) {
        return std::nullopt;
    }
    opened.face.reset(face);
    const bool isUsable = FT_IS_SCALABLE(face) && face->units_per_EM > 0 && face->ascender > 0 &&
                          face->descender <= 0 && FT_Select_Charmap(face, FT_ENCODING_UNICODE) == 0;
    return isUsable ? std::optional(std::move(opened)) : std::nullopt;
}

Font renderFont(const FontFace& fontFace, int height) {
    FT_FaceRec_* face = fontFace.face.get();
    const int pixels = characterPixels(*face, height);
    if (FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(pixels)) != 0) {
        return blankFont(height);
    }
    const FT_Int32 flags = loadFlags(face, pixels);
    FontMeasures measures = lineMeasures(*face, height, pixels);
    std::array<Glyph, Font::glyphCount> glyphs;
    std::vector<std::uint8_t> coverage;
    for (std::size_t byte = 0; byte < glyphs.size(); ++byte) {
        const char c = static_cast<char>(byte);
        if (!isControl(c)) {
            glyphs[byte] = renderGlyph(face, toUnicode(c), measures.ascent, flags, coverage);
        }
    }
    measures.averageWidth = averageWidth(glyphs);
    return {measures, glyphs, std::move(coverage)};
}

Font blankFont(int height) {
    const int lineHeight = std::max(std::abs(height), smallestPixels);
    const int width = lineHeight / 2;
    std::array<Glyph, Font::glyphCount> glyphs;
    for (std::size_t byte = 0; byte < glyphs.size(); ++byte) {
        glyphs[byte].advance = isControl(static_cast<char>(byte)) ? 0 : width;
    }
    return {{lineHeight, lineHeight - lineHeight / 5, width}, glyphs, {}};
}

} // namespace ventrel
