// The window of a dialog: its frame, caption and close box, and the part inside.

#include <algorithm>

#include "platform/widgets/dialog.h"
#include "platform/widgets/widget_place.h"

namespace ventrel {

namespace {

constexpr int frameBorder = 3;
constexpr int captionHeight = 18;
constexpr int captionTextIndent = 4;
constexpr Size closeBoxSize{16, 14};

} // namespace

int Dialog::border() const {
    return hasFrame_ ? frameBorder : 0;
}

int Dialog::frameTop() const {
    return border() + (title_.empty() ? 0 : captionHeight);
}

void Dialog::createFrame(const Window& owner, const DialogTemplate& shape) {
    hasCloseBox_ = shape.hasCloseBox && !title_.empty();
    WindowHandlers handlers;
    handlers.key = [this](const KeyEvent& event) { return key(event); };
    handlers.command = [this](const CommandInput& input) { command(input); };
    handlers.text = [this](std::string_view words) { return type(words); };
    handlers.paint = [this](Canvas& canvas, const Rect&) { paintFrame(canvas); };
    handlers.press = [this](const MouseInput& mouse) { pressFrame(mouse); };
    handlers.move = [this](const MouseInput& mouse) { moveOnFrame(mouse); };
    handlers.release = [this](const MouseInput& mouse) {
        if (mouse.button == MouseButton::left) {
            releaseFrame();
        }
    };
    handlers.captureLost = [this] { letGoOfFrame(); };
    handlers.activate = [this](Activation activation) {
        isActive_ = activation.active;
        frame_.invalidate();
    };
    handlers.hoverKey = [this](const KeyEvent& event) {
        return handlers_.hoverKey && handlers_.hoverKey(*this, event);
    };
    handlers.close = [this] { cancel(); };
    frame_ = desktop_.create(
        {.owner = owner, .visible = false, .activates = shape.activates, .handlers = std::move(handlers)});

    WindowHandlers insideHandlers;
    insideHandlers.command = [this](const CommandInput& input) { command(input); };
    insideHandlers.paint = [this](Canvas& canvas, const Rect&) {
        canvas.fill(inside_.area(), look::face);
        if (handlers_.paint) {
            handlers_.paint(*this, canvas);
        }
    };
    inside_ = desktop_.create({.parent = frame_, .handlers = std::move(insideHandlers)});
}

void Dialog::resizeInside(Size size) {
    const Point corner = frame_.bounds().topLeft();
    frame_.setBounds(Rect::at(corner, {size.width + 2 * border(), size.height + frameTop() + border()}));
    inside_.setBounds(Rect::at({border(), frameTop()}, size));
}

void Dialog::centre() {
    frame_.setBounds(centredIn(desktop_.area(), frame_.size()));
}

Rect Dialog::captionBox() const {
    return {border(), border(), frame_.size().width - border(), border() + captionHeight};
}

Rect Dialog::closeBox() const {
    const Rect caption = captionBox();
    return Rect::at({caption.right - closeBoxSize.width - 2, caption.top + 2}, closeBoxSize);
}

void Dialog::paintFrame(Canvas& canvas) const {
    canvas.fill(frame_.area(), look::face);
    drawRaisedEdge(canvas, frame_.area());
    if (title_.empty()) {
        return;
    }
    const Rect caption = captionBox();
    canvas.fill(caption, isActive_ ? look::caption : look::idleCaption);
    const Rect words{caption.left + captionTextIndent, caption.top, caption.right, caption.bottom};
    drawTextBox(canvas, fonts_.caption, words, title_, {isActive_ ? look::captionText : look::face, {}},
                {.down = Align::middle, .singleLine = true});
    if (hasCloseBox_) {
        const Rect cross = isCloseBoxPressed_ ? closeBox().movedBy({1, 1}) : closeBox();
        canvas.fill(closeBox(), look::face);
        drawButtonEdge(canvas, closeBox(), isCloseBoxPressed_);
        drawCloseCross(canvas, cross);
    }
}

void Dialog::pressFrame(const MouseInput& mouse) {
    if (mouse.button != MouseButton::left || title_.empty()) {
        return;
    }
    if (hasCloseBox_ && closeBox().contains(mouse.position)) {
        isClosing_ = true;
        showCloseBoxPressed(true);
        frame_.capture();
    } else if (captionBox().contains(mouse.position)) {
        grip_ = mouse.position;
        frame_.capture();
    }
}

void Dialog::moveOnFrame(const MouseInput& mouse) {
    if (grip_) {
        // The held point stays on the screen, or nobody could take hold of it again.
        const Size screen = desktop_.size();
        const Point held{std::clamp(mouse.screen.x, 0, screen.width - 1),
                         std::clamp(mouse.screen.y, 0, screen.height - 1)};
        frame_.setBounds(Rect::at(held - *grip_, frame_.size()));
    } else if (isClosing_) {
        showCloseBoxPressed(closeBox().contains(mouse.position));
    }
}

void Dialog::releaseFrame() {
    const bool isChosen = isCloseBoxPressed_;
    frame_.releaseCapture();
    letGoOfFrame();
    if (isChosen) {
        cancel();
    }
}

void Dialog::letGoOfFrame() {
    grip_.reset();
    isClosing_ = false;
    showCloseBoxPressed(false);
}

void Dialog::showCloseBoxPressed(bool pressed) {
    if (isCloseBoxPressed_ != pressed) {
        isCloseBoxPressed_ = pressed;
        frame_.invalidate(closeBox());
    }
}

} // namespace ventrel
