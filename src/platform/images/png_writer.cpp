#include "platform/images/png_writer.h"

#include <png.h>

#include <csetjmp>

#include "platform/images/channel_row.h"
#include "platform/images/picture_keeping.h"

namespace ventrel {

namespace {

constexpr int packingEffort = 9;
constexpr int noEffort = 0;
constexpr int bitsPerChannel = 8;
constexpr std::size_t storedChannels = 3;

/// As in reading, everything with a destructor is made before the target of the library's longjmp.
struct PngWriting {
    PngWriting() = default;
    ~PngWriting() { png_destroy_write_struct(&png, &info); }
    PngWriting(const PngWriting&) = delete;
    PngWriting& operator=(const PngWriting&) = delete;

    png_structp png = nullptr;
    png_infop info = nullptr;
    std::vector<std::uint8_t> row;
    std::vector<std::byte> file;
};

[[noreturn]] void leavePngWriting(png_structp png, png_const_charp) {
    png_longjmp(png, 1);
}

void ignoreInWriter(png_structp, png_const_charp) {}

void giveBytes(png_structp png, png_bytep from, std::size_t size) {
    auto& file = static_cast<PngWriting*>(png_get_io_ptr(png))->file;
    const auto* const bytes = reinterpret_cast<const std::byte*>(from);
    file.insert(file.end(), bytes, bytes + size);
}

/// Nothing here may need a destructor: see PngWriting.
bool encode(PngWriting& writing, const Bitmap& bitmap, PngPacking packing) {
    writing.png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, leavePngWriting, ignoreInWriter);
    writing.info = writing.png != nullptr ? png_create_info_struct(writing.png) : nullptr;
    if (writing.info == nullptr) {
        return false;
    }
    if (setjmp(png_jmpbuf(writing.png)) != 0) {
        return false;
    }
    png_set_write_fn(writing.png, &writing, giveBytes, nullptr);
    if (packing == PngPacking::small) {
        png_set_compression_level(writing.png, packingEffort);
    } else {
        png_set_compression_level(writing.png, noEffort);
        png_set_filter(writing.png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    }
    png_set_IHDR(writing.png, writing.info, static_cast<png_uint_32>(bitmap.width()),
                 static_cast<png_uint_32>(bitmap.height()), bitsPerChannel, PNG_COLOR_TYPE_RGB,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(writing.png, writing.info);
    for (int y = 0; y < bitmap.height(); ++y) {
        spreadChannels(bitmap.row(y), writing.row);
        png_write_row(writing.png, writing.row.data());
    }
    png_write_end(writing.png, writing.info);
    return true;
}

} // namespace

std::vector<std::byte> encodePng(const Bitmap& bitmap, PngPacking packing) {
    if (bitmap.isEmpty()) {
        return {};
    }
    PngWriting writing;
    writing.row.reserve(storedChannels * static_cast<std::size_t>(bitmap.width()));
    return encode(writing, bitmap, packing) ? std::move(writing.file) : std::vector<std::byte>{};
}

Result<> writePng(const std::filesystem::path& file, const Bitmap& bitmap, PngPacking packing) {
    return keepPicture(file, encodePng(bitmap, packing));
}

} // namespace ventrel
