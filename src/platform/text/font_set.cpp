#include <algorithm>
#include <map>
#include <optional>

#include "base/string_table.h"
#include "base/windows1252.h"
#include "platform/text/font.h"
#include "platform/text/font_face.h"

namespace ventrel {

namespace {

struct FaceFile {
    Face face;
    bool bold;
    std::size_t file; ///< in `files`
};

// The regular weight of a family, then the bold one.
constexpr std::array<std::string_view, 4> files{"LiberationSans-Regular.ttf", "LiberationSans-Bold.ttf",
                                                "LiberationMono-Regular.ttf", "LiberationMono-Bold.ttf"};

constexpr std::array<FaceFile, 8> faceFiles{{{Face::arial, false, 0},
                                             {Face::arial, true, 1},
                                             {Face::smallFonts, false, 0},
                                             {Face::smallFonts, true, 1},
                                             {Face::msSansSerif, false, 0},
                                             {Face::msSansSerif, true, 1},
                                             {Face::courierNew, false, 2},
                                             {Face::courierNew, true, 3}}};

/// Taller than any screen of the program needs.
constexpr int tallest = 256;

std::size_t fileOf(const FontRequest& request) {
    const auto* const found = std::ranges::find_if(
        faceFiles, [&](const FaceFile& row) { return row.face == request.face && row.bold == request.bold; });
    return found == faceFiles.end() ? 0 : found->file;
}

} // namespace

struct FontSet::Contents {
    FreeTypeLibrary library = startFreeType(); // first, so that it closes last
    std::array<std::optional<FontFace>, files.size()> faces;
    std::vector<Failure> failures;
    std::map<FontRequest, Font> fonts;

    const FontFace* faceFor(std::size_t file) const;
};

/// The file's own face, or else the other weight of its family, or else whatever the folder has.
const FontFace* FontSet::Contents::faceFor(std::size_t file) const {
    const std::size_t otherWeight = file ^ 1U;
    for (const std::size_t own : {file, otherWeight}) {
        if (const auto& face = faces[own]) {
            return &*face;
        }
    }
    for (const auto& face : faces) {
        if (face) {
            return &*face;
        }
    }
    return nullptr;
}

FontSet::FontSet(const std::filesystem::path& folder) : contents_(std::make_unique<Contents>()) {
    for (std::size_t i = 0; i < files.size(); ++i) {
        const std::filesystem::path file = folder / files[i];
        contents_->faces[i] = openFontFace(contents_->library, file);
        if (!contents_->faces[i]) {
            contents_->failures.push_back({FormatStringId(TextId::cannotOpenFile, {pathText(file)})});
        }
    }
}

FontSet::~FontSet() = default;
FontSet::FontSet(FontSet&&) noexcept = default;
FontSet& FontSet::operator=(FontSet&&) noexcept = default;

std::span<const Failure> FontSet::failures() const {
    return contents_->failures;
}

bool FontSet::hasFaces() const {
    return contents_->faceFor(0) != nullptr;
}

const Font& FontSet::font(const FontRequest& request) {
    const auto known = contents_->fonts.find(request);
    if (known != contents_->fonts.end()) {
        return known->second;
    }
    const int height = std::clamp(request.height, -tallest, tallest);
    const FontFace* face = contents_->faceFor(fileOf(request));
    Font made = face ? renderFont(*face, height) : blankFont(height);
    return contents_->fonts.emplace(request, std::move(made)).first->second;
}

} // namespace ventrel
