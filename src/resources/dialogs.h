// The dialogs: their controls by number, text and place. Places are dialog units.

#pragma once

#include <array>

#include "base/level_names.h"
#include "platform/widgets/templates.h"
#include "resources/joined.h"

namespace ventrel {

// The levels, which two dialogs show -----------------------------------------------------------------------

namespace level_choice {

inline constexpr int firstSkill = 1000; ///< Easy; the other levels follow
inline constexpr int skillCount = static_cast<int>(levelNames.size());

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::groupBox, 0, "Skill", {7, 4, 85, 97}},
    {ControlKind::radioButton, firstSkill, levelNames[0], {15, 19, 77, 29}, groupStart},
    {ControlKind::radioButton, firstSkill + 1, levelNames[1], {15, 34, 77, 44}},
    {ControlKind::radioButton, firstSkill + 2, levelNames[2], {15, 49, 77, 59}},
    {ControlKind::radioButton, firstSkill + 3, levelNames[3], {15, 64, 77, 74}},
    {ControlKind::radioButton, firstSkill + 4, customLevelChoice, {15, 79, 77, 89}},
})};

} // namespace level_choice

// New Game --------------------------------------------------------------------------------------------------

namespace new_game {

inline constexpr int firstSkill = level_choice::firstSkill;
inline constexpr int skillCount = level_choice::skillCount;
inline constexpr int choose = 1005;
inline constexpr int airport = 1006;
inline constexpr int name = 1010;
inline constexpr int clouds = 1017;
inline constexpr int directEntry = 1018;

/// One more character than are kept of a name.
inline constexpr std::size_t nameLimit = 31;

inline constexpr auto controls =
    joined(level_choice::controls,
           std::to_array<ControlTemplate>({
               {ControlKind::groupBox, 0, "Controller", {91, 4, 195, 42}},
               {ControlKind::staticText, 0, "Name:", {98, 21, 120, 29}},
               {ControlKind::edit, name, "", {121, 18, 188, 31}, plainStyle, nameLimit},
               {ControlKind::groupBox, 0, "Airport", {91, 46, 195, 97}},
               {ControlKind::staticText, airport, "None Selected", {98, 59, 188, 71}, sunkenStatic},
               {ControlKind::pushButton, choose, "&Choose...", {118, 76, 168, 90}},
               {ControlKind::groupBox, 0, "Bonus Points", {7, 101, 195, 146}},
               {ControlKind::checkBox, clouds, "Random Cloud Cover    +300 pts", {15, 114, 187, 124}},
               {ControlKind::checkBox, directEntry, "Direct Course on Entry:  -100 pts", {15, 129, 187, 139}},
               {ControlKind::defaultButton, okId, "OK", {46, 152, 96, 166}},
               {ControlKind::pushButton, cancelId, "Cancel", {106, 152, 156, 166}},
           }));

inline constexpr DialogTemplate shape{.title = "New Game", .size = {202, 172}, .controls = controls};

inline constexpr std::string_view halfSpeedTitle = "New Game (Practice at Half Speed)";

} // namespace new_game

// Watch a Shift ---------------------------------------------------------------------------------------------

namespace watch_shift {

inline constexpr int firstSkill = new_game::firstSkill;
inline constexpr int skillCount = new_game::skillCount;
inline constexpr int choose = new_game::choose;
inline constexpr int airport = new_game::airport;
inline constexpr int firstPace = 1020; ///< half; the other paces follow

inline constexpr auto controls = joined(
    level_choice::controls,
    std::to_array<ControlTemplate>({
        {ControlKind::groupBox, 0, "Speed", {91, 4, 195, 97}},
        {ControlKind::radioButton, firstPace, "Half", {99, 19, 139, 29}, groupStart},
        {ControlKind::radioButton, firstPace + 1, "Normal", {99, 34, 139, 44}},
        {ControlKind::radioButton, firstPace + 2, "2 times", {99, 49, 139, 59}},
        {ControlKind::radioButton, firstPace + 3, "4 times", {99, 64, 139, 74}},
        {ControlKind::radioButton, firstPace + 4, "8 times", {145, 19, 190, 29}},
        {ControlKind::radioButton, firstPace + 5, "16 times", {145, 34, 190, 44}},
        {ControlKind::radioButton, firstPace + 6, "Fastest", {145, 49, 190, 59}},
        {ControlKind::groupBox, 0, "Airport", {7, 101, 195, 127}},
        {ControlKind::staticText, airport, "None Selected", {14, 111, 131, 122}, sunkenStatic},
        {ControlKind::pushButton, choose, "&Choose...", {138, 109, 188, 123}},
        {ControlKind::staticText,
         0,
         "The program plays as you would, by the same panel. You can change the speed, and take over at any "
         "moment. The shift enters no high scores.",
         {7, 133, 195, 160},
         multiLine},
        {ControlKind::defaultButton, okId, "&Watch", {46, 164, 96, 178}},
        {ControlKind::pushButton, cancelId, "Cancel", {106, 164, 156, 178}},
    }));

inline constexpr DialogTemplate shape{.title = "Watch a Shift", .size = {202, 184}, .controls = controls};

} // namespace watch_shift

// Custom Skill ----------------------------------------------------------------------------------------------

namespace custom_skill {

inline constexpr int calculate = 1014;
inline constexpr int planes = 1015;
inline constexpr int minutes = 1016;
inline constexpr int bonus = 1017;

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::staticText, 0, "Total Number of Planes:", {7, 10, 99, 18}},
    {ControlKind::edit, planes, "", {102, 7, 142, 20}},
    {ControlKind::staticText, 0, "Shift Length (in minutes):", {7, 28, 99, 36}},
    {ControlKind::edit, minutes, "", {102, 25, 142, 38}},
    {ControlKind::staticText, 0, "Bonus Points:", {7, 46, 99, 54}},
    {ControlKind::pushButton, calculate, "Calculate", {148, 42, 198, 56}},
    {ControlKind::edit, bonus, "", {102, 43, 142, 56}, readOnlyEdit},
    {ControlKind::defaultButton, okId, "OK", {48, 66, 98, 80}},
    {ControlKind::pushButton, cancelId, "Cancel", {107, 66, 157, 80}},
})};

inline constexpr DialogTemplate shape{
    .title = "Custom Skill Level Setup", .size = {205, 87}, .controls = controls};

} // namespace custom_skill

// Choose Airport --------------------------------------------------------------------------------------------

namespace choose_airport {

inline constexpr int list = 1007;

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::listBox, list, "", {7, 7, 140, 103}},
    {ControlKind::defaultButton, okId, "OK", {19, 110, 69, 124}},
    {ControlKind::pushButton, cancelId, "Cancel", {78, 110, 128, 124}},
})};

inline constexpr DialogTemplate shape{.title = "Choose Airport", .size = {147, 130}, .controls = controls};

} // namespace choose_airport

// Replays ---------------------------------------------------------------------------------------------------

namespace replay_list {

inline constexpr int list = 1007;
inline constexpr int keep = 1030;
inline constexpr int remove = 1031;

/// The columns of the list begin at multiples of it: date, airspace, level, score, outcome, its name
/// or kind.
inline constexpr int tabStop = 8;
inline constexpr std::array columnStops{0, 9, 18, 24, 32, 38};
inline constexpr int pastLastStop = 49;
/// Where the list's text begins; the heads of its columns stand over their stops.
inline constexpr int textLeft = 10;
constexpr Rect headAt(std::size_t column) {
    const bool isLast = column + 1 == columnStops.size();
    const int next = isLast ? pastLastStop : columnStops.at(column + 1);
    return {textLeft + columnStops.at(column) * tabStop, 6, textLeft + next * tabStop, 14};
}

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::staticText, 0, "DATE", headAt(0)},
    {ControlKind::staticText, 0, "AIRSPACE", headAt(1)},
    {ControlKind::staticText, 0, "LEVEL", headAt(2)},
    {ControlKind::staticText, 0, "SCORE", headAt(3)},
    {ControlKind::staticText, 0, "OUTCOME", headAt(4)},
    {ControlKind::staticText, 0, "NAME OR KIND", headAt(5)},
    {ControlKind::listBox, list, "", {7, 16, 413, 132}},
    {ControlKind::defaultButton, okId, "&Watch", {97, 139, 147, 153}},
    {ControlKind::pushButton, keep, "&Keep As...", {157, 139, 207, 153}},
    {ControlKind::pushButton, remove, "&Delete", {217, 139, 267, 153}},
    {ControlKind::pushButton, cancelId, "Close", {277, 139, 327, 153}},
})};

inline constexpr DialogTemplate shape{.title = "Replays", .size = {420, 159}, .controls = controls};

} // namespace replay_list

namespace keep_replay {

inline constexpr int name = 1010;
inline constexpr std::size_t nameLimit = 40;

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::staticText, 0, "Name:", {7, 10, 29, 18}},
    {ControlKind::edit, name, "", {32, 7, 160, 20}, plainStyle, nameLimit},
    {ControlKind::defaultButton, okId, "OK", {29, 28, 79, 42}},
    {ControlKind::pushButton, cancelId, "Cancel", {88, 28, 138, 42}},
})};

inline constexpr DialogTemplate shape{.title = "Keep Replay As", .size = {167, 49}, .controls = controls};

} // namespace keep_replay

namespace shift_of_day {

inline constexpr int date = 1010;
inline constexpr int airspace = 1011;
inline constexpr int level = 1012;
inline constexpr int best = 1013;

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::groupBox, 0, "Today", {7, 4, 167, 64}},
    {ControlKind::staticText, 0, "Date (UTC):", {15, 17, 70, 25}},
    {ControlKind::staticText, 0, "Airspace:", {15, 28, 70, 36}},
    {ControlKind::staticText, 0, "Level:", {15, 39, 70, 47}},
    {ControlKind::staticText, 0, "Your best today:", {15, 50, 70, 58}},
    {ControlKind::staticText, date, "", {75, 17, 160, 25}},
    {ControlKind::staticText, airspace, "", {75, 28, 160, 36}},
    {ControlKind::staticText, level, "", {75, 39, 160, 47}},
    {ControlKind::staticText, best, "", {75, 50, 160, 58}},
    {ControlKind::staticText, 0, "Everybody plays the same traffic on this date.", {7, 70, 167, 78}},
    {ControlKind::defaultButton, okId, "&Play", {32, 85, 82, 99}},
    {ControlKind::pushButton, cancelId, "Cancel", {92, 85, 142, 99}},
})};

inline constexpr DialogTemplate shape{.title = "Shift of the Day", .size = {174, 106}, .controls = controls};

inline constexpr std::string_view halfSpeedTitle = "Shift of the Day (Practice at Half Speed)";

} // namespace shift_of_day

namespace day_result {

inline constexpr int line = 1010;
inline constexpr int copy = 1011;

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::staticText, line, "", {7, 8, 227, 26}, multiLine},
    {ControlKind::staticText, 0, "File > Replays... has the replay that proves it.", {7, 30, 227, 38}},
    {ControlKind::pushButton, copy, "&Copy", {62, 45, 112, 59}},
    {ControlKind::defaultButton, okId, "OK", {122, 45, 172, 59}},
})};

inline constexpr DialogTemplate shape{.title = "Shift of the Day", .size = {234, 66}, .controls = controls};

} // namespace day_result

namespace jump_to {

inline constexpr int clock = 1010;
inline constexpr int end = 1011;
inline constexpr std::size_t clockLimit = 9;

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::staticText, 0, "Time of the clock:", {7, 10, 72, 18}},
    {ControlKind::edit, clock, "", {75, 7, 125, 20}, plainStyle, clockLimit},
    {ControlKind::staticText, end, "", {7, 25, 125, 33}},
    {ControlKind::defaultButton, okId, "&Jump", {11, 39, 61, 53}},
    {ControlKind::pushButton, cancelId, "Cancel", {70, 39, 120, 53}},
})};

inline constexpr DialogTemplate shape{.title = "Jump", .size = {132, 60}, .controls = controls};

} // namespace jump_to

// Schedule --------------------------------------------------------------------------------------------------

namespace schedule {

inline constexpr int list = 1007;
inline constexpr int possibleScore = 1009;
inline constexpr int currentScore = 1010;
inline constexpr int shiftLength = 1012;
inline constexpr int landings = 1013;
inline constexpr int takeoffs = 1014;
inline constexpr int passThroughs = 1015;
inline constexpr int report = 1016; ///< shown of a shift that is over

/// Between two columns of the list. The callsign takes two.
inline constexpr int tabStop = 32;
/// Where the list's text begins; the heads of its columns stand over their stops.
inline constexpr int textLeft = 10;
constexpr Rect headAt(int stop, int width) {
    return {textLeft + stop * tabStop, 6, textLeft + stop * tabStop + width, 14};
}

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::staticText, 0, "TIME", headAt(0, 30)},
    {ControlKind::staticText, 0, "AIRCRAFT", headAt(1, 50)},
    {ControlKind::staticText, 0, "ENTRY", headAt(3, 30)},
    {ControlKind::staticText, 0, "EXIT", headAt(4, 30)},
    {ControlKind::staticText, 0, "DESCRIPTION", headAt(5, 70)},
    {ControlKind::listBox, list, "", {7, 16, 264, 122}, sortedList},
    {ControlKind::groupBox, 0, "Planes", {7, 126, 111, 171}},
    {ControlKind::staticText, 0, "Landings:", {15, 137, 65, 145}},
    {ControlKind::staticText, 0, "Takeoffs:", {15, 147, 65, 155}},
    {ControlKind::staticText, 0, "Pass Thru's:", {15, 157, 65, 165}},
    {ControlKind::staticText, landings, "", {72, 137, 103, 145}, rightAligned},
    {ControlKind::staticText, takeoffs, "", {72, 147, 103, 155}, rightAligned},
    {ControlKind::staticText, passThroughs, "", {72, 157, 103, 165}, rightAligned},
    {ControlKind::groupBox, 0, "Score", {117, 126, 264, 171}},
    {ControlKind::staticText, 0, "Current Score:", {125, 137, 195, 145}},
    {ControlKind::staticText, 0, "Possible Score:", {125, 147, 195, 155}},
    {ControlKind::staticText, 0, "Shift Length:", {125, 157, 195, 165}},
    {ControlKind::staticText, currentScore, "", {205, 137, 256, 145}, rightAligned},
    {ControlKind::staticText, possibleScore, "", {205, 147, 256, 155}, rightAligned},
    {ControlKind::staticText, shiftLength, "", {205, 157, 256, 165}, rightAligned},
    {ControlKind::defaultButton, okId, "OK", {110, 177, 160, 191}},
    {ControlKind::pushButton, report, "&Report...", {214, 177, 264, 191}},
})};

inline constexpr DialogTemplate shape{.title = "Schedule", .size = {271, 197}, .controls = controls};

} // namespace schedule

// Shift Log -------------------------------------------------------------------------------------------------

namespace shift_log {

inline constexpr int all = 1100;
inline constexpr int flight = 1101;
inline constexpr int points = 1102;
inline constexpr int calls = 1103;
inline constexpr int orders = 1104;
inline constexpr int copy = 1105;
inline constexpr int report = 1106;

/// Where the lines begin, in dialog units; they fill the rest.
inline constexpr int viewTop = 19;
/// Pixels of the inside in either size of the main window.
inline constexpr Size smallInside{396, 136};
inline constexpr Size largeInside{520, 190};

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::radioButton, all, "All", {4, 4, 28, 14}, groupStart},
    {ControlKind::radioButton, flight, "Flight", {31, 4, 63, 14}},
    {ControlKind::radioButton, points, "Points", {67, 4, 102, 14}},
    {ControlKind::radioButton, calls, "Calls", {105, 4, 135, 14}},
    {ControlKind::radioButton, orders, "Orders", {138, 4, 176, 14}},
    {ControlKind::pushButton, copy, "Copy", {180, 2, 212, 16}},
    {ControlKind::pushButton, report, "Report...", {214, 2, 260, 16}},
})};

/// A window beside the game, of a size of its own.
inline constexpr DialogTemplate shape{
    .title = "Shift Log", .size = {264, 84}, .controls = controls, .activates = false};

} // namespace shift_log

// Shift Report ----------------------------------------------------------------------------------------------

namespace shift_report {

inline constexpr int save = 1100;

/// The page stands above the buttons.
inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::pushButton, save, "&Save Picture", {5, 333, 77, 347}},
    {ControlKind::defaultButton, okId, "OK", {473, 333, 523, 347}},
})};

inline constexpr DialogTemplate shape{.title = "Shift Report", .size = {528, 351}, .controls = controls};

} // namespace shift_report

// About -----------------------------------------------------------------------------------------------------

namespace about {

inline constexpr int version = 1016;

inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::defaultButton, okId, "OK", {134, 210, 184, 224}},
    {ControlKind::staticText, version, "Version", {256, 222, 312, 230}, rightAligned},
})};

inline constexpr DialogTemplate shape{
    .title = "", .size = {319, 238}, .controls = controls, .hasCloseBox = false};

} // namespace about

// High scores -----------------------------------------------------------------------------------------------

namespace high_scores {

inline constexpr int deleteAll = 104;

/// Their places follow from the picture.
inline constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::pushButton, deleteAll, "Delete Scores", {}},
    {ControlKind::pushButton, okId, "OK", {}},
})};

inline constexpr DialogTemplate shape{
    .title = "", .size = {}, .controls = controls, .hasCloseBox = false, .hasFrame = false};

} // namespace high_scores

} // namespace ventrel
