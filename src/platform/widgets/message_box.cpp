#include "platform/widgets/message_box.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/windows1252.h"
#include "platform/widgets/dialog.h"

namespace ventrel {

namespace {

constexpr int margin = 12;
constexpr int iconGap = 12;
constexpr Size buttonSize{75, 23};
constexpr int buttonGap = 6;
constexpr int widestText = 420;

struct AnswerButton {
    MessageAnswer answer;
    std::string_view text;
};

constexpr std::array okButtons{std::to_array<AnswerButton>({{MessageAnswer::ok, "OK"}})};
constexpr std::array okCancelButtons{
    std::to_array<AnswerButton>({{MessageAnswer::ok, "OK"}, {MessageAnswer::cancel, "Cancel"}})};
constexpr std::array yesNoButtons{
    std::to_array<AnswerButton>({{MessageAnswer::yes, "&Yes"}, {MessageAnswer::no, "&No"}})};

std::span<const AnswerButton> buttonsOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::okCancel: return okCancelButtons;
    case MessageButtons::yesNo: return yesNoButtons;
    case MessageButtons::ok: break;
    }
    return okButtons;
}

/// Dialogs number their buttons; 0 is no button's number.
int numberOf(MessageAnswer answer) {
    return static_cast<int>(answer) + 1;
}

/// What closing the box answers: whatever changes least.
MessageAnswer closingAnswer(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::ok: return MessageAnswer::ok;
    case MessageButtons::okCancel: return MessageAnswer::cancel;
    case MessageButtons::yesNo: break;
    }
    return MessageAnswer::no;
}

constexpr TextLayout textLayout{.wrap = true};

constexpr int copyId = 100; // no button's
constexpr std::array copyKeys{
    std::to_array<Accelerator>({{.key = Key::c, .modifiers = {.control = true}, .command = copyId}})};

/// Places of everything inside the box.
struct BoxPlaces {
    Point icon;
    Rect text;
    int buttonsTop = 0;
    Size size;
};

BoxPlaces measure(const Font& font, const MessageBoxText& message, std::size_t buttonCount) {
    const bool hasIcon = message.icon != MessageIcon::none;
    const Size text = measureText(font, message.text, widestText, textLayout);
    const int textLeft = margin + (hasIcon ? messageIconSize + iconGap : 0);
    const int height = std::max(text.height, hasIcon ? messageIconSize : 0);
    const int buttons = static_cast<int>(buttonCount) * (buttonSize.width + buttonGap) - buttonGap;
    BoxPlaces places;
    places.icon = {margin, margin};
    places.text = Rect::at({textLeft, margin + (height - text.height) / 2}, text);
    places.buttonsTop = margin + height + margin;
    places.size = {std::max(places.text.right, margin + buttons) + margin,
                   places.buttonsTop + buttonSize.height + margin};
    return places;
}

/// Of a damaged file a text may hold anything; the box shows nothing for what is no character.
std::string printable(std::string_view text) {
    std::string shown(text);
    std::ranges::replace_if(shown, [](char c) { return c != '\n' && isControlCharacter(c); }, '?');
    return shown;
}

} // namespace

MessageAnswer showMessageBox(Desktop& desktop, const WidgetFonts& fonts, const Window& owner,
                             const MessageBoxText& message) {
    const auto buttons = buttonsOf(message.buttons);
    const BoxPlaces places = measure(fonts.text, message, buttons.size());
    std::vector<ControlTemplate> controls;
    for (const AnswerButton& button : buttons) {
        const auto kind = controls.empty() ? ControlKind::defaultButton : ControlKind::pushButton;
        controls.push_back({.kind = kind, .id = numberOf(button.answer), .text = button.text, .place = {}});
    }
    DialogHandlers handlers;
    handlers.escapeCommand = message.buttons == MessageButtons::yesNo ? noEscape : cancelId;
    handlers.paint = [&](Dialog&, Canvas& canvas) {
        drawMessageIcon(canvas, places.icon, message.icon);
        drawTextBox(canvas, fonts.text, places.text, message.text, {look::text, {}}, textLayout);
    };
    const int onClose = numberOf(closingAnswer(message.buttons));
    handlers.command = [&message, onClose](Dialog& dialog, const CommandInput& input) {
        if (input.id == copyId) {
            dialog.desktop().backend().setClipboard(printable(message.text));
            return;
        }
        const bool isClosed = !input.sender && input.id == cancelId;
        dialog.end(isClosed ? onClose : input.id);
    };
    const DialogTemplate shape{.title = message.title,
                               .size = {},
                               .controls = controls,
                               .hasCloseBox = message.buttons != MessageButtons::yesNo};
    Dialog dialog(desktop, fonts, owner, shape, std::move(handlers));
    dialog.frame().setAccelerators(copyKeys);
    dialog.resizeInside(places.size);
    const int row = static_cast<int>(buttons.size()) * (buttonSize.width + buttonGap) - buttonGap;
    int x = (places.size.width - row) / 2;
    for (const AnswerButton& button : buttons) {
        dialog.window(numberOf(button.answer)).setBounds(Rect::at({x, places.buttonsTop}, buttonSize));
        x += buttonSize.width + buttonGap;
    }
    dialog.centre();
    if (message.beeps && message.icon != MessageIcon::none) {
        desktop.backend().beep(message.icon);
    }
    const MessageAnswer whenQuitting =
        message.buttons == MessageButtons::yesNo ? MessageAnswer::no : MessageAnswer::cancel;
    return static_cast<MessageAnswer>(dialog.run(numberOf(whenQuitting)) - 1);
}

} // namespace ventrel
