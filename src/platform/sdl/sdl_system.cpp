#include "platform/sdl/sdl_system.h"

#include <signal.h>

#include <csignal>
#include <cstdlib>
#include <string_view>

namespace ventrel {

VideoSystem::VideoSystem() {
    // So that quitting is not asked for by a person, but by a signal or the end of the session.
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
    // Plain pictures in memory: through a graphics driver every small change would cost a whole frame.
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    isOpen_ = SDL_InitSubSystem(SDL_INIT_VIDEO) == 0;
}

VideoSystem::~VideoSystem() {
    if (isOpen_) {
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
    }
}

bool VideoSystem::hasScreen() const {
    if (!isOpen_) {
        return false;
    }
    const std::string_view driver = SDL_GetCurrentVideoDriver();
    const bool showsNothing = driver == "dummy" || driver == "offscreen" || driver == "evdev";
    const char* wanted = std::getenv("SDL_VIDEODRIVER");
    return !showsNothing || (wanted != nullptr && driver == wanted);
}

void endOnHangUp() {
    struct sigaction before = {};
    const bool isFree = ::sigaction(SIGHUP, nullptr, &before) == 0 && before.sa_handler == SIG_DFL;
    if (isFree) { // else whoever has started the program wants it to stay
        std::signal(SIGHUP, [](int) { std::raise(SIGTERM); });
    }
}

SurfacePointer surfaceOf(const CursorImage& image, int multiple) {
    constexpr Uint32 noFlags = 0;
    constexpr int bitsPerPixel = 32;
    constexpr std::uint32_t opaque = 0xFF000000;
    const Size size{image.picture.width() * multiple, image.picture.height() * multiple};
    SurfacePointer surface(SDL_CreateRGBSurfaceWithFormat(noFlags, size.width, size.height, bitsPerPixel,
                                                          SDL_PIXELFORMAT_ARGB8888));
    if (!surface) {
        return nullptr;
    }
    for (int y = 0; y < size.height; ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(static_cast<std::uint8_t*>(surface->pixels) +
                                                     static_cast<std::ptrdiff_t>(y) * surface->pitch);
        for (int x = 0; x < size.width; ++x) {
            const Point from{x / multiple, y / multiple};
            const bool isDrawn = image.mask.at(from.x, from.y) != 0;
            row[x] = isDrawn ? image.picture.at(from.x, from.y) | opaque : 0;
        }
    }
    return surface;
}

} // namespace ventrel
