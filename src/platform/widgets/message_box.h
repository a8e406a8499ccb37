// Message boxes: a text with a picture, and an answer.

#pragma once

#include <string_view>

#include "platform/desktop/desktop.h"
#include "platform/widgets/look.h"

namespace ventrel {

enum class MessageButtons { ok, okCancel, yesNo };
enum class MessageAnswer { ok, cancel, yes, no };

struct MessageBoxText {
    std::string_view text;
    std::string_view title;
    MessageIcon icon = MessageIcon::none;
    MessageButtons buttons = MessageButtons::ok;
    bool beeps = true; ///< the sound of the icon's kind
};

/// Shows the box over `owner` and waits for the answer. Esc is Cancel, where there is such a button, or OK
/// where there is no other. Closing the window is the same, and No where a yes or no is wanted, so that it
/// never agrees to anything. Ctrl+C copies the text, so that it can be passed on. A program that ends
/// meanwhile answers Cancel or No.
MessageAnswer showMessageBox(Desktop& desktop, const WidgetFonts& fonts, const Window& owner,
                             const MessageBoxText& message);

} // namespace ventrel
