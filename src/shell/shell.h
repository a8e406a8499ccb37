// The running program: everything that lives between calls, owned in one place.
//
// The shell is created by start-up, driven by the desktop's loop through Tick, and told what the player wants
// by commands. Every sequence that touches several rooms stands in this folder, one function each.

#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <set>

#include "audio/game_sounds.h"
#include "base/random.h"
#include "base/string_table.h"
#include "console/console_layout.h"
#include "controls/captions.h"
#include "controls/control_panel.h"
#include "controls/scroller.h"
#include "controls/strips.h"
#include "controls/top_bar.h"
#include "options/options.h"
#include "platform/desktop/desktop.h"
#include "platform/widgets/button.h"
#include "platform/widgets/message_box.h"
#include "radar/radar_window.h"
#include "records/airport_catalogue.h"
#include "records/options_store.h"
#include "replay/replay_writer.h"
#include "shell/conflict_watch.h"
#include "shell/event_skip.h"
#include "shell/finished_shifts.h"
#include "shell/game_setup.h"
#include "shell/lesson_run.h"
#include "shell/log_window.h"
#include "shell/pictures.h"
#include "shell/replay_watching.h"
#include "shell/simulation_player.h"
#include "shell/steered_play.h"
#include "shell/steering_bar.h"
#include "sim/event_relay.h"
#include "sim/game.h"
#include "story/shift_log.h"

namespace ventrel {

inline constexpr std::string_view programTitle = "Ventrel";

/// What start-up has found out and opened before there is a window.
struct ShellParts {
    Desktop& desktop;
    GameSounds& sounds;
    FontSet& fonts;
    OptionsStore& store;
    std::filesystem::path programFolder;
    std::filesystem::path playerFolder;
    std::filesystem::path playersAirports; ///< the folder of the player's own airport files
    Pictures pictures;
    Options options;
    RandomGenerator random;
    UtcClock utcNow = systemUtcNow;
};

struct Shell {
    explicit Shell(ShellParts parts);
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;
    ~Shell() = default;

    Desktop& desktop;
    GameSounds& sounds;
    FontSet& fonts;
    const WidgetFonts widgetFonts; ///< of menus, dialogs and message boxes
    OptionsStore& store;
    const std::filesystem::path programFolder;
    /// Where the player's own files lie; the program folder itself for a portable copy, empty for nowhere.
    const std::filesystem::path playerFolder;
    const std::filesystem::path highScorePath; ///< of the table, in the player's folder if there is one
    const std::filesystem::path playersAirports;
    Pictures pictures;
    Options options;
    const UtcClock utcNow;

    /// Also while none is played: its generator is the only one, handed on from game to game.
    Game game;
    bool paused = false;                     ///< only means something while a game runs
    ShiftKind shiftKind = ShiftKind::scored; ///< of the game, or of the last one
    bool isHalfSpeedOn = false; ///< shifts that the player begins are practice, at half the clock's pace

    Window mainWindow;
    Button exec;
    AirportShelf airports;
    std::set<std::string> toldAirportTroubles; ///< of which damaged airport files the player knows
    int pressedStrip = noSlot;                 ///< the strip whose button is shown pressed

    TopBar topBar;
    Scroller scroller;
    Captions captions;
    Strips strips;
    ControlPanel panel;
    RadarWindow radar;
    SteeredPlay steered;
    ReplayWatch replayWatch;
    SteeringBar steeringBar;
    EventSkip eventSkip;
    SimulationPlayer player;
    ConflictWatch conflicts;
    ShiftLog log; ///< of the shift that is played, or of the last one
    LogWindow logWindow;
    ReplayWriter replayWriter; ///< keeps the shift that is played
    std::optional<UtcDate> day =
        {}; ///< of the game, where it is a Shift of the Day that has not been told of
    bool isReplayTroubleTold = false; ///< in this run, that no replays can be kept
    ShiftKeeping keeping;
    /// What the simulation speaks to: the log, which must know what the ticker has room for; the player; then
    /// whoever listens, too.
    EventRelay events;
    std::unique_ptr<LessonRun> lesson; ///< that is being taken

    Size windowSize() const { return pictures.console.size(); }
    /// Where everything stands in it.
    const ConsoleLayout& console() const { return consoleLayoutFor(windowSize().width); }
    int stripSlots() const { return console().strips.count; }
    /// A message box over the main window, which pauses a running game. Returns when it has been answered.
    MessageAnswer showMessage(std::string_view text, MessageIcon icon, MessageButtons buttons);
    /// The same with a question of the string table.
    MessageAnswer ask(TextId question, MessageButtons buttons);
    /// The same with nothing to choose.
    void report(std::string_view text, MessageIcon icon);
    /// The same with what an operation failed of; nothing for a failure without words.
    void report(const Failure& failure);
    /// The same for what was to be heard, once the sequence that it belongs to has ended: nobody waits for a
    /// box in the middle of a step.
    void tellLater(const Result<bool>& sound);
};

} // namespace ventrel
