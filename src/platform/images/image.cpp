#include "platform/images/image.h"

#include <cassert>
#include <optional>

#include "base/whole_file.h"
#include "platform/images/image_readers.h"

namespace ventrel {

namespace {

/// More than the largest picture takes in its most wasteful form.
constexpr std::size_t fileSizeLimit = std::size_t{imageSideLimit} * imageSideLimit * 8;

ImageError read(Image& image, std::span<const std::byte> data, ImageFormat format) {
    switch (format) {
    case ImageFormat::jpeg: return readJpeg(data, image);
    case ImageFormat::png: return readPng(data, image);
    case ImageFormat::pcx: return readPcx(data, image);
    case ImageFormat::bmp: return readBmp(data, image);
    }
    return ImageError::wrongFormat;
}

} // namespace

void ImageFree(Image& image) {
    image = {};
}

ImageError ImageLoadFile(Image& image, const std::filesystem::path& file, ImageFormat format) {
    ImageFree(image);
    const auto content = readFileStart(file, fileSizeLimit + 1);
    if (!content) {
        return ImageError::cannotOpen;
    }
    return content->size() > fileSizeLimit ? ImageError::tooLarge : ImageLoadMemory(image, *content, format);
}

ImageError ImageLoadMemory(Image& image, std::span<const std::byte> data, ImageFormat format) {
    ImageFree(image);
    Image loaded;
    const ImageError error = read(loaded, data, format);
    if (error == ImageError::none) {
        image = std::move(loaded);
    }
    return error;
}

ImageError ImageToBitmap(const Image& image, Bitmap& bitmap) {
    if (image.pixels.empty()) {
        return ImageError::noPixels;
    }
    assert(image.pixels.size() == std::size_t{3} * image.width * image.height);
    Bitmap made({static_cast<int>(image.width), static_cast<int>(image.height)});
    const std::uint8_t* from = image.pixels.data();
    for (int y = 0; y < made.height(); ++y) {
        for (Pixel& pixel : made.row(y)) {
            pixel = static_cast<Pixel>(from[0] << 16 | from[1] << 8 | from[2]);
            from += 3;
        }
    }
    bitmap = std::move(made);
    return ImageError::none;
}

} // namespace ventrel
