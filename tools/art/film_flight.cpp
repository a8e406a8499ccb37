#include "tools/art/film_flight.h"

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "tools/art/airfield.h"
#include "tools/art/airliner.h"
#include "tools/art/chance.h"
#include "tools/art/easing.h"
#include "tools/art/film.h"
#include "tools/art/sky.h"

namespace ventrel::art {

namespace {

constexpr std::string_view skyFile = "film_sky.png";
constexpr double skyFrom = 240;           // the bearing of the sky picture's left edge
constexpr double skyPixelsPerDegree = 16; // in that picture
constexpr Size skyPicture{2880, 400};

constexpr double touchMoment = 3.47; // seconds
constexpr double touchPlace = 340;   // metres along the runway
constexpr double speed = 72;         // metres a second

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

double bearingFrom(const Vec& at, const Vec& to) {
    return std::atan2(to.x - at.x, to.y - at.y) * 180 / std::numbers::pi;
}

void drawSkyBehind(Svg& svg, const Camera& camera) {
    // A bearing of 10 lies right of one of 350.
    const double bearing = camera.bearing < skyFrom - 180 ? camera.bearing + 360 : camera.bearing;
    const double grown = camera.focal * radians(1) / skyPixelsPerDegree;
    const double left = camera.middle.x + camera.focal * radians(skyFrom - bearing);
    // A long lens would show a strip of it alone: its height stays, so that every shot has its whole evening.
    constexpr double height = skyPicture.height / 2.0;
    svg.picture(skyFile, {left, camera.middle.y - height + 1, skyPicture.width * grown, height});
}

Attitude approachAt(double moment) {
    constexpr double glide = 0.0524; // 3 degrees
    const double x = between(-470, -84, progress(moment, 0, 2.1));
    return {.at = {x, 0.8 * std::sin(moment * 1.7), (touchPlace - x) * glide},
            .bearing = 90,
            .pitch = 3.2 + 0.3 * std::sin(moment * 2.3),
            .bank = 1.6 * std::sin(moment * 2.1 + 0.5)};
}

} // namespace

/// Two short flashes a second.
Beacons beaconsAt(double moment) {
    const double phase = std::fmod(moment, 1.0);
    return {.landing = true,
            .strobe = phase < 0.05 || (phase >= 0.15 && phase < 0.2),
            .beacon = std::fmod(moment + 0.4, 1.0) < 0.15};
}

Attitude rollingAt(double moment) {
    const double since = moment - touchMoment;
    const double braked = std::max(0.0, since - 0.5);
    const double sink = 1 - progress(moment, 1.7, touchMoment);
    const double settled = std::exp(-since * 5) * std::sin(since * 16); // the legs give way and spring back
    return {.at = {touchPlace + speed * since - 3.2 * braked * braked, 0,
                   since < 0 ? 4.6 * sink * sink * (1 + 0.4 * sink) : 0.10 * std::abs(settled)},
            .bearing = 90,
            .pitch = between(5.2, -0.3, eased(moment, touchMoment + 0.35, touchMoment + 1.55)),
            .bank = since < 0 ? 1.2 * std::sin(moment * 3) * progress(-since, 0, 0.8) : 0,
            .bend = between(1, 0.1, eased(moment, touchMoment, touchMoment + 1))};
}

namespace {

/// What a tyre leaves in the air when it starts to turn.
void drawSmoke(Svg& svg, const Camera& camera, double moment, int side) {
    constexpr int puffs = 44;
    RandomGenerator random{static_cast<std::uint32_t>(side > 0 ? 11 : 23)};
    for (int i = 0; i < puffs; ++i) {
        const double born = touchMoment + drawn(random, 0, 0.5);
        const double life = drawn(random, 1.1, 2.1);
        const Vec drift{drawn(random, 4, 15), drawn(random, -1.5, 1.5), drawn(random, 0.6, 2.4)};
        const double largest = drawn(random, 2.4, 5.4);
        const double part = progress(moment, born, born + life);
        if (part <= 0 || part >= 1) {
            continue;
        }
        const double slowed = 1 - (1 - part) * (1 - part);
        const Vec at = mainWheel(rollingAt(born), side) + Vec{-1.5, 0, 0.4} + drift * slowed;
        if (const auto spot = camera.seen(at)) {
            svg.circle(*spot, camera.scaleAt(at) * between(0.6, largest, slowed),
                       "fill=\"url(#smoke)\" opacity=\"" + number(0.7 * (1 - part) * (1 - part)) + '"');
        }
    }
}

} // namespace

std::string drawFilmSky() {
    Svg svg(skyPicture);
    drawSky(svg, {.size = skyPicture,
                  .horizon = double(skyPicture.height),
                  .sun = (sunBearing - skyFrom) * skyPixelsPerDegree,
                  .reach = skyPicture.height * 0.90,
                  .clouds = 7});
    return svg.text();
}

std::string_view flightMaterials() {
    return "<radialGradient id=\"smoke\"><stop offset=\"0\" stop-color=\"#f2e6da\"/><stop offset=\".5\" "
           "stop-color=\"#d9cdc6\" stop-opacity=\".62\"/><stop offset=\"1\" stop-color=\"#b9b0b0\" "
           "stop-opacity=\"0\"/></radialGradient>\n";
}

void drawFilmOutside(Svg& svg, const Camera& camera, double moment) {
    drawSkyBehind(svg, camera);
    drawHills(svg, camera, filmSize.width);
    drawAirfield(svg, camera, filmSize);
    drawAirfieldLamps(svg, camera, moment);
}

void drawApproach(Svg& svg, double moment) {
    const Attitude airliner = approachAt(moment);
    Camera camera{.at = {300, -95, 18}, .bearing = 0, .focal = 0, .middle = {160, 146}};
    camera.focal = between(1180, 1480, eased(moment, 0, 2.3));
    // The camera lags behind a little, and leaves room ahead.
    camera.bearing = 360 + bearingFrom(camera.at, approachAt(moment - 0.12).at) - 0.4;
    camera.middle.y = between(150, 160, eased(moment, 0, 2.2));
    drawFilmOutside(svg, camera, moment);
    drawAirliner(svg, camera, airliner, evening);
    drawBeacons(svg, camera, airliner, beaconsAt(moment), 0.62);
}

void drawTouchDown(Svg& svg, double moment) {
    const Attitude airliner = rollingAt(moment);
    Camera camera{.at = {432, -112, 13.5}, .bearing = 0, .focal = 0, .middle = {160, 118}};
    camera.focal = between(740, 600, eased(moment, 2.1, 5.2));
    camera.bearing = 360 + bearingFrom(camera.at, rollingAt(moment - 0.10).at) + 2.4;
    drawFilmOutside(svg, camera, moment);
    drawGroundShade(svg, camera, airliner);
    drawSmoke(svg, camera, moment, -1);
    drawAirliner(svg, camera, airliner, evening);
    drawBeacons(svg, camera, airliner, beaconsAt(moment), 0.62);
    drawSmoke(svg, camera, moment, 1);
}

} // namespace ventrel::art
