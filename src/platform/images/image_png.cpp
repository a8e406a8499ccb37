#include <png.h>

#include <csetjmp>
#include <cstring>

#include "platform/images/image_readers.h"

namespace ventrel {

namespace {

constexpr std::size_t signatureSize = 8;
/// The first chunk is the header: behind its length and name stand width and height.
constexpr std::size_t widthPlace = 16;
constexpr std::size_t heightPlace = 20;
constexpr std::size_t leastSize = 24;

/// ByteView a chunk of texts or profiles may unpack to, and how many such chunks are looked at.
constexpr png_alloc_size_t chunkSizeLimit = 1 << 20;
constexpr png_uint_32 chunkCountLimit = 100;

/// No packed byte makes more of them: a file that claims more holds nothing to fill the memory with.
constexpr std::size_t bestPacking = 1032;

constexpr std::size_t clearChannels = 4; // red, green, blue, opacity
constexpr std::size_t solidChannels = 3;
constexpr unsigned opaque = 0xFF;

/// The library's error leaves by longjmp, over whatever was running. So everything with a destructor lives
/// here, made before the jump's target and freed after it.
struct PngReading {
    explicit PngReading(ByteView bytes) : rest(bytes) {}
    ~PngReading() { png_destroy_read_struct(&png, &info, nullptr); }
    PngReading(const PngReading&) = delete;
    PngReading& operator=(const PngReading&) = delete;

    ByteView rest;
    png_structp png = nullptr;
    png_infop info = nullptr;
    std::vector<std::uint8_t> pixels; ///< decoded
    std::size_t channels = solidChannels;
    std::vector<png_bytep> rows;
    std::size_t width = 0;
    std::size_t height = 0;
};

[[noreturn]] void leave(png_structp png, png_const_charp) {
    png_longjmp(png, 1);
}

/// Warnings tell of what does not change the picture, such as odd colour profiles.
void ignore(png_structp, png_const_charp) {}

void takeBytes(png_structp png, png_bytep to, std::size_t size) {
    auto& reading = *static_cast<PngReading*>(png_get_io_ptr(png));
    if (size > reading.rest.size()) {
        png_error(png, "cut short");
    }
    std::memcpy(to, reading.rest.data(), size);
    reading.rest = reading.rest.subspan(size);
}

void setLimits(png_structp png) {
    png_set_user_limits(png, imageSideLimit, imageSideLimit);
    png_set_chunk_malloc_max(png, chunkSizeLimit);
    png_set_chunk_cache_max(png, chunkCountLimit);
    // A flipped bit anywhere means that the file is not what was once written.
    png_set_crc_action(png, PNG_CRC_ERROR_QUIT, PNG_CRC_ERROR_QUIT);
}

bool hasClearParts(const PngReading& reading) {
    return (png_get_color_type(reading.png, reading.info) & PNG_COLOR_MASK_ALPHA) != 0 ||
           png_get_valid(reading.png, reading.info, PNG_INFO_tRNS) != 0;
}

/// Whatever the file holds comes out as that many bytes a pixel.
void askForDecodedPixels(PngReading& reading) {
    png_set_expand(reading.png);
    png_set_scale_16(reading.png);
    png_set_gray_to_rgb(reading.png);
    png_set_interlace_handling(reading.png);
    reading.channels = hasClearParts(reading) ? clearChannels : solidChannels;
}

void makeRoom(PngReading& reading) {
    const std::size_t pitch = reading.width * reading.channels;
    reading.pixels.resize(pitch * reading.height);
    reading.rows.resize(reading.height);
    for (std::size_t y = 0; y < reading.height; ++y) {
        reading.rows[y] = reading.pixels.data() + y * pitch;
    }
}

/// False when the bytes are not a whole picture. Nothing here may need a destructor: see PngReading.
bool decode(PngReading& reading) {
    reading.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, leave, ignore);
    reading.info = reading.png != nullptr ? png_create_info_struct(reading.png) : nullptr;
    if (reading.info == nullptr) {
        return false;
    }
    if (setjmp(png_jmpbuf(reading.png)) != 0) {
        return false;
    }
    setLimits(reading.png);
    png_set_read_fn(reading.png, &reading, takeBytes);
    png_read_info(reading.png, reading.info);
    reading.width = png_get_image_width(reading.png, reading.info);
    reading.height = png_get_image_height(reading.png, reading.info);
    if (png_get_rowbytes(reading.png, reading.info) * reading.height / bestPacking > reading.rest.size()) {
        return false;
    }
    askForDecodedPixels(reading);
    png_read_update_info(reading.png, reading.info);
    if (png_get_rowbytes(reading.png, reading.info) != reading.width * reading.channels) {
        return false;
    }
    makeRoom(reading);
    png_read_image(reading.png, reading.rows.data());
    png_read_end(reading.png, nullptr);
    return true;
}

/// Lays the pixels on black, which leaves three bytes of each. They move to the front of the same memory.
void layOnBlack(std::vector<std::uint8_t>& pixels) {
    std::uint8_t* to = pixels.data();
    for (std::size_t i = 0; i < pixels.size(); i += clearChannels) {
        const unsigned opacity = pixels[i + 3];
        for (std::size_t channel = 0; channel < solidChannels; ++channel) {
            *to++ = static_cast<std::uint8_t>((pixels[i + channel] * opacity + opaque / 2) / opaque);
        }
    }
    pixels.resize(pixels.size() / clearChannels * solidChannels);
}

} // namespace

ImageError readPng(ByteView data, Image& image) {
    const auto* const start = reinterpret_cast<png_const_bytep>(data.data());
    if (data.size() < signatureSize || png_sig_cmp(start, 0, signatureSize) != 0) {
        return ImageError::wrongFormat;
    }
    if (data.size() < leastSize) {
        return ImageError::damaged;
    }
    if (png_get_uint_32(start + widthPlace) > imageSideLimit ||
        png_get_uint_32(start + heightPlace) > imageSideLimit) {
        return ImageError::tooLarge;
    }
    PngReading reading(data);
    if (!decode(reading)) {
        return ImageError::damaged;
    }
    if (reading.channels == clearChannels) {
        layOnBlack(reading.pixels);
    }
    image.pixels = std::move(reading.pixels);
    image.width = static_cast<std::uint32_t>(reading.width);
    image.height = static_cast<std::uint32_t>(reading.height);
    return ImageError::none;
}

} // namespace ventrel
