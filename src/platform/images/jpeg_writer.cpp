#include "platform/images/jpeg_writer.h"

#include <cstdio> // jpeglib.h needs it

#include <jpeglib.h>

#include <array>
#include <csetjmp>
#include <cstdint>
#include <span>

#include "platform/images/channel_row.h"
#include "platform/images/picture_keeping.h"

namespace ventrel {

namespace {

constexpr std::size_t channels = 3;
constexpr std::size_t bufferSize = 16384;

/// As in reading, everything with a destructor is made before the target of the library's longjmp.
struct JpegWriting {
    JpegWriting() = default;
    JpegWriting(const JpegWriting&) = delete;
    JpegWriting& operator=(const JpegWriting&) = delete;
    ~JpegWriting() { jpeg_destroy_compress(&jpeg); }

    jpeg_compress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg_destination_mgr destination{};
    std::jmp_buf jump{};
    std::vector<std::uint8_t> row;
    std::array<JOCTET, bufferSize> buffer{};
    std::vector<std::byte> file;
};

JpegWriting& writingOf(j_compress_ptr jpeg) {
    return *static_cast<JpegWriting*>(jpeg->client_data);
}

[[noreturn]] void leaveJpegWriting(j_common_ptr jpeg) {
    std::longjmp(static_cast<JpegWriting*>(jpeg->client_data)->jump, 1);
}

void saySilentlyToWriter(j_common_ptr) {}

void startBuffer(j_compress_ptr jpeg) {
    jpeg->dest->next_output_byte = writingOf(jpeg).buffer.data();
    jpeg->dest->free_in_buffer = bufferSize;
}

void keepBytes(j_compress_ptr jpeg, std::size_t count) {
    JpegWriting& writing = writingOf(jpeg);
    const auto bytes = std::as_bytes(std::span(writing.buffer)).first(count);
    writing.file.insert(writing.file.end(), bytes.begin(), bytes.end());
}

boolean emptyBuffer(j_compress_ptr jpeg) {
    keepBytes(jpeg, bufferSize);
    startBuffer(jpeg);
    return TRUE;
}

void endBuffer(j_compress_ptr jpeg) {
    keepBytes(jpeg, bufferSize - jpeg->dest->free_in_buffer);
}

void setHandlers(JpegWriting& writing) {
    writing.jpeg.err = jpeg_std_error(&writing.errors);
    writing.errors.error_exit = leaveJpegWriting;
    writing.errors.output_message = saySilentlyToWriter;
    writing.jpeg.client_data = &writing;
}

void setTarget(JpegWriting& writing) {
    writing.destination.init_destination = startBuffer;
    writing.destination.empty_output_buffer = emptyBuffer;
    writing.destination.term_destination = endBuffer;
    writing.jpeg.dest = &writing.destination;
}

void describe(jpeg_compress_struct& jpeg, Size size, int quality) {
    jpeg.image_width = static_cast<JDIMENSION>(size.width);
    jpeg.image_height = static_cast<JDIMENSION>(size.height);
    jpeg.input_components = channels;
    jpeg.in_color_space = JCS_RGB;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, quality, TRUE);
    jpeg.dct_method = JDCT_ISLOW; // the same bytes on every processor
    jpeg.comp_info[0].h_samp_factor = 1;
    jpeg.comp_info[0].v_samp_factor = 1;
}

/// Nothing here may need a destructor: see JpegWriting.
bool encode(JpegWriting& writing, const Bitmap& bitmap, int quality) {
    setHandlers(writing);
    if (setjmp(writing.jump) != 0) {
        return false;
    }
    jpeg_create_compress(&writing.jpeg);
    setTarget(writing);
    describe(writing.jpeg, bitmap.size(), quality);
    jpeg_start_compress(&writing.jpeg, TRUE);
    for (int y = 0; y < bitmap.height(); ++y) {
        spreadChannels(bitmap.row(y), writing.row);
        JSAMPROW row = writing.row.data();
        jpeg_write_scanlines(&writing.jpeg, &row, 1);
    }
    jpeg_finish_compress(&writing.jpeg);
    return true;
}

} // namespace

std::vector<std::byte> encodeJpeg(const Bitmap& bitmap, int quality) {
    if (bitmap.isEmpty()) {
        return {};
    }
    JpegWriting writing;
    writing.row.reserve(channels * static_cast<std::size_t>(bitmap.width()));
    return encode(writing, bitmap, quality) ? std::move(writing.file) : std::vector<std::byte>{};
}

Result<> writeJpeg(const std::filesystem::path& file, const Bitmap& bitmap, int quality) {
    return keepPicture(file, encodeJpeg(bitmap, quality));
}

} // namespace ventrel
