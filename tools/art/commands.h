// The commands of the art tool: drawings as text, and the pictures that are made of them.

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/images/png_writer.h"

namespace ventrel::art {

/// The names of all drawings, such as "console1024" and "cloud7".
std::vector<std::string> drawingNames();

/// The SVG text of a drawing; empty for a name that is none. `materials` is used by all
/// large pictures.
std::string drawing(std::string_view name, std::string_view materials);

// Each of these returns whether it succeeded, and says on standard error what went wrong, naming the file.

/// Writes a rendered picture as the program reads it: 24 bits, the same bytes every time.
bool convertPicture(const std::filesystem::path& picture, const std::filesystem::path& target,
                    PngPacking packing);

/// The same as a JPEG picture.
bool convertToJpeg(const std::filesystem::path& picture, const std::filesystem::path& target);

/// Cuts the radar's frame out of a rendered console, and writes it unpacked.
bool cutRadarFrame(const std::filesystem::path& console, const std::filesystem::path& target);

/// Makes the film of its rendered sheets, which lie in a folder as "film0.png" and so on.
bool assembleFilm(const std::filesystem::path& folder, const std::filesystem::path& target);

/// What becomes of the half covered pixels of a picture with clear parts.
enum class Edge {
    crisp,    ///< those less than half covered are clear
    dithered, ///< of a patch of them as many are drawn as the patch is covered
};

/// Makes a picture whose clear parts have the one colour that the program leaves out, from two renderings of
/// the same drawing: on black and on white ground.
bool keyPicture(const std::filesystem::path& onBlack, const std::filesystem::path& onWhite,
                const std::filesystem::path& target, Edge edge);

} // namespace ventrel::art
