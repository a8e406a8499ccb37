#include "platform/desktop/painting.h"

#include "platform/desktop/window_tree.h"

namespace ventrel {

namespace {

/// `region` without the shown windows of `siblings` from index `first` on. `corner` is where their parent
/// lies in the picture.
Region withoutShown(Region region, const std::vector<WindowPtr>& siblings, std::size_t first, Point corner) {
    for (std::size_t i = first; i < siblings.size(); ++i) {
        const Rect covered = siblings[i]->bounds.movedBy(corner);
        if (siblings[i]->visible && covered.intersects(region.bounds())) {
            region = region.minus(covered);
        }
    }
    return region;
}

const VisibleParts& visibleParts(WindowRecord& window);

Region regionWithChildren(WindowRecord& window) {
    if (window.parent == nullptr) {
        return window.area();
    }
    const std::vector<WindowPtr>& siblings = window.parent->children;
    std::size_t above = 0;
    while (siblings[above++].get() != &window) {
    }
    const Point parentCorner = cornerInPicture(*window.parent);
    const Region inParent = visibleParts(*window.parent).withChildren;
    return withoutShown(inParent.intersectedWith(window.bounds.movedBy(parentCorner)), siblings, above,
                        parentCorner);
}

const VisibleParts& visibleParts(WindowRecord& window) {
    VisibleParts& parts = window.visibleParts;
    if (parts.layout != window.desktop->layout) {
        parts.layout = window.desktop->layout;
        parts.withChildren = isShown(window) ? regionWithChildren(window) : Region();
        parts.own = withoutShown(parts.withChildren, window.children, 0, cornerInPicture(window));
    }
    return parts;
}

void paint(const WindowPtr& window) {
    const Point corner = cornerInPicture(*window);
    const Region region = drawableRegion(*window).intersectedWith(window->invalid.movedBy(corner));
    window->invalid = {};
    if (region.isEmpty()) {
        return;
    }
    // Held here, since the handler may destroy or resize the top-level under the canvas.
    const std::shared_ptr<Surface> surface = topLevelOf(*window).surface;
    Canvas canvas(surface->picture, corner, region, &surface->damage);
    const Rect update = region.bounds().movedBy(Point{} - corner);
    if (const auto& background = window->background) {
        canvas.fill(update, *background);
    }
    callHandler(window, &WindowHandlers::paint, canvas, update);
}

} // namespace

void noteLayoutChange(DesktopState& state) {
    ++state.layout;
    state.pointer.isStale = true;
}

const Region& drawableRegion(WindowRecord& window) {
    return visibleParts(window).own;
}

void markInvalid(WindowRecord& window, const Rect& area) {
    const Rect part = area.intersectedWith(window.area());
    if (!part.isEmpty() && isShown(window)) {
        window.invalid = window.invalid.unitedWith(part);
        window.desktop->paintIsNeeded = true;
    }
}

void markAllInvalid(WindowRecord& window, const Rect& area) {
    markInvalid(window, area);
    for (const WindowPtr& child : window.children) {
        const Rect inChild = area.intersectedWith(child->bounds);
        if (child->visible && !inChild.isEmpty()) {
            markAllInvalid(*child, inChild.movedBy(Point{} - child->bounds.topLeft()));
        }
    }
}

void markUncovered(DesktopState& state, const WindowRecord& window, const Rect& bounds) {
    if (window.parent == nullptr) {
        state.damage.add(bounds);
    } else {
        markAllInvalid(*window.parent, bounds);
    }
}

void paintMarkedInside(const WindowPtr& window) {
    if (!isShown(*window)) {
        return;
    }
    std::vector<WindowPtr> marked;
    visitShown(window, [&](const WindowPtr& each) {
        if (!each->invalid.isEmpty()) {
            marked.push_back(each);
        }
    });
    for (const WindowPtr& each : marked) {
        if (mayHandle(*each) && isShown(*each)) {
            callHandler(each, &WindowHandlers::prepare);
            paint(each);
        }
    }
}

void paintMarked(DesktopState& state) {
    if (!state.paintIsNeeded) {
        return;
    }
    state.paintIsNeeded = false;
    const std::vector<WindowPtr> topLevels = state.topLevels;
    for (const WindowPtr& topLevel : topLevels) {
        paintMarkedInside(topLevel);
    }
}

Canvas canvasOf(const WindowPtr& window) {
    Surface& surface = *topLevelOf(*window).surface;
    return Canvas(surface.picture, cornerInPicture(*window), drawableRegion(*window), &surface.damage);
}

} // namespace ventrel
