#include "review/report_drawings.h"

#include <algorithm>
#include <array>

#include "base/format.h"
#include "sim/grid.h"

namespace ventrel {

namespace {

namespace colours = report_look;

// The score over time --------------------------------------------------------------------------------------

struct ChartScale {
    Rect plot;
    int seconds = 1;
    int points = 1;

    int x(ClockSeconds clock) const { return plot.left + clock.count() * (plot.width() - 1) / seconds; }
    int y(int score) const {
        return plot.bottom - 1 -
               static_cast<int>(std::int64_t{std::max(score, 0)} * (plot.height() - 1) / points);
    }
};

constexpr int axisLeft = 36;   // room for the points
constexpr int axisBottom = 16; // room for the minutes
constexpr int leastPoints = 100;

ChartScale scaleFor(const ShiftStory& story, const Rect& place) {
    ChartScale scale{
        .plot = {place.left + axisLeft, place.top + 12, place.right - 4, place.bottom - axisBottom}};
    const bool isOver = story.end != ShiftEnd::running;
    const ClockSeconds end = isOver ? story.clock : std::max(story.clock, story.length);
    scale.seconds = std::max(end.count(), clockMinute.count());
    scale.points = std::max(story.possibleScore, leastPoints);
    for (const PointsChange& change : story.changes) {
        scale.points = std::max(scale.points, change.change.score);
    }
    return scale;
}

/// The finest of these steps that makes few enough of them.
int stepFor(int whole, std::span<const int> steps, int most) {
    const auto found = std::ranges::find_if(steps, [&](int step) { return whole / step <= most; });
    return found == steps.end() ? steps.back() : *found;
}

void paintAxes(Canvas& canvas, const ReportFonts& fonts, const ChartScale& scale) {
    constexpr std::array pointSteps{50, 100, 250, 500, 1000, 2500, 5000, 10000, 100000, 1000000, 100000000};
    constexpr std::array minuteSteps{1, 2, 5, 10, 15, 20, 30, 60};
    constexpr int mostPointLines = 5;
    constexpr int mostMinutes = 9;
    const Rect& plot = scale.plot;
    const int half = fonts.text.lineHeight() / 2;
    const int pointStep = stepFor(scale.points, pointSteps, mostPointLines);
    for (int points = 0; points <= scale.points; points += pointStep) {
        const int y = scale.y(points);
        canvas.line({plot.left, y}, {plot.right, y}, colours::rule);
        drawRightText(canvas, fonts.text, {plot.left - 5, y - half}, pointsText(points), colours::faint);
    }
    const int minutes = scale.seconds / clockMinute.count();
    const int minuteStep = stepFor(minutes, minuteSteps, mostMinutes);
    for (int minute = 0; minute <= minutes; minute += minuteStep) {
        const std::string text = std::to_string(minute);
        const int x = scale.x(minute * clockMinute);
        canvas.line({x, plot.bottom}, {x, plot.bottom + 3}, colours::faint);
        drawText(canvas, fonts.text, {x - fonts.text.width(text) / 2, plot.bottom + 3}, text,
                 reportInk(colours::faint));
    }
}

void paintPossible(Canvas& canvas, const ReportFonts& fonts, const ChartScale& scale, int possible) {
    constexpr int dash = 5;
    const int y = scale.y(possible);
    for (int x = scale.plot.left; x < scale.plot.right; x += 2 * dash) {
        canvas.line({x, y}, {std::min(x + dash, scale.plot.right), y}, colours::amber);
    }
    const std::string text = "possible " + pointsText(possible);
    drawRightText(canvas, fonts.text, {scale.plot.right, y - fonts.text.lineHeight() - 1}, text,
                  colours::faint);
}

/// The area under the score, then its edge.
void paintCurve(Canvas& canvas, const ChartScale& scale, const std::vector<CurvePoint>& curve) {
    for (std::size_t i = 0; i + 1 < curve.size(); ++i) {
        const Rect area{scale.x(curve[i].clock), scale.y(curve[i].score), scale.x(curve[i + 1].clock),
                        scale.plot.bottom};
        canvas.fill(area, colours::goodArea);
    }
    for (std::size_t i = 0; i + 1 < curve.size(); ++i) {
        const int left = scale.x(curve[i].clock);
        const int right = scale.x(curve[i + 1].clock);
        const int y = scale.y(curve[i].score);
        const int next = scale.y(curve[i + 1].score);
        const bool isLoss = curve[i + 1].score < curve[i].score;
        canvas.fill({left, y - 1, right + 1, y + 1}, colours::good);
        canvas.fill({right, std::min(y, next) - 1, right + 2, std::max(y, next) + 1},
                    isLoss ? colours::bad : colours::good);
    }
}

// The map --------------------------------------------------------------------------------------------------

struct MapScale {
    Rect square;

    /// The middle of a cell; one outside the airspace lies on its rim.
    Point at(Cell cell) const {
        const auto place = [&](int number, int from, int length) {
            return from + (2 * std::clamp(number, 0, gridSize - 1) + 1) * length / (2 * gridSize);
        };
        return {place(cell.x, square.left, square.width()), place(cell.y, square.top, square.height())};
    }
};

constexpr Rect around(Point middle, int radius) {
    return {middle.x - radius, middle.y - radius, middle.x + radius + 1, middle.y + radius + 1};
}

void paintPlaces(Canvas& canvas, const ReportFonts& fonts, const ShiftStory& story, const MapScale& scale) {
    constexpr int radius = 2;
    constexpr Colour fix = Colour::rgb(0x58, 0xB0, 0xA8);
    constexpr Colour airport = Colour::rgb(0xE8, 0xD8, 0x70);
    for (const PlaceStory& place : story.places) {
        const Point at = scale.at(place.cell);
        const Colour colour = place.isAirport ? airport : fix;
        if (place.isAirport) {
            canvas.fill(around(at, radius), colour);
        } else {
            canvas.ellipse(around(at, radius), colour);
        }
        const int width = fonts.small.width(place.ident);
        const bool isRight = at.x + radius + 3 + width < scale.square.right;
        const int x = isRight ? at.x + radius + 3 : at.x - radius - 2 - width;
        drawText(canvas, fonts.small, {x, at.y - fonts.small.lineHeight() / 2}, place.ident,
                 reportInk(colour));
    }
}

void paintNearMiss(Canvas& canvas, Point at) {
    constexpr int radius = 4;
    canvas.filledEllipse(around(at, radius), colours::paper, Colour::rgb(0xE8, 0x30, 0x30));
}

/// Where the collided flights met: two thick strokes across each other.
void paintCollision(Canvas& canvas, Point at) {
    constexpr int reach = 6;
    for (const int shift : {-1, 0, 1}) {
        canvas.line({at.x - reach + shift, at.y - reach}, {at.x + reach + 1 + shift, at.y + reach + 1},
                    colours::amber);
        canvas.line({at.x - reach + shift, at.y + reach}, {at.x + reach + 1 + shift, at.y - reach - 1},
                    colours::amber);
    }
}

std::string mapCaption(const ShiftStory& story) {
    const auto count = static_cast<long>(story.nearMisses.size());
    if (count == 0) {
        return story.collisionCell ? "A collision" : "No near miss";
    }
    const std::string_view collision = story.collisionCell ? ", a collision" : "";
    return FormatText(count == 1 ? "%d near miss%s" : "%d near misses%s", {count, collision});
}

// Earlier shifts -------------------------------------------------------------------------------------------

constexpr int wholePercent = 100;

int percentOf(int score, int possible) {
    return possible <= 0 ? 0
                         : static_cast<int>(std::clamp<std::int64_t>(
                               std::int64_t{score} * wholePercent / possible, 0, wholePercent));
}

struct HistoryBar {
    int percent = 0;
    bool isThis = false;
    bool collided = false;
};

std::vector<HistoryBar> historyBars(const ReportFacts& facts, std::size_t most) {
    std::vector<HistoryBar> bars;
    const std::size_t skipped =
        facts.earlier.size() + 1 > most ? facts.earlier.size() + 1 - most : std::size_t{0};
    for (std::size_t i = skipped; i < facts.earlier.size(); ++i) {
        const PastShift& past = facts.earlier[i];
        bars.push_back({percentOf(past.score, past.possibleScore), false, past.collided});
    }
    bars.push_back({percentOf(facts.story.score, facts.story.possibleScore), true,
                    facts.story.end == ShiftEnd::collision});
    return bars;
}

void paintBar(Canvas& canvas, const HistoryBar& bar, const Rect& column) {
    constexpr Colour before = Colour::rgb(0x9A, 0xB4, 0xAC);
    const int height = std::max(1, column.height() * bar.percent / wholePercent);
    const Rect filled{column.left, column.bottom - height, column.right, column.bottom};
    canvas.fill(filled, bar.isThis ? colours::amber : before);
    if (bar.collided) {
        canvas.fill({filled.left, filled.top, filled.right, filled.top + 2}, colours::bad);
    }
}

std::string comparison(const ReportFacts& facts) {
    if (facts.earlier.empty()) {
        return "Your first shift here on this level.";
    }
    const auto best = std::ranges::max_element(facts.earlier, {}, &PastShift::score);
    const auto better = std::ranges::count_if(
        facts.earlier, [&](const PastShift& past) { return past.score > facts.story.score; });
    const auto all = static_cast<long>(facts.earlier.size() + 1);
    return better == 0 ? FormatText("The best of your %d here.", {all})
                       : FormatText("Number %d of your %d here. Best: %s.",
                                    {static_cast<long>(better) + 1, all, pointsText(best->score)});
}

} // namespace

void drawRightText(Canvas& canvas, const Font& font, Point topRight, std::string_view text, Colour colour) {
    drawText(canvas, font, {topRight.x - font.width(text), topRight.y}, text, reportInk(colour));
}

void paintScoreChart(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts, const Rect& place) {
    const ShiftStory& story = facts.story;
    const ChartScale scale = scaleFor(story, place);
    paintAxes(canvas, fonts, scale);
    paintCurve(canvas, scale, scoreCurve(story));
    canvas.line({scale.plot.left, scale.plot.bottom}, {scale.plot.right, scale.plot.bottom}, colours::faint);
    if (story.possibleScore > 0) {
        paintPossible(canvas, fonts, scale, story.possibleScore);
    }
}

void paintNearMissMap(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts, const Rect& place) {
    const int side = std::min(place.width(), place.height() - fonts.text.lineHeight() - 4);
    const MapScale scale{Rect::at({place.left + (place.width() - side) / 2, place.top}, {side, side})};
    canvas.filledEllipse(scale.square, colours::scopeRing, colours::scope);
    canvas.ellipse(scale.square.grownBy(-side / 6), colours::scopeRing);
    canvas.ellipse(scale.square.grownBy(-side / 3), colours::scopeRing);
    paintPlaces(canvas, fonts, facts.story, scale);
    for (const NearMiss& miss : facts.story.nearMisses) {
        paintNearMiss(canvas, scale.at(miss.cell));
    }
    if (facts.story.collisionCell) {
        paintCollision(canvas, scale.at(*facts.story.collisionCell));
    }
    const Rect words{place.left, scale.square.bottom + 4, place.right, place.bottom};
    drawTextBox(canvas, fonts.text, words, mapCaption(facts.story), reportInk(colours::ink),
                {.across = Align::middle});
}

void paintHistory(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts, const Rect& place) {
    constexpr std::size_t most = 10;
    constexpr int barsHeight = 92;
    const int pitch = place.width() / static_cast<int>(most);
    const Rect plot{place.left, place.top, place.left + pitch * static_cast<int>(most),
                    place.top + barsHeight};
    canvas.fill(plot, colours::stripe);
    const int half = plot.top + barsHeight / 2;
    canvas.line({plot.left, half}, {plot.right, half}, colours::rule);
    int x = plot.left;
    for (const HistoryBar& bar : historyBars(facts, most)) {
        paintBar(canvas, bar, {x + 1, plot.top, x + pitch - 1, plot.bottom});
        x += pitch;
    }
    canvas.line({plot.left, plot.bottom}, {plot.right, plot.bottom}, colours::faint);
    drawText(canvas, fonts.text, {place.left, plot.bottom + 3}, "Share of the possible",
             reportInk(colours::faint));
    const int wordsTop = plot.bottom + 7 + fonts.text.lineHeight();
    const Rect words{place.left, wordsTop, place.right, place.bottom};
    const bool isFine = facts.trouble.empty();
    drawTextBox(canvas, fonts.text, words, isFine ? comparison(facts) : facts.trouble,
                reportInk(isFine ? colours::ink : colours::bad), {.wrap = true});
}

} // namespace ventrel
