#include "platform/widgets/dialog.h"

#include <algorithm>
#include <cassert>

#include "platform/widgets/menu.h"
#include "platform/widgets/widget_place.h"

namespace ventrel {

namespace {

constexpr int border = 3;
constexpr int captionHeight = 18;
constexpr int captionTextIndent = 4;
constexpr Size closeBoxSize{16, 14};

WindowHandlers forwarding(std::function<void(const CommandInput&)> command,
                          std::function<bool(const KeyEvent&)> key,
                          std::function<bool(std::string_view)> text) {
    WindowHandlers handlers;
    handlers.command = std::move(command);
    handlers.key = std::move(key);
    handlers.text = std::move(text);
    return handlers;
}

Align alignOf(unsigned style) {
    return (style & rightAligned) != 0 ? Align::far : (style & centred) != 0 ? Align::middle : Align::near;
}

/// A command that no control has sent.
CommandInput commandOf(int id) {
    CommandInput input;
    input.id = id;
    return input;
}

bool isButton(ControlKind kind) {
    return kind == ControlKind::pushButton || kind == ControlKind::defaultButton;
}

} // namespace

Dialog::Dialog(Desktop& desktop, const WidgetFonts& fonts, const Window& owner, const DialogTemplate& shape,
               DialogHandlers handlers)
    : desktop_(desktop), fonts_(fonts), handlers_(std::move(handlers)), title_(shape.title) {
    createFrame(owner, shape.hasCloseBox);
    resizeInside({dialogUnitsAcross(shape.size.width), dialogUnitsDown(shape.size.height)});
    for (const ControlTemplate& control : shape.controls) {
        createControl(control);
    }
}

Dialog::~Dialog() {
    frame_.destroy();
}

int Dialog::frameTop() const {
    return border + (title_.empty() ? 0 : captionHeight);
}

void Dialog::createFrame(const Window& owner, bool hasCloseBox) {
    hasCloseBox_ = hasCloseBox && !title_.empty();
    WindowHandlers handlers = forwarding(
        nullptr, [this](const KeyEvent& event) { return key(event); },
        [this](std::string_view words) { return type(words); });
    handlers.paint = [this](Canvas& canvas, const Rect&) { paintFrame(canvas); };
    handlers.press = [this](const MouseInput& mouse) { pressFrame(mouse); };
    handlers.move = [this](const MouseInput& mouse) {
        if (grip_) {
            frame_.setBounds(frame_.bounds().movedBy(mouse.position - *grip_));
        }
    };
    handlers.release = [this](const MouseInput&) {
        grip_.reset();
        frame_.releaseCapture();
    };
    handlers.captureLost = [this] { grip_.reset(); };
    handlers.activate = [this](Activation activation) {
        isActive_ = activation.active;
        frame_.invalidate();
    };
    handlers.close = [this] { cancel(); };
    frame_ = desktop_.create({.owner = owner, .visible = false, .handlers = std::move(handlers)});

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
    frame_.setBounds(Rect::at(corner, {size.width + 2 * border, size.height + frameTop() + border}));
    inside_.setBounds(Rect::at({border, frameTop()}, size));
}

void Dialog::centre() {
    frame_.setBounds(centredIn(desktop_.area(), frame_.size()));
}

void Dialog::createControl(const ControlTemplate& shape) {
    const Rect place = dialogUnitsToPixels(shape.place);
    const std::string text(shape.text);
    const std::size_t index = controls_.size();
    const auto add = [&](auto control) {
        const Window window = control.window;
        controls_.push_back({shape, std::move(control), window});
    };
    switch (shape.kind) {
    case ControlKind::pushButton:
    case ControlKind::defaultButton:
        add(createButton(desktop_, {.parent = inside_,
                                    .id = shape.id,
                                    .bounds = place,
                                    .text = text,
                                    .font = &fonts_.text,
                                    .isDefault = shape.kind == ControlKind::defaultButton}));
        break;
    case ControlKind::checkBox:
    case ControlKind::radioButton: {
        const auto kind =
            shape.kind == ControlKind::checkBox ? ToggleKind::checkBox : ToggleKind::radioButton;
        const Toggle toggle = createToggle(desktop_, {inside_, shape.id, place, kind, text, &fonts_.text});
        if (kind == ToggleKind::radioButton) {
            toggle.setOnChosen([this, index] { chooseRadio(index); });
        }
        add(toggle);
        break;
    }
    case ControlKind::edit:
        add(createEdit(desktop_,
                       {inside_, shape.id, place, &fonts_.text, (shape.style & readOnlyEdit) != 0}));
        break;
    case ControlKind::staticText:
    case ControlKind::groupBox:
        add(createLabel(desktop_, {.parent = inside_,
                                   .id = shape.id,
                                   .bounds = place,
                                   .text = text,
                                   .font = &fonts_.text,
                                   .across = alignOf(shape.style),
                                   .sunken = (shape.style & sunkenStatic) != 0,
                                   .wraps = (shape.style & multiLine) != 0,
                                   .isGroup = shape.kind == ControlKind::groupBox}));
        break;
    case ControlKind::listBox:
        add(createListBox(desktop_,
                          {inside_, shape.id, place, &fonts_.text, (shape.style & sortedList) != 0}));
        break;
    }
}

int Dialog::run(int whenQuitting) {
    frame_.show(); // nothing is painted before the loop runs, but the keyboard can be handed out
    if (handlers_.init) {
        handlers_.init(*this);
    }
    if (!isDone_ && !desktop_.focusWindow().isWithin(frame_)) {
        moveFocus(1, false);
    }
    if (!isDone_ && !desktop_.runModal(frame_, [this] { return isDone_; })) {
        return whenQuitting;
    }
    return result_;
}

void Dialog::end(int result) {
    result_ = result;
    isDone_ = true;
}

// Controls by their numbers ---------------------------------------------------------------------------------

const Dialog::Placed& Dialog::placed(int id) const {
    const auto found =
        std::ranges::find_if(controls_, [id](const Placed& control) { return control.shape.id == id; });
    assert(found != controls_.end());
    return *found;
}

void Dialog::setText(int id, std::string text) {
    std::visit(
        [&](const auto& control) {
            if constexpr (requires { control.setText(std::move(text)); }) {
                control.setText(std::move(text));
            }
        },
        placed(id).control);
}

const std::string& Dialog::text(int id) const {
    const Placed& control = placed(id);
    if (const auto* edit = std::get_if<Edit>(&control.control)) {
        return edit->text();
    }
    return std::get<Label>(control.control).text();
}

unsigned Dialog::number(int id) const {
    constexpr unsigned largest = 1000000;
    unsigned number = 0;
    for (const char c : text(id)) {
        if (c < '0' || c > '9') {
            break;
        }
        number = std::min(number * 10 + static_cast<unsigned>(c - '0'), largest);
    }
    return number;
}

void Dialog::setNumber(int id, unsigned number) {
    setText(id, std::to_string(number));
}

void Dialog::enable(int id, bool enabled) {
    const Window& window = placed(id).window;
    window.enable(enabled);
    window.invalidate();
}

void Dialog::setChecked(int id, bool checked) {
    std::get<Toggle>(placed(id).control).setChecked(checked);
}
bool Dialog::isChecked(int id) const {
    return std::get<Toggle>(placed(id).control).isChecked();
}
void Dialog::focus(int id) {
    placed(id).window.focus();
}
Edit Dialog::edit(int id) const {
    return std::get<Edit>(placed(id).control);
}
ListBox Dialog::list(int id) const {
    return std::get<ListBox>(placed(id).control);
}
Button Dialog::button(int id) const {
    return std::get<Button>(placed(id).control);
}
Window Dialog::window(int id) const {
    return placed(id).window;
}

/// The others of its group are let go: a group begins at a control marked so, or after one that is no radio
/// button.
void Dialog::chooseRadio(std::size_t index) {
    const auto isRadio = [&](std::size_t i) { return controls_[i].shape.kind == ControlKind::radioButton; };
    std::size_t first = index;
    while (first > 0 && (controls_[first].shape.style & groupStart) == 0 && isRadio(first - 1)) {
        --first;
    }
    for (std::size_t i = first; i < controls_.size() && isRadio(i); ++i) {
        const bool isNextGroup = i > first && (controls_[i].shape.style & groupStart) != 0;
        if (isNextGroup) {
            break;
        }
        std::get<Toggle>(controls_[i].control).setChecked(i == index);
    }
}

// Frame -----------------------------------------------------------------------------------------------------

Rect Dialog::captionBox() const {
    return {border, border, frame_.size().width - border, border + captionHeight};
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
        canvas.fill(closeBox(), look::face);
        drawButtonEdge(canvas, closeBox(), false);
        drawCloseCross(canvas, closeBox());
    }
}

void Dialog::pressFrame(const MouseInput& mouse) {
    if (mouse.button != MouseButton::left || title_.empty()) {
        return;
    }
    if (hasCloseBox_ && closeBox().contains(mouse.position)) {
        cancel();
    } else if (captionBox().contains(mouse.position)) {
        grip_ = mouse.position;
        frame_.capture();
    }
}

// Keys ------------------------------------------------------------------------------------------------------

bool Dialog::canFocus(const Placed& control) const {
    const bool isStill =
        control.shape.kind == ControlKind::staticText || control.shape.kind == ControlKind::groupBox;
    return !isStill && control.window.isVisible() && control.window.isEnabled();
}

std::size_t Dialog::focusIndex() const {
    const auto found =
        std::ranges::find_if(controls_, [](const Placed& control) { return control.window.hasFocus(); });
    return static_cast<std::size_t>(found - controls_.begin());
}

/// To the next control that can have the keyboard, round the ends. A group of radio buttons counts as one:
/// its chosen button gets the keyboard. Within a group the buttons are walked, and chosen.
void Dialog::moveFocus(int direction, bool withinGroup) {
    const auto count = static_cast<int>(controls_.size());
    const int start = static_cast<int>(focusIndex());
    int index = start == count && direction > 0 ? -1 : start;
    for (int step = 0; step < count; ++step) {
        index = (index + direction + count) % count;
        const Placed& control = controls_[static_cast<std::size_t>(index)];
        const bool isRadio = control.shape.kind == ControlKind::radioButton;
        if (!canFocus(control) || (withinGroup && !isRadio)) {
            continue;
        }
        if (withinGroup) {
            control.window.focus();
            std::get<Toggle>(control.control).choose();
            return;
        }
        const bool isOther = !isRadio || std::get<Toggle>(control.control).isChecked();
        if (isOther) {
            control.window.focus();
            if (control.shape.kind == ControlKind::edit) {
                std::get<Edit>(control.control).selectAll();
            }
            return;
        }
    }
}

bool Dialog::key(const KeyEvent& event) {
    if (!event.down) {
        return false;
    }
    const std::size_t focused = focusIndex();
    const bool isOnRadio =
        focused < controls_.size() && controls_[focused].shape.kind == ControlKind::radioButton;
    switch (event.key) {
    case Key::tab: moveFocus(event.modifiers.shift ? -1 : 1, false); return true;
    case Key::left:
    case Key::up: moveFocus(-1, isOnRadio); return true;
    case Key::right:
    case Key::down: moveFocus(1, isOnRadio); return true;
    case Key::enter:
    case Key::keypadEnter: pressDefault(); return true;
    case Key::escape:
        if (handlers_.escapeCommand != noEscape) {
            command(commandOf(handlers_.escapeCommand));
        }
        return true;
    default: break;
    }
    const bool isLetter = event.key >= Key::a && event.key <= Key::z;
    if (event.modifiers.alt && isLetter) {
        const int letter = static_cast<int>(event.key) - static_cast<int>(Key::a);
        return takeMnemonic(static_cast<char>('a' + letter));
    }
    return false;
}

/// Letters that no field has taken are mnemonics too.
bool Dialog::type(std::string_view words) {
    if (!words.empty()) {
        takeMnemonic(mnemonicOf("&" + std::string(words.substr(0, 1))));
    }
    return true;
}

bool Dialog::takeMnemonic(char letter) {
    for (const Placed& control : controls_) {
        if (letter == '\0' || mnemonicOf(control.shape.text) != letter || !canFocus(control)) {
            continue;
        }
        control.window.focus();
        if (const auto* button = std::get_if<Button>(&control.control)) {
            button->press();
        } else if (const auto* toggle = std::get_if<Toggle>(&control.control)) {
            toggle->choose();
        }
        return true;
    }
    return false;
}

/// The button that has the keyboard, else the default one.
void Dialog::pressDefault() {
    const std::size_t focused = focusIndex();
    if (focused < controls_.size() && isButton(controls_[focused].shape.kind)) {
        std::get<Button>(controls_[focused].control).press();
        return;
    }
    for (const Placed& control : controls_) {
        if (control.shape.kind == ControlKind::defaultButton) {
            std::get<Button>(control.control).press();
            return;
        }
    }
}

void Dialog::command(const CommandInput& input) {
    if (handlers_.command && !isDone_) {
        handlers_.command(*this, input);
    }
}

void Dialog::cancel() {
    command(commandOf(cancelId));
}

int runDialog(Desktop& desktop, const WidgetFonts& fonts, const Window& owner, const DialogTemplate& shape,
              DialogHandlers handlers) {
    Dialog dialog(desktop, fonts, owner, shape, std::move(handlers));
    dialog.centre();
    return dialog.run(cancelId);
}

} // namespace ventrel
