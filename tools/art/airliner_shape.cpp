#include "tools/art/airliner_shape.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>
#include <span>

namespace ventrel::art {

namespace {

constexpr Tint white = tint(0xf1eee4);
constexpr Tint silver = tint(0x9aa5aa);
constexpr Tint wingGrey = tint(0xd0d6d9);
constexpr Tint petrol = tint(0x1f5a63);
constexpr Tint amberPaint = tint(0xf09a3e);
constexpr Tint black = tint(0x16191b);
constexpr Tint rubber = tint(0x202224);
constexpr Tint windowLight = tint(0xffd98c);
constexpr Tint cockpitGlass = tint(0x2a3a48);

/// A ring of the body: where, how wide, and where its middle lies.
struct Ring {
    double x;
    double radius;
    double y;
    double z;
};

constexpr std::array<Ring, 15> bodyRings{{
    {18.2, 0.05, 0, 3.85},
    {17.8, 0.62, 0, 3.92},
    {17.0, 1.12, 0, 4.03},
    {15.8, 1.56, 0, 4.20},
    {14.2, 1.86, 0, 4.33},
    {12.2, 1.98, 0, 4.4},
    {8.0, 2.0, 0, 4.4},
    {3.0, 2.0, 0, 4.4},
    {-2.0, 2.0, 0, 4.4},
    {-7.0, 2.0, 0, 4.4},
    {-10.0, 1.84, 0, 4.52},
    {-12.8, 1.46, 0, 4.82},
    {-15.4, 0.96, 0, 5.24},
    {-17.6, 0.5, 0, 5.62},
    {-18.6, 0.18, 0, 5.8},
}};

constexpr std::array<Ring, 6> engineRings{{
    {6.2, 1.06, 5.7, 2.05},
    {5.9, 1.20, 5.7, 2.05},
    {4.6, 1.24, 5.7, 2.05},
    {2.9, 1.12, 5.7, 2.08},
    {1.8, 0.84, 5.7, 2.12},
    {0.9, 0.42, 5.7, 2.16},
}};

/// 0 degrees is up, 90 the left.
Vec onRing(const Ring& ring, double degrees, double outward = 1) {
    const double angle = degrees * std::numbers::pi / 180;
    return {ring.x, ring.y + ring.radius * outward * std::sin(angle),
            ring.z + ring.radius * outward * std::cos(angle)};
}

using PaintAt = std::function<Tint(double x, double degrees)>;

/// A round body through all rings, which lead from the nose to the tail.
void addRound(std::vector<Face>& faces, std::span<const Ring> rings, int sides, const PaintAt& paintAt,
              double shine) {
    const double step = 360.0 / sides;
    for (std::size_t i = 0; i + 1 < rings.size(); ++i) {
        for (int side = 0; side < sides; ++side) {
            const double from = side * step;
            const double to = from + step;
            faces.push_back({.corners = {onRing(rings[i], from), onRing(rings[i], to),
                                         onRing(rings[i + 1], to), onRing(rings[i + 1], from)},
                             .paint = paintAt((rings[i].x + rings[i + 1].x) / 2, from + step / 2),
                             .shine = shine});
        }
    }
}

/// The round end of a body, seen from ahead or from behind.
void addDisc(std::vector<Face>& faces, const Ring& ring, const Tint& paint) {
    Face face{.corners = {}, .paint = paint, .twoSided = true};
    for (int degrees = 0; degrees < 360; degrees += 30) {
        face.corners.push_back(onRing(ring, degrees));
    }
    faces.push_back(std::move(face));
}

/// A cut through a wing, along the flight.
struct Chord {
    Vec front;
    Vec back;
    double thickness;
};

Chord chordBetween(const Chord& a, const Chord& b, double part) {
    return {a.front + (b.front - a.front) * part, a.back + (b.back - a.back) * part,
            a.thickness + (b.thickness - a.thickness) * part};
}

/// Its four corners: front, upper, back, lower. `up` is the direction of its thickness.
std::array<Vec, 4> outline(const Chord& chord, const Vec& up) {
    constexpr double thickest = 0.32; // from the front
    const Vec middle = chord.front + (chord.back - chord.front) * thickest;
    const Vec half = up * (chord.thickness / 2);
    return {chord.front, middle + half, chord.back, middle - half};
}

struct WingLook {
    Tint paint;
    Vec up;
    int pieces; ///< along the span: the smaller, the better they hide each other
};

void addWing(std::vector<Face>& faces, const Chord& root, const Chord& tip, const WingLook& look) {
    for (int i = 0; i < look.pieces; ++i) {
        const auto inner = outline(chordBetween(root, tip, double(i) / look.pieces), look.up);
        const auto outer = outline(chordBetween(root, tip, double(i + 1) / look.pieces), look.up);
        for (std::size_t k = 0; k < inner.size(); ++k) {
            const std::size_t next = (k + 1) % inner.size();
            faces.push_back({.corners = {inner[k], outer[k], outer[next], inner[next]},
                             .paint = look.paint,
                             .shine = 0.35});
        }
    }
    const auto end = outline(tip, look.up);
    faces.push_back(
        {.corners = {end.begin(), end.end()}, .paint = look.paint, .shine = 0.2, .twoSided = true});
}

void addWings(std::vector<Face>& faces) {
    constexpr Vec up{0, 0, 1};
    const Chord root{{5.2, 1.5, 3.1}, {-2.6, 1.5, 3.0}, 0.95};
    const Chord kink{{2.5, 6.4, 3.3}, {-2.8, 6.4, 3.2}, 0.62};
    const Chord tip{{-3.0, 17.0, 3.85}, {-4.7, 17.0, 3.8}, 0.2};
    addWing(faces, root, kink, {wingGrey, up, 4});
    addWing(faces, kink, tip, {wingGrey, up, 6});
    const Chord winglet{{-4.3, 17.5, 5.6}, {-5.2, 17.5, 5.6}, 0.1};
    addWing(faces, tip, winglet, {petrol, {0, 1, 0}, 1});
    // The flaps, down for landing.
    const auto flap = [&](const Vec& inner, const Vec& outer, double depth) {
        const Vec drop{-depth, 0, -depth * 0.62};
        faces.push_back({.corners = {inner, outer, outer + drop * 0.85, inner + drop},
                         .paint = wingGrey * 0.92,
                         .shine = 0.3,
                         .twoSided = true});
    };
    flap({-2.6, 2.2, 2.95}, {-2.8, 6.3, 3.15}, 1.5);
    flap({-2.8, 6.9, 3.2}, {-3.75, 12.2, 3.5}, 1.1);
    const Chord tailRoot{{-13.2, 0.7, 5.5}, {-16.4, 0.5, 5.6}, 0.4};
    const Chord tailTip{{-16.3, 6.3, 6.1}, {-17.8, 6.3, 6.1}, 0.14};
    addWing(faces, tailRoot, tailTip, {wingGrey, up, 3});
}

void addEngine(std::vector<Face>& faces) {
    const PaintAt cowl = [](double x, double) { return x > 5.8 ? silver : x > 2.2 ? petrol : silver * 0.7; };
    addDisc(faces, engineRings.back(), black);
    addRound(faces, engineRings, 12, cowl, 0.7);
    addDisc(faces, engineRings.front(), black);
    Ring spinner = engineRings.front();
    spinner.x += 0.02;
    spinner.radius *= 0.36;
    addDisc(faces, spinner, silver * 0.8);
    const double y = engineRings.front().y;
    faces.push_back({.corners = {{4.9, y, 3.1}, {4.4, y, 3.6}, {0.6, y, 3.4}, {1.4, y, 2.8}},
                     .paint = silver,
                     .shine = 0.2,
                     .twoSided = true});
}

struct Wheel {
    Vec middle;
    double radius;
};

void addWheel(std::vector<Face>& faces, const Wheel& wheel) {
    constexpr double halfWidth = 0.28;
    for (const double side : {-halfWidth, halfWidth}) {
        Face face{.corners = {}, .paint = rubber, .twoSided = true};
        for (int degrees = 0; degrees < 360; degrees += 30) {
            const double angle = degrees * std::numbers::pi / 180;
            face.corners.push_back(wheel.middle +
                                   Vec{wheel.radius * std::cos(angle), side, wheel.radius * std::sin(angle)});
        }
        faces.push_back(std::move(face));
    }
    Face tread{.corners = {}, .paint = rubber * 1.3, .twoSided = true};
    const auto [x, y, z] = wheel.middle;
    const double r = wheel.radius;
    tread.corners = {{x, y - halfWidth, z - r},
                     {x, y + halfWidth, z - r},
                     {x, y + halfWidth, z + r},
                     {x, y - halfWidth, z + r}};
    faces.push_back(std::move(tread));
}

void addLeg(std::vector<Face>& faces, const Vec& top, const Vec& foot, double width) {
    for (const Vec& across : {Vec{width / 2, 0, 0}, Vec{0, width / 2, 0}}) {
        faces.push_back({.corners = {top - across, top + across, foot + across, foot - across},
                         .paint = silver,
                         .shine = 0.3,
                         .twoSided = true});
    }
}

void addMainGear(std::vector<Face>& faces) {
    constexpr double radius = 0.62;
    const Vec foot = mainWheelFoot + Vec{0, 0, radius};
    addLeg(faces, foot + Vec{0.1, 0, 2.4}, foot, 0.34);
    addWheel(faces, {foot + Vec{0, -0.42, 0}, radius});
    addWheel(faces, {foot + Vec{0, 0.42, 0}, radius});
}

void addNoseGear(std::vector<Face>& faces) {
    constexpr double radius = 0.45;
    const Vec foot{12.6, 0, radius};
    addLeg(faces, foot + Vec{0.2, 0, 2.2}, foot, 0.26);
    addWheel(faces, {foot + Vec{0, 0.26, 0}, radius});
    addWheel(faces, {foot + Vec{0, -0.26, 0}, radius});
}

Tint bodyPaint(double x, double degrees) {
    const double fromTop = degrees <= 180 ? degrees : 360 - degrees;
    const bool isStripe = fromTop > 101 && fromTop < 124;
    if (x < -13.5 && fromTop < 101) {
        return petrol;
    }
    return isStripe && x < 16.5 ? amberPaint : fromTop > 101 ? silver : white;
}

/// The body's ring at any place along it.
Ring bodyRingAt(double x) {
    const auto* const behind = std::ranges::find_if(bodyRings, [x](const Ring& ring) { return ring.x <= x; });
    if (behind == bodyRings.begin() || behind == bodyRings.end()) {
        return bodyRings.front();
    }
    const Ring& before = *std::prev(behind);
    const double part = (before.x - x) / (before.x - behind->x);
    const auto mix = [part](double from, double to) { return from + (to - from) * part; };
    return {x, mix(before.radius, behind->radius), 0, mix(before.z, behind->z)};
}

/// A pane in the body's skin between two places along it and two angles.
Face pane(double front, double back, double top, double bottom, const Tint& paint) {
    constexpr double proud = 1.012;
    const Ring ahead = bodyRingAt(front);
    const Ring behind = bodyRingAt(back);
    return {.corners = {onRing(ahead, top, proud), onRing(ahead, bottom, proud),
                        onRing(behind, bottom, proud), onRing(behind, top, proud)},
            .paint = paint};
}

void addWindows(std::vector<Face>& faces) {
    constexpr double pitch = 1.02;
    constexpr int count = 23;
    for (int i = 0; i < count; ++i) {
        if (i == 8 || i == 15) {
            continue; // doors over the wings
        }
        const double x = 11.4 - i * pitch;
        Face window = pane(x, x - 0.5, 75, 90, windowLight);
        window.glows = true;
        faces.push_back(window);
    }
    faces.push_back(pane(17.0, 16.1, 8, 40, cockpitGlass));
    faces.push_back(pane(16.9, 15.7, 43, 66, cockpitGlass));
}

std::vector<Face> mirrored(const std::vector<Face>& faces) {
    std::vector<Face> other = faces;
    for (Face& face : other) {
        for (Vec& corner : face.corners) {
            corner.y = -corner.y;
        }
        std::ranges::reverse(face.corners);
    }
    return other;
}

void addFin(std::vector<Face>& faces) {
    constexpr Vec aside{0, -1, 0};
    const Chord root{{-10.4, 0, 6.2}, {-17.2, 0, 6.3}, 0.5};
    const Chord low{{-12.9, 0, 8.0}, {-17.7, 0, 8.0}, 0.4};
    const Chord high{{-14.3, 0, 9.4}, {-18.1, 0, 9.4}, 0.34};
    const Chord tip{{-16.4, 0, 11.8}, {-18.9, 0, 11.8}, 0.24};
    addWing(faces, root, low, {petrol, aside, 1});
    addWing(faces, low, high, {amberPaint, aside, 1});
    addWing(faces, high, tip, {petrol, aside, 2});
}

} // namespace

AirlinerShape makeAirliner() {
    AirlinerShape shape;
    addWings(shape.left);
    addEngine(shape.left);
    addMainGear(shape.left);
    shape.right = mirrored(shape.left);
    addNoseGear(shape.body);
    addRound(shape.body, bodyRings, 24, bodyPaint, 0.55);
    addWindows(shape.windows);
    const std::vector<Face> otherSide = mirrored(shape.windows);
    shape.windows.insert(shape.windows.end(), otherSide.begin(), otherSide.end());
    addFin(shape.fin);
    return shape;
}

} // namespace ventrel::art
