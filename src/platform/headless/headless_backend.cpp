#include "platform/headless/headless_backend.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace ventrel {

namespace {

/// Time stands still between them, so a program that does nothing else never gets on.
constexpr int mostEmptyPolls = 1'000'000;

constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"; // in the order of their keys
constexpr std::string_view signs = "-=[];',./\\`";

std::string americanName(Key key) {
    const auto nameIn = [key](std::string_view names, Key first) {
        const auto offset = static_cast<std::size_t>(key) - static_cast<std::size_t>(first);
        return key >= first && offset < names.size() ? std::string(1, names[offset]) : std::string();
    };
    return nameIn(letters, Key::a) + nameIn(signs, Key::minus);
}

} // namespace

HeadlessBackend::HeadlessBackend(Size size, DisplayInfo display) : screen_(size), display_(display) {}

void HeadlessBackend::addInput(Millis when, InputEvent event) {
    timelineHasEnded_ = false;
    timeline_.push_back({when, std::move(event)});
}

void HeadlessBackend::addAction(Millis when, std::function<void()> action) {
    timelineHasEnded_ = false;
    timeline_.push_back({when, std::move(action)});
}

std::optional<InputEvent> HeadlessBackend::wait(std::optional<Millis> limit) {
    if (limit == 0) {
        return poll();
    }
    emptyPolls_ = 0;
    ++sleeps_;
    if (timeline_.empty() && !limit) {
        endTimeline();
        return std::nullopt;
    }
    const Millis never = std::numeric_limits<Millis>::max();
    const Millis next = timeline_.empty() ? never : timeline_.front().when;
    now_ = std::max(now_, std::min(next, limit ? now_ + *limit : never));
    // What an action did is seen to before anything else happens.
    return runDueAction() ? std::nullopt : takeDueInput();
}

std::optional<InputEvent> HeadlessBackend::poll() {
    auto event = takeDueInput();
    if (!event && ++emptyPolls_ > mostEmptyPolls) {
        throw std::logic_error("The program looks for input again and again without ever sleeping.");
    }
    return event;
}

void HeadlessBackend::endTimeline() {
    if (!whenTimelineEnds || timelineHasEnded_) {
        throw std::logic_error("The program waits for ever, and nothing is left in the timeline.");
    }
    timelineHasEnded_ = true;
    whenTimelineEnds();
}

bool HeadlessBackend::runDueAction() {
    if (timeline_.empty() || timeline_.front().when > now_ ||
        !std::holds_alternative<Action>(timeline_.front().what)) {
        return false;
    }
    const Action action = std::get<Action>(std::move(timeline_.front().what));
    timeline_.pop_front();
    action();
    return true;
}

std::optional<InputEvent> HeadlessBackend::takeDueInput() {
    if (timeline_.empty() || timeline_.front().when > now_ ||
        !std::holds_alternative<InputEvent>(timeline_.front().what)) {
        return std::nullopt;
    }
    InputEvent event = std::get<InputEvent>(std::move(timeline_.front().what));
    timeline_.pop_front();
    if (const auto* mouse = std::get_if<MouseEvent>(&event)) {
        mouse_ = mouse->position;
    }
    return event;
}

void HeadlessBackend::present(const Bitmap& picture, std::span<const Rect> changed) {
    lastSending_ = {now_, {changed.begin(), changed.end()}};
    ++sendings_;
    for (const Rect& part : changed) {
        pixelsSent_ += static_cast<std::size_t>(part.width()) * static_cast<std::size_t>(part.height());
        for (int y = part.top; y < part.bottom; ++y) {
            const auto from = picture.row(y).subspan(static_cast<std::size_t>(part.left),
                                                     static_cast<std::size_t>(part.width()));
            std::copy(from.begin(), from.end(), screen_.row(y).begin() + part.left);
        }
    }
}

std::string HeadlessBackend::keyName(Key place) {
    const auto written = keyNames_.find(place);
    return written != keyNames_.end() ? written->second : americanName(place);
}

void HeadlessBackend::show(bool visible) {
    shown_ = visible;
    if (visible) {
        timeline_.push_front({now_, WindowEvent::exposed});
    }
}

void HeadlessBackend::minimise() {
    minimised_ = true;
    timeline_.push_front({now_, WindowEvent::deactivated});
    timeline_.push_front({now_, WindowEvent::minimised});
}

void HeadlessBackend::restore() {
    minimised_ = false;
    timeline_.push_front({now_, WindowEvent::activated});
    timeline_.push_front({now_, WindowEvent::restored});
}

} // namespace ventrel
