#include "tools/art/airliner.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "tools/art/airliner_shape.h"

namespace ventrel::art {

namespace {

struct Turn {
    double sine;
    double cosine;
};

Turn turn(double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {std::sin(angle), std::cos(angle)};
}

/// From the airliner's own space into the world. It pitches and banks about its wheels.
class Placing {
public:
    explicit Placing(const Attitude& attitude)
        : at_(attitude.at), bearing_(turn(attitude.bearing)), pitch_(turn(attitude.pitch)),
          bank_(turn(attitude.bank)), bend_(attitude.bend) {}

    Vec direction(const Vec& own) const {
        const double y = own.y * bank_.cosine - own.z * bank_.sine;
        const double up = own.z * bank_.cosine + own.y * bank_.sine;
        const double x = own.x * pitch_.cosine - up * pitch_.sine;
        const double z = up * pitch_.cosine + own.x * pitch_.sine;
        return {x * bearing_.sine - y * bearing_.cosine, x * bearing_.cosine + y * bearing_.sine, z};
    }
    Vec point(const Vec& own) const {
        constexpr double wingRoot = 1.5; // metres from the middle
        constexpr double wingSpan = 15.5;
        const double outward = std::max(0.0, std::abs(own.y) - wingRoot) / wingSpan;
        return at_ + direction(own + Vec{0, 0, bend_ * outward * outward});
    }

private:
    Vec at_;
    Turn bearing_;
    Turn pitch_;
    Turn bank_;
    double bend_;
};

/// A face in the world, ready to be drawn.
struct Seen {
    std::vector<Vec> corners;
    std::string colour;
    double depth = 0;
};

Vec middleOf(const std::vector<Vec>& corners) {
    Vec sum;
    for (const Vec& corner : corners) {
        sum = sum + corner;
    }
    return sum * (1.0 / double(corners.size()));
}

class Painter {
public:
    Painter(Svg& svg, const Camera& camera, const Placing& placing, const Daylight& light)
        : svg_(svg), camera_(camera), placing_(placing), light_(light) {}

    /// The faces that look at the camera, the far ones first.
    void paint(const std::vector<Face>& faces) {
        std::vector<Seen> visible;
        for (const Face& face : faces) {
            addVisible(visible, face);
        }
        std::ranges::stable_sort(visible, std::ranges::greater{}, &Seen::depth);
        for (const Seen& face : visible) {
            // The thin line closes the seam to the neighbour.
            svg_.path(seenPath(camera_, face.corners),
                      "fill=\"" + face.colour + "\" stroke=\"" + face.colour + "\" stroke-width=\".35\"");
        }
    }

private:
    void addVisible(std::vector<Seen>& visible, const Face& face) const {
        std::vector<Vec> corners(face.corners.size());
        std::ranges::transform(face.corners, corners.begin(),
                               [this](const Vec& corner) { return placing_.point(corner); });
        const Vec middle = middleOf(corners);
        const Vec towardsEye = unit(camera_.at - middle);
        // Across the diagonals, as two corners of a ring may meet in its tip.
        Vec normal = unit(cross(corners[2] - corners[0], corners[3 % corners.size()] - corners[1]));
        const bool isTurnedAway = dot(normal, towardsEye) < 0;
        if (isTurnedAway && !face.twoSided) {
            return;
        }
        if (isTurnedAway) {
            normal = normal * -1;
        }
        const Tint colour = face.glows ? face.paint : lit(light_, face.paint, normal, towardsEye, face.shine);
        visible.push_back({std::move(corners), hex(colour), camera_.depth(middle)});
    }

    Svg& svg_;
    const Camera& camera_;
    const Placing& placing_;
    const Daylight& light_;
};

void drawGlow(Svg& svg, const Camera& camera, const Vec& point, std::string_view glow, double radius) {
    if (const auto spot = camera.seen(point)) {
        svg.circle(*spot, radius, "fill=\"url(#" + std::string(glow) + ")\"");
    }
}

/// Whether the body stands between the camera and a lamp: their line of sight passes its axis within its
/// girth.
bool isBehindBody(const Placing& placing, const Camera& camera, const Vec& lamp) {
    constexpr double girth = 1.9; // metres
    const Vec nose = placing.point({17, 0, axisHeight});
    const Vec axis = placing.point({-15, 0, axisHeight}) - nose;
    const Vec sight = placing.point(lamp) - camera.at;
    const Vec apart = cross(sight, axis);
    const double square = dot(apart, apart);
    if (square <= 0) {
        return false;
    }
    const Vec between = nose - camera.at;
    const double alongSight = dot(cross(between, axis), apart) / square;
    const double alongAxis = dot(cross(between, sight), apart) / square;
    const double distance = std::abs(dot(between, apart)) / std::sqrt(square);
    return alongSight < 1 && alongAxis > 0 && alongAxis < 1 && distance < girth;
}

Vec onRight(const Vec& left) {
    return {left.x, -left.y, left.z};
}

/// How much of a lamp's beam, which points ahead, reaches the camera: 0 from the side, 1 from the front.
double inBeam(const Placing& placing, const Camera& camera, const Vec& lamp) {
    const double facing = dot(placing.direction({1, 0, 0}), unit(camera.at - placing.point(lamp)));
    return std::clamp((facing - 0.1) / 0.85, 0.0, 1.0);
}

} // namespace

std::string_view glowMaterials() {
    return "<radialGradient id=\"glowWhite\"><stop offset=\"0\" stop-color=\"#fff\"/><stop offset=\".10\" "
           "stop-color=\"#fffbe8\"/><stop offset=\".2\" stop-color=\"#fff0c8\" stop-opacity=\".62\"/><stop "
           "offset=\".5\" stop-color=\"#ffdf9e\" stop-opacity=\".17\"/><stop offset=\"1\" "
           "stop-color=\"#ffd080\" stop-opacity=\"0\"/></radialGradient>\n"
           "<radialGradient id=\"glowRed\"><stop offset=\"0\" stop-color=\"#ffd9cc\"/><stop offset=\".16\" "
           "stop-color=\"#ff5a3c\" stop-opacity=\".9\"/><stop offset=\".45\" stop-color=\"#ff2a14\" "
           "stop-opacity=\".26\"/><stop offset=\"1\" stop-color=\"#ff2010\" "
           "stop-opacity=\"0\"/></radialGradient>\n"
           "<radialGradient id=\"glowGreen\"><stop offset=\"0\" stop-color=\"#e6fff0\"/><stop offset=\".16\" "
           "stop-color=\"#4cf58c\" stop-opacity=\".9\"/><stop offset=\".45\" stop-color=\"#23d868\" "
           "stop-opacity=\".26\"/><stop offset=\"1\" stop-color=\"#18c058\" "
           "stop-opacity=\"0\"/></radialGradient>\n"
           "<radialGradient id=\"glowBlue\"><stop offset=\"0\" stop-color=\"#d8e8ff\"/><stop offset=\".2\" "
           "stop-color=\"#4d8dff\" stop-opacity=\".8\"/><stop offset=\"1\" stop-color=\"#2a5ce0\" "
           "stop-opacity=\"0\"/></radialGradient>\n"
           "<radialGradient id=\"shade\"><stop offset=\"0\" stop-color=\"#05070a\"/><stop offset=\".6\" "
           "stop-color=\"#05070a\" stop-opacity=\".7\"/><stop offset=\"1\" stop-color=\"#05070a\" "
           "stop-opacity=\"0\"/></radialGradient>\n"
           "<radialGradient id=\"lampPool\"><stop offset=\"0\" stop-color=\"#fff0c4\" "
           "stop-opacity=\".8\"/><stop offset=\"1\" stop-color=\"#ffe0a0\" "
           "stop-opacity=\"0\"/></radialGradient>\n"
           "<radialGradient id=\"glowAmber\"><stop offset=\"0\" stop-color=\"#fff4dc\"/><stop offset=\".2\" "
           "stop-color=\"#ffc070\" stop-opacity=\".85\"/><stop offset=\".5\" stop-color=\"#ffa040\" "
           "stop-opacity=\".22\"/><stop offset=\"1\" stop-color=\"#ff9030\" "
           "stop-opacity=\"0\"/></radialGradient>\n";
}

void drawAirliner(Svg& svg, const Camera& camera, const Attitude& attitude, const Daylight& light) {
    const AirlinerShape shape = makeAirliner();
    const Placing placing(attitude);
    Painter painter(svg, camera, placing, light);
    const Vec towardsEye = camera.at - attitude.at;
    const bool isLeftNear = dot(placing.direction({0, 1, 0}), towardsEye) > 0;
    const bool isSeenFromAhead = dot(placing.direction({1, 0, 0}), towardsEye) > 0;
    painter.paint(isLeftNear ? shape.right : shape.left);
    if (isSeenFromAhead) {
        painter.paint(shape.fin);
    }
    painter.paint(shape.body);
    painter.paint(shape.windows);
    if (!isSeenFromAhead) {
        painter.paint(shape.fin);
    }
    painter.paint(isLeftNear ? shape.left : shape.right);
}

void drawBeacons(Svg& svg, const Camera& camera, const Attitude& attitude, const Beacons& beacons,
                 double scale) {
    const Placing placing(attitude);
    const auto glow = [&](const Vec& own, std::string_view kind, double radius) {
        if (own.y == 0 || !isBehindBody(placing, camera, own)) {
            drawGlow(svg, camera, placing.point(own), kind, radius * scale);
        }
    };
    glow(wingTip, "glowRed", 9);
    glow(onRight(wingTip), "glowGreen", 9);
    if (beacons.beacon) {
        glow({0, 0, 6.6}, "glowRed", 13);
        glow({-3, 0, 2.2}, "glowRed", 10);
    }
    if (beacons.strobe) {
        glow(wingTip, "glowWhite", 24);
        glow(onRight(wingTip), "glowWhite", 24);
    }
    if (beacons.landing) {
        for (const Vec& lamp : {landingLampLeft, onRight(landingLampLeft), noseLamp}) {
            const double strength = inBeam(placing, camera, lamp);
            if (strength > 0) {
                glow(lamp, "glowWhite", (lamp.y == 0 ? 30 : 40) * strength);
            }
        }
    }
}

namespace {

/// An ellipse on the ground, along the flight, around a place ahead of the airliner.
std::vector<Vec> groundEllipse(const Attitude& attitude, double ahead, double along, double across) {
    const Placing placing({{attitude.at.x, attitude.at.y, 0}, attitude.bearing, 0, 0, 0});
    std::vector<Vec> corners;
    for (int degrees = 0; degrees < 360; degrees += 12) {
        const Turn angle = turn(degrees);
        corners.push_back(placing.point({ahead + along * angle.cosine, across * angle.sine, 0}));
    }
    return corners;
}

} // namespace

void drawGroundShade(Svg& svg, const Camera& camera, const Attitude& attitude) {
    constexpr double highest = 40; // metres
    const double strength = std::clamp(1 - attitude.at.z / highest, 0.0, 1.0);
    const auto fill = [&](const std::vector<Vec>& shape, std::string_view look, double opacity) {
        const std::string data = seenPath(camera, shape);
        if (!data.empty()) {
            svg.path(data, "fill=\"url(#" + std::string(look) + ")\" opacity=\"" +
                               number(opacity * strength) + '"');
        }
    };
    fill(groundEllipse(attitude, 62, 52, 15), "lampPool", 0.55);
    fill(groundEllipse(attitude, 0, 24, 5), "shade", 0.85);
    fill(groundEllipse(attitude, -1, 7, 19), "shade", 0.55);
}

Vec mainWheel(const Attitude& attitude, int side) {
    return Placing(attitude).point({mainWheelFoot.x, -side * mainWheelFoot.y, mainWheelFoot.z});
}

} // namespace ventrel::art
