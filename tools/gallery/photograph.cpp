#include "tools/gallery/photograph.h"

namespace ventrel {

namespace {

constexpr Size studio{800, 600};

/// Around all top-levels but the owner.
Rect boundsOfOpened(const Desktop& desktop, const Window& owner) {
    Rect bounds;
    for (const Window& window : desktop.topLevels()) {
        bounds = window == owner || !window.isVisible() ? bounds : bounds.unitedWith(window.bounds());
    }
    return bounds.intersectedWith(desktop.area());
}

Bitmap cutOut(const Bitmap& screen, const Rect& part) {
    Bitmap picture(part.size());
    Canvas(picture).draw(picture.bounds(), screen, part);
    return picture;
}

} // namespace

Bitmap photograph(Colour ground, const OpenModal& open, const std::function<void(Script&)>& keys) {
    HeadlessBackend backend(studio);
    Desktop desktop(backend, studio);
    const Window owner = desktop.create({.bounds = desktop.area(), .background = ground});
    owner.post([&] { open(desktop, owner); });
    Script script(backend);
    if (keys) {
        keys(script);
    }
    Bitmap picture;
    script.then([&] {
        picture = cutOut(backend.screen(), boundsOfOpened(desktop, owner));
        desktop.quit();
    });
    desktop.run();
    return picture;
}

} // namespace ventrel
