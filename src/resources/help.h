// The Help dialog: a list of topics, and a page for each. Places are dialog units.
//
// The points are not here: the dialog asks the rules for them.

#pragma once

#include <array>

#include "platform/devices/input.h"
#include "platform/widgets/templates.h"
#include "resources/joined.h"

namespace ventrel::help {

// Keys ----------------------------------------------------------------------------

/// A key that goes by its place, and its name in the United States, for where no letter of ours is on it.
struct PlacedKey {
    Key place = Key::unknown;
    std::string_view american;
};
inline constexpr std::size_t mostPlaces = 8;

/// A line of the page of keys.
struct KeyRow {
    std::string_view keys;
    std::string_view withoutKeypad; ///< what does the same, where every keyboard names it alike
    std::string_view meaning;
    /// What does the same by its place, whatever is written there; ends at the first unknown key.
    std::array<PlacedKey, mostPlaces> places = {};
};

inline constexpr std::array keyRows{std::to_array<KeyRow>({
    {"Enter", "", "EXEC: send the order"},
    {"Keypad 8 9 6 3 2 1 4 7",
     "",
     "heading 0, 45, 90 to 315",
     {{{Key::i, "I"},
       {Key::o, "O"},
       {Key::l, "L"},
       {Key::period, "."},
       {Key::comma, ","},
       {Key::m, "M"},
       {Key::j, "J"},
       {Key::u, "U"}}}},
    {"Keypad 5", "", "direct course on or off", {{{Key::k, "K"}}}},
    {"Keypad / and *",
     "",
     "target before, target after",
     {{{Key::leftBracket, "["}, {Key::rightBracket, "]"}}}},
    {"Keypad - and +", "PgUp  PgDn", "1,000 ft up, 1,000 ft down"},
    {"F, N, S", "", "speed fast, normal, slow"},
    {"Up, Down", "", "select the strip above or below"},
    {"Tab, Shift+Tab", "", "select the next or previous flight"},
    {"Space, Shift+Space", "", "on to the next 15 seconds, or event"},
    {"Pause", "", "pause and go on", {{{Key::p, "P"}}}},
    {"Esc", "", "boss key: hide the window"},
    {"Ctrl+S, Ctrl+L", "", "schedule, log of the shift"},
    {"Alt+F, Alt+O, Alt+H", "", "menus File, Options, Help"},
    {"F5 F6, F7 F8", "", "music down, up; the rest down, up"},
    {"F11, Alt+Enter", "", "full screen or a window"},
    {"Alt+F4", "", "exit"},
})};

// Pages ---------------------------------------------------------------------------

inline constexpr std::string_view deskText =
    "Click an aircraft on the scope, or the button beside its strip, to select it. The panel at the lower "
    "right then holds its order: heading on the dial, altitude on the scale, speed, or DIRECT to a fix, an "
    "airport or, when the arrows have stepped past the last name, a hold. Nothing is sent before you press "
    "EXEC. Orders are taken while the game is paused, too.\n"
    "\n"
    "A right click on an aircraft offers single orders that are sent at once.\n"
    "\n"
    "The clock runs two and a half times as fast as yours. A click on it skips to its next 15 seconds. A "
    "fast aircraft then moves one cell; a normal one moves every 30 seconds, a slow one every 60. A heavy "
    "one keeps its speed: the lamps of the others are dark red.\n"
    "\n"
    "The wheel and the arrows scroll the strips. Those in view are always sorted anew, the latest flight on "
    "top, so a strip may change its place. Grey strips are announced and cannot be selected yet.";

inline constexpr std::string_view arrivalText =
    "Flights to an airport (*) land when they come over it on the heading of its runway, at 1,000 ft. They "
    "must come in through the cone on the map. Some runways turn round by chance: look at the cones when a "
    "shift begins.\n"
    "\n"
    "A DIRECT course leads to the airport, but not onto its runway: the flight lands only when the last leg "
    "happens to have the runway's heading. Bring it into the cone first, or fly the last leg by headings.\n"
    "\n"
    "All other flights leave over their exit, at 10,000 ft.\n"
    "\n"
    "An aircraft climbs or sinks by 1,000 ft and turns by 45 degrees with every move, no faster. From 6,000 "
    "ft to the runway takes five cells.\n"
    "\n"
    "A flight that comes wrong over its airport or exit costs points but stays with you: bring it round "
    "again. One that leaves the scope anywhere else is lost.";

inline constexpr std::string_view departureText =
    "A departure waits on the ground, unseen on the scope, until you select it by its strip and press EXEC. "
    "Its strip says so: Request Takeoff, then Takeoff in progress.\n"
    "\n"
    "Once in the air it turns and climbs by itself, on a course for its exit. The panel does not follow: it "
    "still holds what it showed on the ground. Press the button beside the strip once more before you give "
    "this flight another order.\n"
    "\n"
    "A departure that is kept waiting for ten minutes costs points, and again every five minutes.";

inline constexpr std::string_view separationText =
    "Aircraft at the same altitude must not come into neighbouring cells. Those are the eight cells around "
    "one, sideways and diagonally; Options > Display Options > Grid shows the corners of the cells. In "
    "neighbouring cells it is a near miss. In the same cell they collide, and the game is over. With 1,000 "
    "ft between them all is well.\n"
    "\n"
    "A ring around an aircraft tells what has just happened to it, and so does the lamp at the top:\n"
    "\n"
    "Green: it has left or landed as it should.\n"
    "Yellow: it was over its airport or exit the wrong way, or a flight was lost.\n"
    "Red: a near miss. Turn one away, or let it climb, before its next move.\n"
    "\n"
    "Clouds hide what flies under them. The strips still tell where it goes.";

inline constexpr std::string_view learningText =
    "Lessons (Help): six short ones, in a real shift whose points do not count. F2 presses the button on the "
    "note.\n"
    "\n"
    "Aids (Options): more than the scope and the panel show by themselves, such as ways ahead, coming near "
    "misses, tidy or larger tags, unsent settings, clear colours, captions. Each is off until you choose "
    "it.\n"
    "\n"
    "Watch a Shift (Help): the program plays on your desk until you take over.\n"
    "\n"
    "Practice at Half Speed (File): twice the time. Shift+Space goes on to the next event. Lessons, practice "
    "and what you have taken over enter no high scores.\n"
    "\n"
    "Log (Ctrl+L): what happened when, to whom, and what it cost. Its Report adds up the shift, also when it "
    "is over.\n"
    "\n"
    "Replays (File): your last twenty shifts, at any speed. Jump to a time, or take over there and play on. "
    "The Shift of the Day is the same for everybody.";

// The dialog ----------------------------------------------------------------------

inline constexpr int topicList = 1007;
inline constexpr std::array<std::string_view, 7> topics{
    "Keys",          "Your desk", "Arrivals and exits", "Departures",
    "Keeping apart", "Points",    "Learn and look back"};

/// The controls of a topic's page; all of a page are shown together.
constexpr int pageControl(std::size_t topic, std::size_t number) {
    constexpr std::size_t first = 1100;
    constexpr std::size_t most = 100;
    return static_cast<int>(first + most * topic + number);
}

inline constexpr Rect pageFrame{107, 4, 383, 190};
inline constexpr Rect pageText{115, 17, 375, 185};

/// A row of a page's table, which leaves room between its lines.
constexpr Rect rowOf(std::size_t row, int left, int right) {
    constexpr int pitch = 10;
    constexpr int height = 8;
    const int top = pageText.top + pitch * static_cast<int>(row);
    return {left, top, right, top + height};
}

inline constexpr std::size_t keysTopic = 0;
inline constexpr std::size_t pointsTopic = 5;
inline constexpr std::size_t pointRows = 10;

/// The label of a row's keys without a keypad; one stands before it, and one behind.
constexpr int placesControl(std::size_t row) {
    return pageControl(keysTopic, 2 + 3 * row);
}

/// The labels of a row of the table of points.
constexpr int eventControl(std::size_t row) {
    return pageControl(pointsTopic, 1 + 2 * row);
}
constexpr int pointsControl(std::size_t row) {
    return eventControl(row) + 1;
}

constexpr ControlTemplate frameOf(std::size_t topic) {
    return {ControlKind::groupBox, pageControl(topic, 0), topics[topic], pageFrame};
}
constexpr ControlTemplate textOf(std::size_t topic, std::string_view text) {
    return {ControlKind::staticText, pageControl(topic, 1), text, pageText, multiLine};
}

inline constexpr std::array pages{std::to_array<ControlTemplate>({
    frameOf(0),
    frameOf(1),
    textOf(1, deskText),
    frameOf(2),
    textOf(2, arrivalText),
    frameOf(3),
    textOf(3, departureText),
    frameOf(4),
    textOf(4, separationText),
    frameOf(5),
    frameOf(6),
    textOf(6, learningText),
})};

constexpr auto keyTable() {
    std::array<ControlTemplate, 3 * keyRows.size()> labels{};
    for (std::size_t row = 0; row < keyRows.size(); ++row) {
        ControlTemplate* label = &labels[3 * row];
        const int id = placesControl(row) - 1;
        label[0] = {ControlKind::staticText, id, keyRows[row].keys, rowOf(row, 115, 198)};
        label[1] = {ControlKind::staticText, placesControl(row), keyRows[row].withoutKeypad,
                    rowOf(row, 200, 262)};
        label[2] = {ControlKind::staticText, id + 2, keyRows[row].meaning, rowOf(row, 264, 381)};
    }
    return labels;
}

constexpr auto pointTable() {
    std::array<ControlTemplate, 2 * pointRows> labels{};
    for (std::size_t row = 0; row < pointRows; ++row) {
        labels[2 * row] = {ControlKind::staticText, eventControl(row), "", rowOf(row, 115, 330)};
        labels[2 * row + 1] = {ControlKind::staticText, pointsControl(row), "", rowOf(row, 330, 375),
                               rightAligned};
    }
    return labels;
}

inline constexpr std::array alwaysShown{std::to_array<ControlTemplate>({
    {ControlKind::listBox, topicList, "", {7, 7, 99, 190}},
    {ControlKind::defaultButton, okId, "OK", {170, 197, 220, 211}},
})};

inline constexpr auto controls = joined(alwaysShown, pages, keyTable(), pointTable());

inline constexpr DialogTemplate shape{.title = "Ventrel Help", .size = {390, 218}, .controls = controls};

} // namespace ventrel::help
