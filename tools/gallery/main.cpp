// ventrel-gallery: shows everything that the virtual desktop can draw, in a real window or into a file.

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/canvas/png_writer.h"
#include "platform/headless/script.h"
#include "platform/sdl/sdl_backend.h"
#include "tools/gallery/gallery.h"

namespace {

using namespace ventrel;

constexpr Size smallScreen{800, 600};
constexpr Size largeScreen{1024, 768};
constexpr int failure = 1;
constexpr int wrongUsage = 2;

constexpr const char* usage = "Shows the controls, menus, boxes, faces and drawing of the virtual desktop.\n"
                              "\n"
                              "    ventrel-gallery [--large] [--full-screen | --picture OUT.png]\n"
                              "\n"
                              "    --large            1024 x 768 instead of 800 x 600\n"
                              "    --full-screen      the whole screen, without a change of its mode\n"
                              "    --picture OUT.png  into a file, without a window\n"
                              "\n"
                              "In its window it says what happens, a line each, on the standard output.\n";

struct Arguments {
    Size size = smallScreen;
    bool fullScreen = false;
    std::string picture;
};

bool readArguments(const std::vector<std::string>& words, Arguments& arguments) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--large") {
            arguments.size = largeScreen;
        } else if (words[i] == "--full-screen") {
            arguments.fullScreen = true;
        } else if (words[i] == "--picture" && i + 1 < words.size()) {
            arguments.picture = words[++i];
        } else {
            return false;
        }
    }
    return true;
}

void complain(std::string_view text, MessageIcon) {
    std::fprintf(stderr, "ventrel-gallery: %.*s\n", static_cast<int>(text.size()), text.data());
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
    if (!writePng(arguments.picture, backend.screen())) {
        complain(arguments.picture + " cannot be written", MessageIcon::stop);
        return failure;
    }
    return 0;
}

int inWindow(const Arguments& arguments, FontSet& fonts) {
    const auto backend = openSdlBackend(
        {.title = "Gallery", .picture = arguments.size, .fullScreen = arguments.fullScreen}, complain);
    if (!backend) {
        return failure;
    }
    Desktop desktop(*backend, arguments.size);
    const Gallery gallery(desktop, fonts, sayAloud);
    desktop.setDragStrip(Rect{0, 0, arguments.size.width, 8});
    desktop.run();
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    Arguments arguments;
    if (!readArguments(std::vector<std::string>(argv + 1, argv + argc), arguments)) {
        std::fputs(usage, stderr);
        return wrongUsage;
    }
    const std::filesystem::path program = argv[0];
    FontSet fonts(program.parent_path() / "fonts", complain);
    return arguments.picture.empty() ? inWindow(arguments, fonts) : intoFile(arguments, fonts);
}
