#include "platform/sdl/sdl_surface.h"

namespace ventrel {

namespace {

constexpr std::size_t bytesPerPixel = sizeof(Pixel);

void paintBars(SDL_Surface& target, const Rect& place) {
    constexpr Uint32 black = 0;
    const SDL_Rect bars[]{{0, 0, target.w, place.top},
                          {0, place.bottom, target.w, target.h - place.bottom},
                          {0, place.top, place.left, place.height()},
                          {place.right, place.top, target.w - place.right, place.height()}};
    for (const SDL_Rect& bar : bars) {
        SDL_FillRect(&target, &bar, black);
    }
}

} // namespace

void SdlSurface::present(SDL_Window& window, const Bitmap& picture, std::span<const Rect> changed,
                         const PlaceInWindow& placeIn) {
    SDL_Surface* screen = SDL_GetWindowSurface(&window);
    SDL_Surface* drawn = screen == nullptr ? nullptr : surfaceToDrawOn(*screen);
    if (drawn == nullptr) {
        return;
    }
    const Rect place = placeIn({drawn->w, drawn->h});
    std::vector<SDL_Rect> sent = drawParts(*drawn, place, picture, changed);
    if (sendsAll_) {
        paintBars(*drawn, place);
        sent.assign(1, {0, 0, drawn->w, drawn->h});
        sendsAll_ = false;
    }
    if (drawn != screen) {
        for (SDL_Rect part : sent) {
            SDL_BlitSurface(drawn, &part, screen, &part);
        }
    }
    if (!sent.empty()) {
        SDL_UpdateWindowSurfaceRects(&window, sent.data(), static_cast<int>(sent.size()));
    }
}

/// The window's own surface, or one of its size when its pixels are of another kind than ours.
SDL_Surface* SdlSurface::surfaceToDrawOn(SDL_Surface& screen) {
    if (screen.format->format == SDL_PIXELFORMAT_RGB888) {
        return &screen;
    }
    if (!ours_ || ours_->w != screen.w || ours_->h != screen.h) {
        constexpr Uint32 noFlags = 0;
        constexpr int bitsPerPixel = 32;
        ours_.reset(SDL_CreateRGBSurfaceWithFormat(noFlags, screen.w, screen.h, bitsPerPixel,
                                                   SDL_PIXELFORMAT_RGB888));
        sendsAll_ = true;
    }
    return ours_.get();
}

std::vector<SDL_Rect> SdlSurface::drawParts(const SDL_Surface& target, const Rect& place,
                                            const Bitmap& picture, std::span<const Rect> changed) {
    const PixelRows rows{static_cast<Pixel*>(target.pixels),
                         static_cast<int>(static_cast<std::size_t>(target.pitch) / bytesPerPixel),
                         {target.w, target.h}};
    std::vector<SDL_Rect> drawn;
    for (const Rect& part : changed) {
        const Rect shown = scaler_.draw(rows, place, picture, part);
        if (!shown.isEmpty()) {
            drawn.push_back({shown.left, shown.top, shown.width(), shown.height()});
        }
    }
    return drawn;
}

} // namespace ventrel
