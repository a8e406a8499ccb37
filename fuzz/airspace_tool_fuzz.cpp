// The whole airspace tool against any source, with the files that it may name: what check has nothing against
// is built, and what is built can be shown, checked and drawn. The pictures are looked at by targets of their
// own, and the drawing of a chart takes too long for more than a few of these.

#include <cstddef>
#include <cstdint>

#include "demand.h"
#include "platform/images/jpeg_writer.h"
#include "scratch_folder.h"
#include "sim/grid.h"
#include "tools/apt/commands.h"
#include "tools/apt/opened_airspace.h"

namespace {

using namespace ventrel;
namespace fs = std::filesystem;

constexpr std::string_view outline = "land 12,12 36,12 36,36\n  12,36\nriver 1 14,16 34,16\n";

/// A picture of the small layout's size.
std::string smallPicture() {
    constexpr int side = smallLayout.pictureSize();
    constexpr int quality = 50;
    const auto jpeg = encodeJpeg(Bitmap({side, side}), quality);
    return {reinterpret_cast<const char*>(jpeg.data()), jpeg.size()};
}

void useBuilt(const fs::path& built, int width, const fs::path& picture) {
    const auto airport = apt::openAirport(built);
    demand(airport.has_value() && airport->airport.header.layoutWidth == width);
    demand(apt::show(built, picture) == apt::success);
    demand(apt::draw({.file = built, .target = picture, .fonts = FONT_FOLDER}) == apt::success);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScratchFolder folder;
    const auto source = folder.put("fuzz.toml", {reinterpret_cast<const char*>(data), size});
    folder.put("island.outline", outline);
    folder.put("map.jpg", smallPicture());
    folder.put("broken.jpg", "no picture");
    const bool isSound = apt::check({source}) == apt::success;
    const auto opened = apt::openSource(source);
    demand(opened.has_value());
    for (const int width : {smallLayout.windowWidth, largeLayout.windowWidth}) {
        const fs::path built = folder.path / "fuzz.apt";
        fs::remove(built);
        const bool isBuilt = apt::build(source, built, width) == apt::success;
        demand(isBuilt == fs::exists(built));
        demand(isBuilt || !isSound || !opened->reading.airspace.serves(width));
        if (isBuilt) {
            useBuilt(built, width, folder.path / "shown");
        }
    }
    return 0;
}
