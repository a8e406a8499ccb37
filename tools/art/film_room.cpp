#include "tools/art/film_room.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

#include "tools/art/airliner.h"
#include "tools/art/chance.h"
#include "tools/art/easing.h"
#include "tools/art/film.h"
#include "tools/art/film_flight.h"
#include "tools/art/film_people.h"

namespace ventrel::art {

namespace {

constexpr double roomWidth = filmSize.width;
constexpr double roomHeight = filmSize.height;
constexpr double headerBottom = 24;
constexpr double sill = 164;

constexpr double cheer = 5.36; // the fanfare's last chord
constexpr double throwing = 5.62;
constexpr double highFive = 7.5;

void drawHeader(Svg& svg) {
    svg.rect({0, 0, roomWidth, headerBottom}, 0, "fill=\"url(#ceiling)\"");
    svg.rect({0, headerBottom - 1, roomWidth, 1}, 0, "fill=\"#c08a5a\" opacity=\".45\"");
    for (const double x : {54.0, 160.0, 266.0}) {
        svg.ellipse({x - 15, 5, 30, 6}, "fill=\"#ffe7bd\" opacity=\".8\"");
        svg.ellipse({x - 34, -3, 68, 24}, "fill=\"url(#downlight)\"");
    }
}

/// The glass leans outwards, as in all towers: its posts spread upwards.
void drawPosts(Svg& svg) {
    for (const double foot : {108.0, 212.0}) {
        const double head = foot + (foot - roomWidth / 2) * 0.14;
        const auto post = [&](double from, double to) {
            return 'M' + number(head + from) + ',' + number(headerBottom) + " L" + number(foot + from) + ',' +
                   number(sill) + " H" + number(foot + to) + " L" + number(head + to) + ',' +
                   number(headerBottom) + " z";
        };
        svg.path(post(-3.5, 3.5), "fill=\"#161a1e\"");
        svg.path(post(-3.5, -2.2), "fill=\"#e7a468\" opacity=\".7\"");
        svg.path(post(2.6, 3.5), "fill=\"#000\" opacity=\".5\"");
    }
    // Light of the room in the glass.
    for (const double x : {20.0, 128.0, 236.0}) {
        svg.path('M' + number(x) + ',' + number(headerBottom) + " h26 l-34," + number(sill - headerBottom) +
                     " h-14 z",
                 "fill=\"#cfe6ff\" opacity=\".045\"");
    }
}

void drawScreen(Svg& svg, double middle, double moment) {
    constexpr double top = sill - 15;
    const Box hood(middle - 31, top - 5, 62, 40);
    svg.rect(hood, 5, "fill=\"#1b2024\"");
    svg.rect({hood.x, hood.y, hood.width, 1.2}, 0, "fill=\"#d79a66\" opacity=\".55\"");
    svg.ellipse({middle - 25, top, 50, 32}, "fill=\"url(#screenGlow)\"");
    const double angle = moment * 2.4 + middle;
    svg.line({middle, top + 16}, {middle + 24 * std::sin(angle), top + 16 - 15 * std::cos(angle)},
             "stroke=\"#b4ffd2\" stroke-width=\"1.2\" opacity=\".8\"");
    svg.ellipse({middle - 13, top + 8, 26, 16}, "fill=\"none\" stroke=\"#8ff0b8\" opacity=\".35\"");
    svg.ellipse({middle - 46, top - 22, 92, 76}, "fill=\"url(#screenHalo)\"");
}

constexpr std::array<double, 3> seats{62, 160, 258};

void drawRoomDesk(Svg& svg, double moment) {
    svg.rect({0, sill, roomWidth, roomHeight - sill}, 0, "fill=\"url(#desk)\"");
    svg.rect({0, sill, roomWidth, 1.4}, 0, "fill=\"url(#sillLight)\"");
    for (const double seat : seats) {
        drawScreen(svg, seat, moment);
    }
    const double blink = std::fmod(moment, 0.5) < 0.25 ? 1 : 0.55;
    for (const double x : {109.0, 211.0}) {
        svg.circle({x - 7, sill + 11}, 6, "fill=\"url(#glowGreen)\" opacity=\"" + number(blink) + '"');
        svg.circle({x, sill + 11}, 2, "fill=\"#5a4408\"");
        svg.circle({x + 7, sill + 11}, 2, "fill=\"#581410\"");
    }
}

constexpr std::array<PersonLook, 3> people{{
    {"#c9b8a6", "#a08f80", "#c98f6c", "#4a2c1c", Hair::ponyTail},
    {"#7fa0a8", "#5f7f88", "#a8714e", "#17130f", Hair::shortCut},
    {"#d9d6cc", "#a9a9a6", "#d8a688", "#8d8d90", Hair::wreath},
}};

/// What a person does with both hands from a moment on, while clapping so far apart.
struct Gesture {
    double moment;
    Spot left;
    Spot right;
    double clap = 0;
};
constexpr Spot onDeskLeft{-13, 62};
constexpr Spot onDeskRight{13, 62};

constexpr std::array<Gesture, 6> womansGestures{{
    {cheer, onDeskLeft, onDeskRight, 0},
    {cheer + 0.38, {-34, -34}, {34, -34}, 0},
    {cheer + 0.75, {-30, -38}, {30, -38}, 0},
    {cheer + 1.05, {-3, -41}, {3, -41}, 15},
    {8.6, {-3, -41}, {3, -41}, 15},
    {9.3, {-3, -36}, {3, -36}, 11},
}};
constexpr std::array<Gesture, 9> mansGestures{{
    {cheer, onDeskLeft, onDeskRight, 0},
    {throwing - 0.12, {-12, 30}, {12, 30}, 0},
    {throwing + 0.1, {-20, -46}, {20, -46}, 0},
    {throwing + 0.7, {-30, -40}, {30, -40}, 0},
    {throwing + 1.1, {-3, -44}, {3, -44}, 17},
    {highFive - 0.45, {-3, -44}, {3, -44}, 17},
    {highFive, {-24, 30}, {37, -35}, 0},
    {highFive + 0.18, {-24, 30}, {36, -33}, 0},
    {highFive + 0.7, {-3, -44}, {3, -44}, 17},
}};
constexpr std::array<Gesture, 8> elderGestures{{
    {cheer + 0.08, onDeskLeft, onDeskRight, 0},
    {cheer + 0.55, {-28, 22}, {33, -36}, 0},
    {cheer + 0.85, {-28, 22}, {36, -22}, 0},
    {cheer + 1.15, {-28, 22}, {33, -36}, 0},
    {highFive - 0.4, {-4, -39}, {4, -39}, 14},
    {highFive, {-40, -43}, {26, 26}, 0},
    {highFive + 0.18, {-39, -41}, {26, 26}, 0},
    {highFive + 0.65, {-4, -39}, {4, -39}, 14},
}};

Spot spotBetween(Spot from, Spot to, double part) {
    return {between(from.x, to.x, part), between(from.y, to.y, part)};
}

Gesture gestureAt(std::span<const Gesture> gestures, double moment) {
    const auto next = std::ranges::find_if(gestures, [=](const Gesture& one) { return one.moment > moment; });
    if (next == gestures.begin()) {
        return gestures.front();
    }
    if (next == gestures.end()) {
        return gestures.back();
    }
    const Gesture& a = *std::prev(next);
    const Gesture& b = *next;
    const double part = eased(moment, a.moment, b.moment);
    return {moment, spotBetween(a.left, b.left, part), spotBetween(a.right, b.right, part),
            between(a.clap, b.clap, part)};
}

/// Up from the chair, a little too far, and down onto the feet.
double risen(double moment, double start) {
    constexpr double seated = 25;
    const double since = moment - start;
    if (since <= 0) {
        return seated;
    }
    return seated * std::exp(-since * 7) * std::cos(since * 9) - 1.5;
}

double hop(double moment, double at, double high) {
    const double part = progress(moment, at, at + 0.42);
    return -high * 4 * part * (1 - part);
}

Pose poseOf(const Gesture& gesture, Spot neck, double clapping) {
    const double apart = gesture.clap * std::abs(std::sin(clapping));
    return {.neck = neck,
            .leftHand = {gesture.left.x - apart, gesture.left.y},
            .rightHand = {gesture.right.x + apart, gesture.right.y}};
}

void drawPeople(Svg& svg, double moment) {
    constexpr double clapsASecond = 4;
    const double beat = moment * clapsASecond * std::numbers::pi;
    Pose woman =
        poseOf(gestureAt(womansGestures, moment),
               {seats[0], 134 + risen(moment, cheer) + hop(moment, 6.25, 7) + hop(moment, 6.75, 5)}, beat);
    woman.nod = 4 * std::sin(moment * 5.2) * progress(moment, cheer, 6);
    Pose man = poseOf(gestureAt(mansGestures, moment),
                      {seats[1], 128 + risen(moment, cheer - 0.03) + hop(moment, throwing, 11)}, beat + 0.9);
    const double turned =
        eased(moment, highFive - 0.4, highFive) - eased(moment, highFive + 0.2, highFive + 0.7);
    man.lean = 5 * turned;
    man.nod = 3 * std::sin(moment * 4.3) + 8 * turned;
    Pose elder =
        poseOf(gestureAt(elderGestures, moment), {seats[2], 136 + risen(moment, cheer + 0.12)}, beat + 1.9);
    elder.lean = -4 * turned;
    elder.nod = 2.5 * std::sin(moment * 3.7 + 1) - 8 * turned;
    drawPerson(svg, people[0], woman);
    drawPerson(svg, people[2], elder);
    drawPerson(svg, people[1], man);
    const double clash = 1 - std::abs(moment - highFive - 0.02) / 0.13;
    if (clash > 0) {
        svg.circle({208, 92}, 18 * clash, "fill=\"url(#glowWhite)\"");
    }
}

void drawChairs(Svg& svg) {
    for (const double seat : seats) {
        const Box back(seat - 24, 208, 48, 48);
        svg.rect(back, 9, "fill=\"#10161a\"");
        svg.rect(back.grownBy(-0.6), 8.4, "fill=\"none\" stroke=\"url(#chairEdge)\" stroke-width=\"1.2\"");
    }
}

/// The flight strips that are thrown into the air: paper, which rises quickly and sinks slowly.
void drawFlyingStrips(Svg& svg, double moment) {
    constexpr int strips = 22;
    constexpr double drag = 2.1; // a second
    RandomGenerator random{41};
    for (int i = 0; i < strips; ++i) {
        const double sinking = drawn(random, 22, 40);
        const double up = drawn(random, -225, -130);
        const double aside = (i * 7 % strips - (strips - 1) / 2.0) * 27 + drawn(random, -14, 14);
        const double hand = i % 2 == 0 ? -19 : 19;
        const double spin = drawn(random, 2.6, 6.2);
        const double phase = drawn(random, 0, 6.28);
        const double since = moment - throwing - drawn(random, 0, 0.12);
        if (since < 0) {
            continue;
        }
        const double slowed = (1 - std::exp(-drag * since)) / drag;
        const double x = seats[1] + hand + aside * slowed +
                         7 * std::sin(since * spin * 0.6 + phase) * progress(since, 0, 1);
        const double y = 80 + sinking * since + (up - sinking) * slowed;
        const double flat = std::cos(since * spin + phase);
        const double size = 0.85 + 0.25 * std::sin(phase);
        svg.open("transform=\"translate(" + number(x) + ' ' + number(y) + ") rotate(" +
                 number(40 * std::sin(since * spin * 0.5 + phase)) + ") scale(" + number(size) + ' ' +
                 number(size * (0.18 + 0.82 * std::abs(flat))) + ")\"");
        svg.rect({-11, -3.2, 22, 6.4}, 0.6, flat > 0 ? "fill=\"#f4ecd6\"" : "fill=\"#c3b9a4\"");
        svg.path("M-5,-3.2 V3.2 M5,-3.2 V3.2", "stroke=\"#7d9286\" stroke-width=\".7\"");
        svg.path("M-9.4,-.6 H-6.4 M-3,-1 H3 M-3,1.2 H1 M6.6,0 H9.6",
                 "stroke=\"#3d4a44\" stroke-width=\".9\"");
        svg.close();
    }
}

} // namespace

std::string roomMaterials() {
    return std::string(peopleMaterials()) +
           "<linearGradient id=\"ceiling\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"1\"><stop offset=\"0\" "
           "stop-color=\"#0d1013\"/><stop offset=\"1\" stop-color=\"#262b2f\"/></linearGradient>\n"
           "<radialGradient id=\"downlight\"><stop offset=\"0\" stop-color=\"#ffdca0\" "
           "stop-opacity=\".5\"/><stop offset=\"1\" stop-color=\"#ffc070\" "
           "stop-opacity=\"0\"/></radialGradient>\n"
           "<linearGradient id=\"desk\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"1\"><stop offset=\"0\" "
           "stop-color=\"#3c4449\"/><stop offset=\".2\" stop-color=\"#252b2f\"/><stop offset=\"1\" "
           "stop-color=\"#0c0f11\"/></linearGradient>\n"
           "<linearGradient id=\"sillLight\"><stop offset=\"0\" stop-color=\"#ffc890\"/><stop offset=\".6\" "
           "stop-color=\"#b89c88\"/><stop offset=\"1\" stop-color=\"#5a6468\"/></linearGradient>\n"
           "<radialGradient id=\"screenGlow\"><stop offset=\"0\" stop-color=\"#37a06a\"/><stop offset=\".7\" "
           "stop-color=\"#1c6040\"/><stop offset=\"1\" stop-color=\"#0a2418\"/></radialGradient>\n"
           "<radialGradient id=\"screenHalo\"><stop offset=\"0\" stop-color=\"#58ff9a\" "
           "stop-opacity=\".28\"/><stop offset=\"1\" stop-color=\"#58ff9a\" "
           "stop-opacity=\"0\"/></radialGradient>\n"
           "<linearGradient id=\"chairEdge\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"1\"><stop offset=\"0\" "
           "stop-color=\"#ffb877\"/><stop offset=\".4\" stop-color=\"#4a5358\"/><stop offset=\"1\" "
           "stop-color=\"#0a0d0e\"/></linearGradient>\n";
}

void drawRoom(Svg& svg, double moment) {
    constexpr Camera roomCamera{.at = {604, -300, 30}, .bearing = 356, .focal = 330, .middle = {160, 88}};
    const Attitude airliner = rollingAt(moment);
    const double closer = between(1, 1.09, eased(moment, 5.2, 10));
    svg.open("transform=\"translate(160 120) scale(" + fineNumber(closer) + ") translate(-160 -120)\"");
    drawFilmOutside(svg, roomCamera, moment);
    drawGroundShade(svg, roomCamera, airliner);
    drawAirliner(svg, roomCamera, airliner, evening);
    drawBeacons(svg, roomCamera, airliner, beaconsAt(moment), 0.4);
    drawPosts(svg);
    drawHeader(svg);
    drawRoomDesk(svg, moment);
    drawPeople(svg, moment);
    drawChairs(svg);
    drawFlyingStrips(svg, moment);
    svg.close();
}

} // namespace ventrel::art
