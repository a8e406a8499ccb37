// ventrel-gallery: shows everything that the virtual desktop can draw, in a real window or into a file.

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include "base/windows1252.h"
#include "platform/headless/script.h"
#include "platform/images/png_writer.h"
#include "platform/sdl/sdl_backend.h"
#include "tools/gallery/gallery.h"

namespace {

using namespace ventrel;

constexpr Size smallScreen{800, 600};
constexpr Size largeScreen{1024, 768};
constexpr int failure = 1;
constexpr int wrongUsage = 2;

struct Arguments {
    Size size = smallScreen;
    bool fullScreen = false;
    std::string picture;
};

void complain(std::string_view text) {
    std::fprintf(stderr, "ventrel-gallery: %s\n", toTerminal(text).c_str());
}

/// At once, for somebody who reads along.
void sayAloud(const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
}

int intoFile(const Arguments& arguments, FontSet& fonts) {
    HeadlessBackend backend(arguments.size);
    Desktop desktop(backend, arguments.size);
    const Gallery gallery(desktop, fonts, [](const std::string&) {});
    Script(backend).then([&] { desktop.quit(); });
    desktop.run();
    if (const auto written = writePng(arguments.picture, backend.screen()); !written) {
        complain(written.error().text);
        return failure;
    }
    return 0;
}

int inWindow(const Arguments& arguments, FontSet& fonts) {
    const auto sound = openSdlSound({}); // for the beeps alone
    const auto backend = openSdlBackend({.title = "Gallery",
                                         .picture = arguments.size,
                                         .fullScreen = arguments.fullScreen,
                                         .sound = sound.get()});
    if (!backend) {
        complain(backend.error().text);
        return failure;
    }
    Desktop desktop(**backend, arguments.size);
    const Gallery gallery(desktop, fonts, sayAloud);
    desktop.setDragStrip(DragStrip{Rect{0, 0, arguments.size.width, 8}, {}});
    desktop.run();
    return 0;
}

int runGallery(int argc, char** argv) {
    CLI::App app("Shows the controls, menus, boxes, faces and drawing of the virtual desktop.",
                 "ventrel-gallery");
    app.footer("\nIn its window it says what happens, a line each, on the standard output.");
    Arguments arguments;
    bool isLarge = false;
    app.add_flag("--large", isLarge, "1024 x 768 instead of 800 x 600");
    CLI::Option* full =
        app.add_flag("--full-screen", arguments.fullScreen, "The whole screen, without a change of its mode");
    app.add_option("--picture", arguments.picture, "Into a file, without a window")
        ->type_name("OUT.png")
        ->excludes(full);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::fputs(app.help().c_str(), stdout);
        return 0;
    } catch (const CLI::ParseError& error) {
        complain(std::string(error.what()) + "\nventrel-gallery --help tells more.");
        return wrongUsage;
    }
    arguments.size = isLarge ? largeScreen : smallScreen;
    const std::filesystem::path program = argv[0];
    FontSet fonts(program.parent_path() / "fonts");
    for (const Failure& missing : fonts.failures()) {
        complain(missing.text);
    }
    return arguments.picture.empty() ? inWindow(arguments, fonts) : intoFile(arguments, fonts);
}

} // namespace

int main(int argc, char** argv) {
    try {
        return runGallery(argc, argv);
    } catch (const std::exception& error) { // such as memory that ran out
        std::fprintf(stderr, "ventrel-gallery: %s\n", toTerminal(error.what()).c_str());
        return failure;
    }
}
