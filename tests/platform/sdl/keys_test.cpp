// Which key of the program a key of the machine is.

#include <gtest/gtest.h>

#include "platform/sdl/sdl_input.h"
#include "platform/sdl/sdl_keys.h"

namespace ventrel {
namespace {

/// The key on which a layout writes that, at that place.
Key key(SDL_Scancode place, SDL_Keycode written) {
    return keyOf({place, written, KMOD_NONE, 0});
}

TEST(SdlKeys, GoByWhatIsWrittenOnThem) {
    EXPECT_EQ(key(SDL_SCANCODE_Q, SDLK_a), Key::a) << "French";
    EXPECT_EQ(key(SDL_SCANCODE_M, SDLK_COMMA), Key::comma);
    EXPECT_EQ(key(SDL_SCANCODE_L, SDLK_n), Key::n) << "Dvorak";
    EXPECT_EQ(key(SDL_SCANCODE_LEFTBRACKET, 0xFC), Key::leftBracket) << "a German letter";
    EXPECT_EQ(key(SDL_SCANCODE_F, 0x430), Key::f) << "a Cyrillic letter";
    EXPECT_EQ(key(SDL_SCANCODE_1, SDLK_AMPERSAND), Key::digit1) << "French digits want Shift";
    EXPECT_EQ(key(SDL_SCANCODE_KP_7, SDLK_HOME), Key::keypad7) << "without Num Lock";
    EXPECT_EQ(key(SDL_SCANCODE_RETURN, SDLK_a), Key::enter);
    EXPECT_EQ(key(SDL_SCANCODE_F11, SDLK_F11), Key::f11);
    EXPECT_EQ(key(SDL_SCANCODE_VOLUMEUP, SDLK_VOLUMEUP), Key::unknown);
}

TEST(SdlKeys, HaveAPlaceThatIsFoundAgain) {
    for (int each = static_cast<int>(Key::a); each <= static_cast<int>(Key::keypadPeriod); ++each) {
        const Key place = static_cast<Key>(each);
        EXPECT_EQ(placeOf(scancodeOf(place)), place) << each;
    }
    EXPECT_EQ(placeOf(SDL_SCANCODE_RIGHTBRACKET), Key::rightBracket);
    EXPECT_EQ(placeOf(SDL_SCANCODE_9), Key::digit9);
    EXPECT_EQ(placeOf(SDL_SCANCODE_0), Key::digit0);
    EXPECT_EQ(placeOf(SDL_SCANCODE_KP_9), Key::keypad9);
    EXPECT_EQ(placeOf(SDL_SCANCODE_KP_0), Key::keypad0);
}

TEST(SdlKeys, ModifiersAreToldApart) {
    EXPECT_EQ(modifiersOf(KMOD_LSHIFT), (Modifiers{true, false, false}));
    EXPECT_EQ(modifiersOf(KMOD_RCTRL), (Modifiers{false, true, false}));
    EXPECT_EQ(modifiersOf(KMOD_LALT), (Modifiers{false, false, true}));
}

TEST(SdlKeys, TheKeypadTypesDigitsAlsoWithoutNumLock) {
    SDL_Event event{};
    event.type = SDL_KEYDOWN;
    for (const auto& [code, digit] : {std::pair{SDL_SCANCODE_KP_0, "0"}, {SDL_SCANCODE_KP_7, "7"}}) {
        event.key.keysym = {code, SDLK_UNKNOWN, KMOD_NONE, 0};
        EXPECT_EQ(keypadText(event).value_or(TextEvent{}).text, digit);
    }
    event.key.keysym.mod = KMOD_NUM;
    EXPECT_FALSE(keypadText(event)) << "it types by itself then";
}

} // namespace
} // namespace ventrel
