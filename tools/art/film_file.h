// Puts a film together: its rendered pictures, as JPEGs, in a file of form AVI (Motion JPEG).

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "base/geometry.h"
#include "platform/canvas/bitmap.h"

namespace ventrel::art {

struct FilmForm {
    Size size; ///< of every picture
    int rate;  ///< pictures a second
};

/// The bytes of the file, with its index; a player needs nothing else. `pictures` are JPEG files, at least
/// one.
std::vector<std::byte> filmFile(const FilmForm& form, std::span<const std::vector<std::byte>> pictures);

/// Gives a picture the grain of film, another one for each number, which also hides the steps of slow shades.
void addGrain(Bitmap& picture, int number);

} // namespace ventrel::art
