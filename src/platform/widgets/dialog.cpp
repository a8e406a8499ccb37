#include "platform/widgets/dialog.h"

#include <algorithm>
#include <cassert>

#include "platform/widgets/widget_place.h"

namespace ventrel {

namespace {

Align alignOf(unsigned style) {
    return (style & rightAligned) != 0 ? Align::far : (style & centred) != 0 ? Align::middle : Align::near;
}

} // namespace

Dialog::Dialog(Desktop& desktop, const WidgetFonts& fonts, const Window& owner, const DialogTemplate& shape,
               DialogHandlers handlers)
    : desktop_(desktop), fonts_(fonts), handlers_(std::move(handlers)), title_(shape.title),
      hasFrame_(shape.hasFrame), isActive_(!shape.activates) {
    createFrame(owner, shape);
    resizeInside({dialogUnitsAcross(shape.size.width), dialogUnitsDown(shape.size.height)});
    for (const ControlTemplate& control : shape.controls) {
        createControl(control);
    }
}

Dialog::~Dialog() {
    frame_.destroy();
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
                                    .isDefault = shape.kind == ControlKind::defaultButton,
                                    .onFocus = [this](bool) { markDefault(); }}));
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
        add(createEdit(desktop_, {inside_, shape.id, place, &fonts_.text, (shape.style & readOnlyEdit) != 0,
                                  shape.limit}));
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
    if (!isDone_ && focusIndex() == controls_.size()) {
        moveFocus(1);
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
    const std::string_view typed = text(id);
    for (const char c : typed.substr(std::min(typed.find_first_not_of(' '), typed.size()))) {
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

/// A group begins at a radio button marked so, or after a control that is none.
Dialog::Group Dialog::radioGroup(std::size_t index) const {
    const auto isRadio = [&](std::size_t i) { return controls_[i].shape.kind == ControlKind::radioButton; };
    const auto isStart = [&](std::size_t i) { return (controls_[i].shape.style & groupStart) != 0; };
    Group group{index, index + 1};
    while (group.first > 0 && !isStart(group.first) && isRadio(group.first - 1)) {
        --group.first;
    }
    while (group.end < controls_.size() && isRadio(group.end) && !isStart(group.end)) {
        ++group.end;
    }
    return group;
}

/// The others of its group are let go.
void Dialog::chooseRadio(std::size_t index) {
    const Group group = radioGroup(index);
    for (std::size_t i = group.first; i < group.end; ++i) {
        std::get<Toggle>(controls_[i].control).setChecked(i == index);
    }
}

void Dialog::command(const CommandInput& input) {
    if (handlers_.command && !isDone_) {
        handlers_.command(*this, input);
    }
}

void Dialog::commandOf(int id) {
    CommandInput input;
    input.id = id;
    command(input);
}

int runDialog(Desktop& desktop, const WidgetFonts& fonts, const Window& owner, const DialogTemplate& shape,
              DialogHandlers handlers) {
    Dialog dialog(desktop, fonts, owner, shape, std::move(handlers));
    dialog.centre();
    return dialog.run(cancelId);
}

} // namespace ventrel
