// The monkey's machine: screen, sound and clock in memory. Its clock wakes the program late when it is told
// to, as a busy machine does; so whole shifts pass in a fraction of a second of work.

#pragma once

#include "platform/headless/headless_backend.h"
#include "platform/headless/headless_sound.h"

namespace ventrel {

class LateBackend final : public Backend {
public:
    explicit LateBackend(HeadlessBackend& machine) : machine_(machine) {}

    /// So much later than it asked for the program is woken, unless somebody does something meanwhile.
    Millis lateness = 0;

    /// Whether the program's window is the one that keys go to.
    bool isInFront() const { return inFront_ && !minimised_; }

    std::optional<InputEvent> wait(std::optional<Millis> limit) override {
        const bool sleeps = limit && *limit > 0;
        auto event = machine_.wait(sleeps ? *limit + lateness : limit);
        if (const auto* change = event ? std::get_if<WindowEvent>(&*event) : nullptr) {
            inFront_ = (inFront_ || *change == WindowEvent::activated) && *change != WindowEvent::deactivated;
            minimised_ =
                (minimised_ || *change == WindowEvent::minimised) && *change != WindowEvent::restored;
        }
        return event;
    }

    Millis now() override { return machine_.now(); }
    std::tm today() override { return machine_.today(); }
    DisplayInfo display() override { return machine_.display(); }
    void present(const Bitmap& picture, std::span<const Rect> changed) override {
        machine_.present(picture, changed);
    }
    Millis frameTime() override { return machine_.frameTime(); }
    void show(bool visible) override { machine_.show(visible); }
    void setTitle(std::string_view title) override { machine_.setTitle(title); }
    void setCursor(const CursorImage* cursor) override { machine_.setCursor(cursor); }
    void captureMouse(bool captured) override { machine_.captureMouse(captured); }
    Point mousePosition() override { return machine_.mousePosition(); }
    void setDragStrip(std::optional<DragStrip> strip) override { machine_.setDragStrip(strip); }
    void setFullScreen(bool fullScreen) override { machine_.setFullScreen(fullScreen); }
    bool isFullScreen() const override { return machine_.isFullScreen(); }
    void minimise() override { machine_.minimise(); }
    void restore() override { machine_.restore(); }
    std::string keyName(Key place) override { return machine_.keyName(place); }
    std::string clipboard() override { return machine_.clipboard(); }
    void setClipboard(std::string_view text) override { machine_.setClipboard(text); }
    void beep(MessageIcon kind) override { machine_.beep(kind); }

private:
    HeadlessBackend& machine_;
    bool inFront_ = true;
    bool minimised_ = false;
};

struct SoakMachine {
    explicit SoakMachine(Size size) : headless(size) {}

    HeadlessBackend headless;
    LateBackend backend{headless};
    HeadlessSound device{[this] { return headless.now(); }};
    HeadlessSequencer sequencer{[this] { return headless.now(); }};

    /// The device is pulled out, or comes back: what sounds then is not heard.
    void plugSound(bool isThere) {
        constexpr std::size_t soundsOfADevice = 24;
        device.mostSounds = isThere ? soundsOfADevice : 0;
        sequencer.works = isThere;
    }

    /// Nobody looks at what was heard.
    void forgetWhatWasHeard() {
        device.starts.clear();
        if (sequencer.starts.size() > 1) {
            sequencer.starts.erase(sequencer.starts.begin(), sequencer.starts.end() - 1);
        }
    }
};

} // namespace ventrel
