#include "platform/desktop/desktop.h"

#include "platform/desktop/activation.h"
#include "platform/desktop/desktop_state.h"
#include "platform/desktop/input_routing.h"
#include "platform/desktop/loop.h"
#include "platform/desktop/window_life.h"
#include "platform/desktop/window_tree.h"

namespace ventrel {

namespace {

Window handleOf(const WindowPtr& window) {
    return window == nullptr ? Window() : window->handle();
}

/// Keeps a dialog on the list of those that run, whatever ends it.
class RunningModal {
public:
    RunningModal(DesktopState& state, const WindowPtr& dialog) : modals_(state.activity.modals) {
        modals_.push_back(dialog);
    }
    ~RunningModal() { modals_.pop_back(); }
    RunningModal(const RunningModal&) = delete;
    RunningModal& operator=(const RunningModal&) = delete;

private:
    std::vector<WindowPtr>& modals_;
};

} // namespace

Desktop::Desktop(Backend& backend, Size size) : state_(std::make_unique<DesktopState>(*this, backend, size)) {
    state_->damage.addAll();
    showCursor(*state_, StandardCursor::arrow);
}

Desktop::~Desktop() {
    // What the handlers hold on to may ask for windows while it goes: those are gone already.
    for (const WindowPtr& topLevel : state_->topLevels) {
        abandon(*topLevel);
    }
    state_->backend.setCursor(nullptr);
}

// Windows -------------------------------------------------------------------------------------------------

Window Desktop::create(WindowSetup setup) {
    const WindowPtr parent = alive(setup.parent.record_);
    const WindowPtr owner = alive(setup.owner.record_);
    const bool isParentGone = parent == nullptr && setup.parent != Window();
    const bool isOwnerGone = owner == nullptr && setup.owner != Window();
    if (isParentGone || isOwnerGone) {
        return {};
    }
    return createWindow(*state_, std::move(setup), parent,
                        owner == nullptr ? nullptr : topLevelOf(*owner).shared_from_this());
}

void Desktop::setMainWindow(const Window& window) {
    state_->mainWindow = window.record_;
}

Window Desktop::activeWindow() const {
    return handleOf(activeTopLevel(*state_));
}

Window Desktop::focusWindow() const {
    return handleOf(focusTarget(*state_));
}

std::vector<Window> Desktop::topLevels() const {
    std::vector<Window> result;
    for (const WindowPtr& topLevel : state_->topLevels) {
        result.push_back(topLevel->handle());
    }
    return result;
}

Window Desktop::windowAt(Point screen) const {
    return handleOf(ventrel::windowAt(*state_, screen));
}

// The screen ----------------------------------------------------------------------------------------------

Size Desktop::size() const {
    return state_->picture.size();
}

const Bitmap& Desktop::picture() const {
    return state_->picture;
}

void Desktop::setTitle(std::string_view title) {
    state_->backend.setTitle(title);
}

void Desktop::setDragStrip(std::optional<DragStrip> strip) {
    state_->backend.setDragStrip(strip);
}

void Desktop::setFullScreen(bool fullScreen) {
    state_->backend.setFullScreen(fullScreen);
}

bool Desktop::isFullScreen() const {
    return state_->backend.isFullScreen();
}

void Desktop::minimise() {
    state_->backend.minimise();
}

void Desktop::restore() {
    state_->backend.restore();
}

void Desktop::setCursor(Cursor cursor) {
    state_->pointer.isStale = false;
    showCursor(*state_, cursor);
}

Point Desktop::mousePosition() const {
    return pointerPosition(*state_);
}

Backend& Desktop::backend() {
    return state_->backend;
}

// Time and the loop ---------------------------------------------------------------------------------------

Millis Desktop::now() const {
    return state_->backend.now();
}

Millis Desktop::frameTime() const {
    return state_->backend.frameTime();
}

Millis Desktop::nextPicture() const {
    const Millis now = state_->backend.now();
    return state_->nextSending > now ? state_->nextSending : now + frameTime();
}

void Desktop::setIdle(Idle idle) {
    state_->idle = std::move(idle);
}

void Desktop::run() {
    runLoop(*state_, LoopMode{});
}

void Desktop::quit() {
    state_->isQuitting = true;
}

bool Desktop::isQuitting() const {
    return state_->isQuitting;
}

bool Desktop::runModal(const Window& dialog, const std::function<bool()>& finished) {
    const WindowPtr window = alive(dialog.record_);
    if (window == nullptr) {
        return false;
    }
    const RunningModal running(*state_, window);
    showWindow(window, true);
    runLoop(*state_, {true, false, [&] { return !dialog.exists() || finished(); }});
    return !isQuitting() && dialog.exists();
}

bool Desktop::runMenu(const Window& menu, const std::function<bool()>& finished) {
    state_->pointer.menu = menu.record_;
    menu.capture();
    runLoop(*state_, {false, false, [&] { return !menu.hasCapture() || finished(); }});
    const bool isUndisturbed = !isQuitting() && menu.hasCapture();
    menu.releaseCapture();
    return isUndisturbed;
}

bool Desktop::pumpMessages() {
    runPass(*state_, {false, true, {}});
    return !isQuitting();
}

bool Desktop::pumpUntil(Millis moment) {
    while (!isQuitting()) {
        const auto next = runPass(*state_, {false, true, {}});
        if (isQuitting() || now() >= moment) {
            break;
        }
        sleepUntil(*state_, earlier(next, moment));
    }
    return !isQuitting();
}

void Desktop::putBack(const MouseEvent& event) {
    state_->queue.input.emplace_front(event);
}

} // namespace ventrel
