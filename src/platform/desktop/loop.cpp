#include "platform/desktop/loop.h"

#include <algorithm>

#include "platform/desktop/input_routing.h"
#include "platform/desktop/painting.h"
#include "platform/desktop/screen_picture.h"

namespace ventrel {

namespace {

/// So many messages are handled before the picture gets its turn, lest a flood freezes it.
constexpr int messagesPerPass = 1000;
/// A picture waits so much longer for what is to be done then anyhow: that saves an awakening.
constexpr Millis sendingMayWait = 4;

bool isOver(const DesktopState& state, const LoopMode& mode) {
    return state.isQuitting || (mode.isFinished && mode.isFinished());
}

std::optional<InputEvent> nextInput(DesktopState& state) {
    auto& waiting = state.queue.input;
    if (waiting.empty()) {
        return state.backend.wait(0);
    }
    InputEvent event = std::move(waiting.front());
    waiting.pop_front();
    return event;
}

/// A press, a key or a turn of the wheel, not a mere move.
bool isDeed(const InputEvent& event) {
    if (const auto* const key = std::get_if<KeyEvent>(&event)) {
        return key->down;
    }
    const auto* const mouse = std::get_if<MouseEvent>(&event);
    return mouse != nullptr && (mouse->button != MouseButton::none || mouse->wheel != 0);
}

void runPosted(DesktopState& state) {
    const PostedMessage message = std::move(state.queue.posted.front());
    state.queue.posted.pop_front();
    if (alive(message.window) != nullptr) {
        message.run();
    }
}

/// Whether there was one.
bool handleOne(DesktopState& state, const LoopMode& mode) {
    if (!state.queue.posted.empty()) {
        runPosted(state);
        return true;
    }
    if (const auto event = nextInput(state)) {
        if (isDeed(*event)) {
            state.nextSending = state.backend.now(); // its answer does not wait
        }
        routeInput(state, *event, mode.accelerators);
        return true;
    }
    return false;
}

void handleWaiting(DesktopState& state, const LoopMode& mode) {
    for (int handled = 0; handled < messagesPerPass && !isOver(state, mode); ++handled) {
        if (!handleOne(state, mode)) {
            return;
        }
    }
}

void runDueTimers(DesktopState& state, const LoopMode& mode) {
    const Millis now = state.backend.now();
    while (!isOver(state, mode)) {
        const auto timer = takeDueTimer(state.timers, now);
        if (!timer) {
            return;
        }
        if (const WindowPtr window = alive(timer->window)) {
            callHandler(window, &WindowHandlers::timer, timer->number);
        }
    }
}

/// When the idle operation wants its next call.
std::optional<Millis> runIdle(DesktopState& state) {
    if (!state.idle || state.idleIsRunning || state.isQuitting) {
        return std::nullopt;
    }
    const Millis called = state.backend.now();
    state.idleIsRunning = true;
    const auto wanted = state.idle();
    state.idleIsRunning = false;
    return wanted ? std::optional(std::max(*wanted, called + 1)) : std::nullopt;
}

/// When the loop is to go on: to send the rest of the picture, or to do something.
std::optional<Millis> awakening(std::optional<Millis> sending, std::optional<Millis> doing) {
    const bool goTogether = sending && doing && *doing <= *sending + sendingMayWait;
    return goTogether ? doing : earlier(sending, doing);
}

bool isQueueEmpty(const DesktopState& state) {
    return state.queue.posted.empty() && state.queue.input.empty();
}

} // namespace

std::optional<Millis> runPass(DesktopState& state, const LoopMode& mode) {
    handleWaiting(state, mode);
    runDueTimers(state, mode);
    if (isOver(state, mode)) {
        return state.backend.now();
    }
    paintMarked(state);
    const auto idleDeadline = mode.idle && isQueueEmpty(state) ? runIdle(state) : std::nullopt;
    paintMarked(state);
    refreshPointer(state);
    if (isOver(state, mode)) {
        return state.backend.now();
    }
    if (showMachineWindow(state)) {
        handleWaiting(state, mode); // the machine mostly asks for the whole picture, which is sent once then
    }
    const auto rest = presentChanges(state);
    if (state.paintIsNeeded || !isQueueEmpty(state)) {
        return state.backend.now();
    }
    return awakening(rest, earlier(idleDeadline, nextTimer(state.timers)));
}

void sleepUntil(DesktopState& state, std::optional<Millis> moment) {
    const Millis now = state.backend.now();
    if (moment && *moment <= now) {
        return;
    }
    if (auto event = state.backend.wait(moment ? std::optional(*moment - now) : std::nullopt)) {
        state.queue.input.push_back(std::move(*event));
    }
}

void runLoop(DesktopState& state, const LoopMode& mode) {
    while (!isOver(state, mode)) {
        const auto moment = runPass(state, mode);
        if (isOver(state, mode)) {
            return;
        }
        sleepUntil(state, moment);
    }
}

} // namespace ventrel
