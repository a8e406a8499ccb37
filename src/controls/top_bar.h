// The small instruments of the top bar as windows: the clock, the small scope and the three alert lamps.

#pragma once

#include <array>
#include <functional>
#include <vector>

#include "controls/scope_blips.h"
#include "platform/desktop/desktop.h"
#include "platform/text/font.h"
#include "sim/alert_lamps.h"
#include "sim/game_clock.h"

namespace ventrel {

inline constexpr int clockId = 504;
inline constexpr int smallScopeId = 512;
inline constexpr std::array<int, 3> lampIds{508, 509, 510}; ///< green, yellow, red

struct LampPictures {
    std::array<Bitmap, 3> dark; ///< green, yellow, red
    std::array<Bitmap, 3> bright;
};

struct TopBarSources {
    Desktop& desktop;
    Game& game;
    FontSet& fonts;
    const CursorImage& hand;
    const CursorImage& arrow;
};

struct TopBar {
    TopBarSources sources;
    std::function<void()> skip = nullptr; ///< the clock was pressed

    GameClock clock = {};
    LampBlink blink = {};

    Window clockWindow = {};
    Window scopeWindow = {};
    std::array<Window, 3> lampWindows = {};
    Bitmap scopeBackground = {};
    std::array<Bitmap, 3> lampBackgrounds = {};
    LampPictures lampPictures = {};
    std::vector<Blip> blips = {};
};

/// Makes the windows on the console whose picture is given. The record must stay where it is from then on.
void TopBarCreate(TopBar& bar, const Window& parent, const Bitmap& console, LampPictures lamps);

/// Moves the clock and the small scope's sweep. Returns when it wants its next call; none while no game runs.
std::optional<Millis> ClockTick(TopBar& bar);

/// Jumps to the clock's next multiple of 15, while a game runs.
void ClockSkip(TopBar& bar);

/// Back to 0, without dots.
void ClockReset(TopBar& bar);

/// Finds the small scope's dots anew.
void ScopeUpdateBlips(TopBar& bar);

/// Flashes the lit lamp. Returns when it wants its next call; none while no lamp is lit or no game runs.
std::optional<Millis> LampsTick(TopBar& bar);

/// All lamps off.
void LampsReset(TopBar& bar);

/// Marks the lamps to be painted after another one was lit, or none.
void LampsRepaint(TopBar& bar);

} // namespace ventrel
