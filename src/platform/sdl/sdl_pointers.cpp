#include "platform/sdl/sdl_pointers.h"

namespace ventrel {

void SdlPointers::set(const CursorImage* image) {
    shown_ = image;
    if (image == nullptr) {
        SDL_ShowCursor(SDL_DISABLE);
        return;
    }
    SDL_SetCursor(pointerFor(*image));
    SDL_ShowCursor(SDL_ENABLE);
}

void SdlPointers::enlargeBy(int multiple) {
    multiple_ = multiple;
    made_.clear();
    if (shown_ != nullptr) {
        SDL_SetCursor(pointerFor(*shown_));
    }
}

SDL_Cursor* SdlPointers::pointerFor(const CursorImage& image) {
    CursorPointer& pointer = made_[&image];
    if (!pointer) {
        const SurfacePointer surface = surfaceOf(image, multiple_);
        pointer.reset(
            SDL_CreateColorCursor(surface.get(), image.hotSpot.x * multiple_, image.hotSpot.y * multiple_));
    }
    return pointer.get();
}

} // namespace ventrel
