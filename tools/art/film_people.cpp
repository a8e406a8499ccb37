#include "tools/art/film_people.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace ventrel::art {

namespace {

constexpr double upperArm = 31;
constexpr double foreArm = 30;
constexpr Spot shoulder{20, 13};

std::string fill(std::string_view colour) {
    return "fill=\"" + std::string(colour) + '"';
}

std::string limb(std::string_view colour, double width) {
    return "fill=\"none\" stroke-linecap=\"round\" stroke=\"" + std::string(colour) + "\" stroke-width=\"" +
           number(width) + '"';
}

/// Where the elbow is when the hand is there: away from the body and down. `side` is -1 for the left. On its
/// way from one side of the arm to the other it comes towards the eye, so that the arm looks shorter.
Spot elbowOf(Spot root, Spot hand, double side) {
    constexpr double weight = 0.45; // pulls it down
    constexpr double turning = 1.6;
    const double x = hand.x - root.x;
    const double y = hand.y - root.y;
    const double distance = std::max(std::hypot(x, y), 1.0);
    const double reach = std::min(distance, upperArm + foreArm - 0.5);
    const double along = (upperArm * upperArm - foreArm * foreArm + reach * reach) / (2 * reach);
    const double aside = std::sqrt(std::max(0.0, upperArm * upperArm - along * along));
    const Spot direction{x / distance, y / distance};
    const Spot across{direction.y, -direction.x};
    const double turned = std::clamp(turning * (side * across.x + weight * across.y), -1.0, 1.0);
    return {root.x + direction.x * along + across.x * aside * turned,
            root.y + direction.y * along + across.y * aside * turned};
}

void drawArm(Svg& svg, const PersonLook& look, Spot hand, double side) {
    const Spot root{shoulder.x * side, shoulder.y};
    const Spot elbow = elbowOf(root, hand, side);
    const Spot wrist{elbow.x + (hand.x - elbow.x) * 0.86, elbow.y + (hand.y - elbow.y) * 0.86};
    const Spot cuff{elbow.x + (hand.x - elbow.x) * 0.3, elbow.y + (hand.y - elbow.y) * 0.3};
    svg.path(moved(elbow, wrist), limb(look.skin, 6.4));
    svg.circle(hand, 4.8, fill(look.skin));
    svg.path(moved({hand.x, hand.y}, {hand.x - side * 2.6, hand.y - 5.6}), limb(look.skin, 3.4));
    svg.path(moved(root, elbow), limb(look.sleeve, 11));
    svg.path(moved(elbow, cuff), limb(look.sleeve, 9.4));
    // The evening's light on its left edge.
    svg.open("transform=\"translate(-2.4 -1)\" opacity=\".5\"");
    svg.path(moved(root, elbow), limb("#ffb877", 1.8));
    svg.path(moved(elbow, wrist), limb("#ffc890", 1.5));
    svg.close();
}

void drawBody(Svg& svg, const PersonLook& look) {
    constexpr std::string_view outline =
        "M-20,112 Q-17.5,72 -24,34 Q-27,9.5 -13,5 L-6,0 H6 L13,5 Q27,9.5 24,34 Q17.5,72 20,112 z";
    svg.path(outline, fill(look.shirt));
    svg.path("M0,14 V100 M-24,36 Q-12,42 0,40 Q12,42 24,36 M-19,70 Q-9,75 -3,92 M19,70 Q9,75 3,92",
             "fill=\"none\" stroke=\"#000\" stroke-width=\"1.2\" opacity=\".16\"");
    svg.path(outline, "fill=\"url(#onPerson)\"");
    svg.path("M-8,3 Q0,8 8,3 L6.5,-2 H-6.5 z", fill(look.sleeve)); // the collar
}

void drawHair(Svg& svg, const PersonLook& look, double nod) {
    if (look.cut == Hair::wreath) {
        svg.path("M-11.4,-17 Q-11.6,-7.4 0,-6.4 Q11.6,-7.4 11.4,-17 Q6,-13.6 0,-13.6 Q-6,-13.6 -11.4,-17 z",
                 fill(look.hair));
        return;
    }
    svg.path("M-11.6,-15 Q-12.6,-31 0,-31.6 Q12.6,-31 11.6,-15 Q11,-7 6,-5.4 H-6 Q-11,-7 -11.6,-15 z",
             fill(look.hair));
    if (look.cut == Hair::ponyTail) {
        const double swing = nod * 0.7;
        svg.path("M-3.4,-22 Q-7," + number(-8) + ' ' + number(-4 + swing) + ",9 Q" + number(swing) + ",15 " +
                     number(3 + swing) + ",8 Q7,-8 3.4,-22 z",
                 fill(look.hair));
        svg.rect({-3.6, -20, 7.2, 3}, 1.4, "fill=\"#f09a3e\"");
    }
}

void drawHeadset(Svg& svg) {
    svg.path("M-12.4,-17 Q-13.4,-33.4 0,-33.6 Q13.4,-33.4 12.4,-17",
             "fill=\"none\" stroke=\"#15191c\" stroke-width=\"2.6\"");
    svg.path("M-12.2,-20 Q-12.4,-33.4 0,-33.9", "fill=\"none\" stroke=\"#c9b8a4\" stroke-width=\".9\"");
    for (const double side : {-1.0, 1.0}) {
        svg.ellipse({side * 12.2 - 3, -21, 6, 9.6}, "fill=\"#101416\"");
    }
    svg.path("M-14.6,-18.6 Q-14.9,-15 -13.6,-12.6", "fill=\"none\" stroke=\"#ffc890\" stroke-width=\".9\"");
}

void drawHead(Svg& svg, const PersonLook& look, double nod) {
    svg.rect({-5.4, -10, 10.8, 14}, 3, fill(look.skin));
    svg.rect({-5.4, -5, 10.8, 9}, 2, "fill=\"#000\" opacity=\".25\"");
    svg.open("transform=\"rotate(" + number(nod) + " 0 -6)\"");
    for (const double side : {-1.0, 1.0}) {
        svg.ellipse({side * 11.4 - 2.2, -20, 4.4, 7}, fill(look.skin));
    }
    svg.ellipse({-11, -31, 22, 27.5}, fill(look.skin));
    drawHair(svg, look, nod);
    svg.ellipse({-11.6, -31.6, 23.2, 28}, "fill=\"url(#onPerson)\"");
    drawHeadset(svg);
    svg.close();
}

} // namespace

std::string_view peopleMaterials() {
    return "<linearGradient id=\"onPerson\"><stop offset=\"0\" stop-color=\"#ffb26e\" "
           "stop-opacity=\".85\"/><stop offset=\".10\" stop-color=\"#ffa860\" stop-opacity=\".34\"/><stop "
           "offset=\".28\" stop-color=\"#20140c\" stop-opacity=\".10\"/><stop offset=\".62\" "
           "stop-color=\"#02060a\" stop-opacity=\".42\"/><stop offset=\".9\" stop-color=\"#02080a\" "
           "stop-opacity=\".55\"/><stop offset=\"1\" stop-color=\"#49d88c\" "
           "stop-opacity=\".30\"/></linearGradient>\n";
}

void drawPerson(Svg& svg, const PersonLook& look, const Pose& pose) {
    svg.open("transform=\"translate(" + number(pose.neck.x) + ' ' + number(pose.neck.y) + ") rotate(" +
             number(pose.lean) + " 0 90)\"");
    drawArm(svg, look, pose.leftHand, -1);
    drawArm(svg, look, pose.rightHand, 1);
    drawBody(svg, look);
    drawHead(svg, look, pose.nod);
    svg.close();
}

} // namespace ventrel::art
