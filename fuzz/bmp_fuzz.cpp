// The reader of BMP pictures against any bytes.

#include "image_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return ventrel::fuzzImage(data, size, ventrel::ImageFormat::bmp);
}
