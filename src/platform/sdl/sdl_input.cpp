#include "platform/sdl/sdl_input.h"

#include "base/windows1252.h"
#include "platform/sdl/picture_scaling.h"
#include "platform/sdl/sdl_keys.h"

namespace ventrel {

namespace {

MouseButton buttonOf(std::uint8_t button) {
    switch (button) {
    case SDL_BUTTON_LEFT: return MouseButton::left;
    case SDL_BUTTON_RIGHT: return MouseButton::right;
    case SDL_BUTTON_MIDDLE: return MouseButton::middle;
    default: return MouseButton::none;
    }
}

std::optional<InputEvent> keyEvent(const SDL_KeyboardEvent& event) {
    return KeyEvent{keyOf(event.keysym), modifiersOf(static_cast<SDL_Keymod>(event.keysym.mod)),
                    event.type == SDL_KEYDOWN, event.repeat != 0, placeOf(event.keysym.scancode)};
}

std::optional<InputEvent> textEvent(const SDL_TextInputEvent& event) {
    // The right Alt key types signs on many keyboards.
    const bool isCommand = (SDL_GetModState() & (KMOD_LALT | KMOD_CTRL)) != 0;
    std::string text = isCommand ? std::string() : fromUtf8(event.text, '\0');
    return text.empty() ? std::nullopt : std::optional<InputEvent>(TextEvent{std::move(text)});
}

/// A move of the mouse, or the start of anything else it does there. Beside the picture it counts only while
/// it is captured.
std::optional<MouseEvent> mouseAt(Point window, const PicturePlace& place) {
    const Point position = toPicture(window, place.area, place.picture);
    if (!place.mouseIsCaptured && !Rect::at({}, place.picture).contains(position)) {
        return std::nullopt;
    }
    return MouseEvent{.position = position, .modifiers = modifiersOf(SDL_GetModState())};
}

std::optional<InputEvent> buttonEvent(const SDL_MouseButtonEvent& event, const PicturePlace& place) {
    auto mouse = mouseAt({event.x, event.y}, place);
    const MouseButton button = buttonOf(event.button);
    if (!mouse || button == MouseButton::none) {
        return std::nullopt;
    }
    mouse->button = button;
    mouse->down = event.type == SDL_MOUSEBUTTONDOWN;
    mouse->doubleClick = mouse->down && event.clicks % 2 == 0;
    return *mouse;
}

std::optional<InputEvent> wheelEvent(const SDL_MouseWheelEvent& event, const PicturePlace& place) {
    auto mouse = mouseAt({event.mouseX, event.mouseY}, place);
    const int notches = event.direction == SDL_MOUSEWHEEL_FLIPPED ? -event.y : event.y;
    if (!mouse || notches == 0) {
        return std::nullopt;
    }
    mouse->wheel = notches;
    return *mouse;
}

std::optional<InputEvent> windowEvent(const SDL_WindowEvent& event) {
    switch (event.event) {
    case SDL_WINDOWEVENT_SIZE_CHANGED:
    case SDL_WINDOWEVENT_EXPOSED: return WindowEvent::exposed;
    case SDL_WINDOWEVENT_FOCUS_GAINED: return WindowEvent::activated;
    case SDL_WINDOWEVENT_FOCUS_LOST: return WindowEvent::deactivated;
    case SDL_WINDOWEVENT_MINIMIZED: return WindowEvent::minimised;
    case SDL_WINDOWEVENT_RESTORED: return WindowEvent::restored;
    case SDL_WINDOWEVENT_CLOSE: return WindowEvent::closeRequested;
    case SDL_WINDOWEVENT_DISPLAY_CHANGED: return WindowEvent::displayChanged;
    default: return std::nullopt;
    }
}

} // namespace

std::optional<InputEvent> inputOf(const SDL_Event& event, const PicturePlace& place) {
    switch (event.type) {
    case SDL_QUIT: return WindowEvent::endRequired;
    case SDL_KEYDOWN:
    case SDL_KEYUP: return keyEvent(event.key);
    case SDL_TEXTINPUT: return textEvent(event.text);
    case SDL_MOUSEMOTION: return mouseAt({event.motion.x, event.motion.y}, place);
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP: return buttonEvent(event.button, place);
    case SDL_MOUSEWHEEL: return wheelEvent(event.wheel, place);
    case SDL_WINDOWEVENT: return windowEvent(event.window);
    case SDL_DISPLAYEVENT: return WindowEvent::displayChanged;
    default: return std::nullopt;
    }
}

std::optional<TextEvent> keypadText(const SDL_Event& event) {
    constexpr auto commandKeys = KMOD_NUM | KMOD_SHIFT | KMOD_CTRL | KMOD_ALT;
    if (event.type != SDL_KEYDOWN || (event.key.keysym.mod & commandKeys) != 0) {
        return std::nullopt;
    }
    const Key key = keyOf(event.key.keysym);
    if (key < Key::keypad0 || key > Key::keypad9) {
        return std::nullopt;
    }
    const int digit = static_cast<int>(key) - static_cast<int>(Key::keypad0);
    return TextEvent{std::string(1, static_cast<char>('0' + digit))};
}

} // namespace ventrel
