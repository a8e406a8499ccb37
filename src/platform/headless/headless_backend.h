// The machine in memory: scripted input, a screen that is a bitmap, a clock that stands still while the
// program works and jumps while it waits. An hour passes in as long as its work takes.
//
// A test owns it, hands it to the desktop, fills its timeline (script.h makes that readable) and looks at
// what arrived here.

#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "platform/devices/backend.h"

namespace ventrel {

class HeadlessBackend final : public Backend {
public:
    explicit HeadlessBackend(Size size, DisplayInfo display = {{1280, 1024}, 32});

    // What the person at the machine does -----------------------------------------------------------------

    /// Adds input at the end of the timeline; it arrives at `when`, or right after what stands before it when
    /// that is later.
    void addInput(Millis when, InputEvent event);
    /// Adds something to be done while the program waits: all earlier input has been handled, and everything
    /// has been painted and sent.
    void addAction(Millis when, std::function<void()> action);
    bool timelineIsEmpty() const { return timeline_.empty(); }

    /// A slow screen; at first it shows whatever is sent.
    void setFrameTime(Millis time) { frameTime_ = time; }

    /// The machine's clock goes on, but the program does not, as when it has been stopped for a while.
    void standStill(Millis time) { now_ += time; }

    /// Until then it is no day of any calendar.
    void setToday(const std::tm& day) { today_ = day; }

    /// Writes something else on the key at that place. At first letters, digits and signs have those of the
    /// United States, and no other key has anything.
    void writeOnKey(Key place, std::string name) { keyNames_[place] = std::move(name); }

    /// Called when the program waits for ever with nothing left in the timeline. Without it, or when it
    /// leaves the program waiting, `wait` throws std::logic_error: a real program would hang.
    std::function<void()> whenTimelineEnds;

    // What is seen and heard of the program ---------------------------------------------------------------

    /// What was sent, and nothing else: a change that was not sent does not show.
    const Bitmap& screen() const { return screen_; }

    struct Sending {
        Millis when = 0;
        std::vector<Rect> changed;
    };
    /// The latest sending.
    const Sending& lastSending() const { return lastSending_; }
    std::size_t sendings() const { return sendings_; }
    std::size_t pixelsSent() const { return pixelsSent_; }
    /// How often the program went to sleep (waited with a limit other than 0).
    std::size_t sleeps() const { return sleeps_; }

    const CursorImage* cursor() const { return cursor_; }
    const std::string& title() const { return title_; }
    bool isShown() const { return shown_; }
    bool isCaptured() const { return captured_; }
    bool isMinimised() const { return minimised_; }
    std::optional<DragStrip> dragStrip() const { return dragStrip_; }
    const std::vector<MessageIcon>& beeps() const { return beeps_; }

    // Backend ---------------------------------------------------------------------------------------------

    Millis now() override { return now_; }
    std::tm today() override { return today_; }
    std::optional<InputEvent> wait(std::optional<Millis> limit) override;
    DisplayInfo display() override { return display_; }
    void present(const Bitmap& picture, std::span<const Rect> changed) override;
    /// Showing is answered as a window system does: all is to be sent.
    void show(bool visible) override;
    void setTitle(std::string_view title) override { title_ = title; }
    void setCursor(const CursorImage* cursor) override { cursor_ = cursor; }
    void captureMouse(bool captured) override { captured_ = captured; }
    Point mousePosition() override { return mouse_; }
    void setDragStrip(std::optional<DragStrip> strip) override { dragStrip_ = strip; }
    void setFullScreen(bool fullScreen) override { fullScreen_ = fullScreen; }
    bool isFullScreen() const override { return fullScreen_; }
    Millis frameTime() override { return frameTime_; }
    /// Minimising and restoring answer with the events that a window manager sends.
    void minimise() override;
    void restore() override;
    std::string keyName(Key place) override;
    std::string clipboard() override { return clipboard_; }
    void setClipboard(std::string_view text) override { clipboard_ = text; }
    void beep(MessageIcon kind) override { beeps_.push_back(kind); }

private:
    using Action = std::function<void()>;
    struct Entry {
        Millis when = 0;
        std::variant<InputEvent, Action> what;
    };

    /// Whether there was one.
    bool runDueAction();
    void endTimeline();
    std::optional<InputEvent> poll();
    std::optional<InputEvent> takeDueInput();

    Bitmap screen_;
    DisplayInfo display_;
    Millis frameTime_ = 0;
    Millis now_ = 1000; // not 0, so that nobody mistakes "never" for "now"
    std::tm today_{};
    std::deque<Entry> timeline_;
    bool timelineHasEnded_ = false;
    int emptyPolls_ = 0;
    Sending lastSending_;
    std::size_t sendings_ = 0;
    std::size_t pixelsSent_ = 0;
    std::size_t sleeps_ = 0;
    const CursorImage* cursor_ = nullptr;
    std::string title_;
    std::string clipboard_;
    std::map<Key, std::string> keyNames_;
    Point mouse_;
    std::optional<DragStrip> dragStrip_;
    std::vector<MessageIcon> beeps_;
    bool shown_ = false;
    bool captured_ = false;
    bool minimised_ = false;
    bool fullScreen_ = false;
};

} // namespace ventrel
