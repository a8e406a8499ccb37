#include <cstdio> // jpeglib.h needs it

#include <jpeglib.h>

#include <algorithm>
#include <csetjmp>

#include "platform/images/image_readers.h"

namespace ventrel {

namespace {

constexpr unsigned char startOfImage[] = {0xFF, 0xD8, 0xFF};

/// A picture in more passes than any encoder makes only costs time.
constexpr int passLimit = 64;

constexpr std::size_t jpegChannels = 3;

/// The library's error leaves by longjmp, over whatever was running. So everything with a destructor lives
/// here, made before the jump's target and freed after it.
struct JpegReading {
    JpegReading() = default;
    JpegReading(const JpegReading&) = delete;
    JpegReading& operator=(const JpegReading&) = delete;
    ~JpegReading() { jpeg_destroy_decompress(&jpeg); }

    jpeg_decompress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg_progress_mgr progress{};
    std::jmp_buf jump{};
    ImageError error = ImageError::damaged;
    std::vector<std::uint8_t> pixels;
};

[[noreturn]] void leave(j_common_ptr jpeg) {
    std::longjmp(static_cast<JpegReading*>(jpeg->client_data)->jump, 1);
}

/// Below 0 a message is a warning: bytes are missing or wrong, and what follows is guesswork.
void leaveWhenWarned(j_common_ptr jpeg, int level) {
    if (level < 0) {
        leave(jpeg);
    }
}

void saySilently(j_common_ptr) {}

void leaveWhenEndless(j_common_ptr jpeg) {
    if (reinterpret_cast<j_decompress_ptr>(jpeg)->input_scan_number > passLimit) {
        leave(jpeg);
    }
}

void setHandlers(JpegReading& reading) {
    reading.jpeg.err = jpeg_std_error(&reading.errors);
    reading.errors.error_exit = leave;
    reading.errors.emit_message = leaveWhenWarned;
    reading.errors.output_message = saySilently;
    reading.jpeg.client_data = &reading;
}

/// False when the bytes are not a whole picture. Nothing here may need a destructor: see JpegReading.
bool decode(JpegReading& reading, const unsigned char* data, std::size_t size) {
    jpeg_decompress_struct& jpeg = reading.jpeg;
    setHandlers(reading);
    if (setjmp(reading.jump) != 0) {
        return false;
    }
    jpeg_create_decompress(&jpeg);
    reading.progress.progress_monitor = leaveWhenEndless;
    jpeg.progress = &reading.progress;
    jpeg_mem_src(&jpeg, data, static_cast<unsigned long>(size));
    jpeg_read_header(&jpeg, TRUE);
    if (!isPictureSize(jpeg.image_width, jpeg.image_height)) {
        reading.error = ImageError::tooLarge;
        return false;
    }
    jpeg.out_color_space = JCS_RGB;
    jpeg_start_decompress(&jpeg);
    const std::size_t pitch = jpegChannels * jpeg.output_width;
    // The memory grows with the rows that really come.
    while (jpeg.output_scanline < jpeg.output_height) {
        reading.pixels.resize(reading.pixels.size() + pitch);
        JSAMPROW row = reading.pixels.data() + reading.pixels.size() - pitch;
        jpeg_read_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_decompress(&jpeg);
    return true;
}

} // namespace

ImageError readJpeg(ByteView data, Image& image) {
    const auto* const start = reinterpret_cast<const unsigned char*>(data.data());
    if (data.size() < sizeof startOfImage ||
        !std::equal(std::begin(startOfImage), std::end(startOfImage), start)) {
        return ImageError::wrongFormat;
    }
    JpegReading reading;
    if (!decode(reading, start, data.size())) {
        return reading.error;
    }
    image.pixels = std::move(reading.pixels);
    image.width = reading.jpeg.output_width;
    image.height = reading.jpeg.output_height;
    return ImageError::none;
}

} // namespace ventrel
