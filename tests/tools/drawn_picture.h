// The pictures of the program folder, and how bright they are.

#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/images/image.h"

namespace ventrel {

inline Bitmap drawnPicture(const std::string& name, ImageFormat format = ImageFormat::png) {
    Image image;
    Bitmap bitmap;
    EXPECT_EQ(ImageLoadFile(image, std::string(PROGRAM_FOLDER) + "/grf/" + name + ".grf", format),
              ImageError::none)
        << name;
    EXPECT_EQ(ImageToBitmap(image, bitmap), ImageError::none) << name;
    return bitmap;
}

/// As the eye weighs the parts, 0 to 255.
inline int brightness(Colour colour) {
    return (colour.red() * 3 + colour.green() * 6 + colour.blue()) / 10;
}

} // namespace ventrel
