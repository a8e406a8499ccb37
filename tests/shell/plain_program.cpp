#include "shell/plain_program.h"

#include <gtest/gtest.h>

#include "platform/images/jpeg_writer.h"
#include "platform/images/png_writer.h"
#include "radar/clouds.h"
#include "radar/radar_window.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr Colour consoleColour = Colour::rgb(0x50, 0x58, 0x5A);
constexpr Colour cloudColour = Colour::rgb(0xB0, 0xB4, 0xB8);
constexpr Colour titleColour = Colour::rgb(0x40, 0x60, 0x90);
constexpr Colour curtainColour = Colour::rgb(0x90, 0x90, 0x98);
constexpr Colour tableColour = Colour::rgb(0xE0, 0xE0, 0xE0);
constexpr int jpegQuality = 90;
constexpr Size cloudSize{96, 56};
constexpr Size lampSize{28, 28};
constexpr Size stripButtonSize{20, 12};
constexpr Size pointerSize{32, 32};

Bitmap plain(Size size, Colour colour) {
    Bitmap bitmap(size);
    Canvas(bitmap).fill(bitmap.bounds(), colour);
    return bitmap;
}

/// With a black glass.
Bitmap plainFrame(const RadarLayout& layout) {
    Bitmap frame = plain(scopeSquare(layout).size(), consoleColour);
    Canvas canvas(frame);
    canvas.setClip(Region::ellipse(layout.scopeEllipse));
    canvas.fill(frame.bounds(), Colour::rgb(0, 0, 0));
    return frame;
}

Bitmap plainCloud() {
    Bitmap cloud = plain(cloudSize, cloudTransparent);
    Canvas(cloud).filledEllipse(cloud.bounds(), cloudColour, cloudColour);
    return cloud;
}

} // namespace

void makePlainProgram(const fs::path& folder) {
    fs::create_directories(folder / "grf");
    fs::create_directory_symlink(fs::path(PROGRAM_FOLDER) / "apt", folder / "apt");
    fs::create_directory_symlink(fs::path(PROGRAM_FOLDER) / "fonts", folder / "fonts");
    fs::create_directory(folder / "snd");
    fs::create_directory(folder / "mci");
    writeText(folder / "snd/scroll.snd", "not heard");
    writeText(folder / "mci/fade.mci", "not heard");
    const auto write = [&](const std::string& name, const Bitmap& picture) {
        ASSERT_TRUE(writePng(folder / "grf" / (name + ".grf"), picture));
    };
    write("bkgnd8", plain({800, 600}, consoleColour));
    write("bkgnd10", plain({1024, 768}, consoleColour));
    write("r8frame", plainFrame(smallRadarLayout));
    write("r10frame", plainFrame(largeRadarLayout));
    for (const std::string colour : {"green", "yellow", "red"}) {
        write("lamp_" + colour + "_dark", plain(lampSize, Colour::rgb(40, 40, 40)));
        write("lamp_" + colour + "_bright", plain(lampSize, Colour::rgb(250, 250, 250)));
    }
    for (int i = 0; i < cloudPictureCount; ++i) {
        write("cloud" + std::to_string(i), plainCloud());
    }
    write("strip_button_up", plain(stripButtonSize, Colour::rgb(150, 150, 150)));
    write("strip_button_down", plain(stripButtonSize, Colour::rgb(250, 160, 80)));
    write("pointer_hand", plain(pointerSize, cloudTransparent));
    write("pointer_arrow", plain(pointerSize, cloudTransparent));
    write("icon", plain(pointerSize, cloudColour));
    write("letterhead", plain({250, 100}, consoleColour));
    write("splash", plain({799, 577}, titleColour));
    write("curtain8", plain({800, 600}, curtainColour));
    write("curtain10", plain({1024, 768}, curtainColour));
    write("movie_frame", plain({600, 240}, consoleColour));
    write("about", plain({400, 220}, consoleColour));
    ASSERT_TRUE(writeJpeg(folder / "grf/hiscore.grf", plain({689, 600}, tableColour), jpegQuality));
}

} // namespace ventrel
