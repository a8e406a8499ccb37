#include "review/report_page.h"

#include <algorithm>
#include <array>

#include "base/format.h"
#include "review/report_drawings.h"

namespace ventrel {

namespace {

namespace colours = report_look;

constexpr FontRequest pageTitleFont{Face::arial, -20, true};
constexpr FontRequest scoreFont{Face::arial, -30, true};
constexpr FontRequest headingFont{Face::arial, -12, true};
constexpr FontRequest pageFont{Face::msSansSerif, -11, false};
constexpr FontRequest pageSmallFont{Face::smallFonts, 10, false};

/// Where everything stands on the page.
constexpr Rect head{0, 0, reportPageSize.width, 70};
constexpr int side = 14;
constexpr int verdictTop = 80;
constexpr int remarksTop = 97;
constexpr Rect pointsBox{side, 124, 330, 308};
constexpr Rect chartBox{346, 124, reportPageSize.width - side, 308};
constexpr int lowerTop = 322;
constexpr int flightsRight = 450;
constexpr int headingHeight = 20; // of a heading and the rule under it
constexpr Rect mapBox{470, lowerTop, 626, 514};
constexpr Rect historyBox{644, lowerTop, reportPageSize.width - side, 514};
constexpr int bottomMargin = 14;
constexpr int scrollBarRoom = 18;
constexpr int flightRowGap = 2;

/// A heading with its rule; what is left of the box below it.
Rect headed(Canvas& canvas, const ReportFonts& fonts, const Rect& box, std::string_view words) {
    drawText(canvas, fonts.heading, box.topLeft(), words, reportInk(colours::ink));
    const int y = box.top + headingHeight - 4;
    canvas.fill({box.left, y, box.right, y + 1}, colours::faint);
    return {box.left, box.top + headingHeight, box.right, box.bottom};
}

// The head -------------------------------------------------------------------------------------------------

std::string subtitle(const ReportFacts& facts) {
    const ShiftStory& story = facts.story;
    std::string text = FormatText("%s, %d flights in %s",
                                  {skillName(story.skill), long{static_cast<int>(story.flights.size())},
                                   FormatMinutesSeconds(story.length.count())});
    for (const std::string& part : {story.controller, facts.date}) {
        text += part.empty() ? "" : "   \x95   " + part;
    }
    return text + FormatText("   \x95   seed %s", {std::to_string(story.seed)});
}

void paintHead(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts) {
    constexpr Colour pale = Colour::rgb(0xB4, 0xCC, 0xC4);
    constexpr int barHeight = 5;
    const ShiftStory& story = facts.story;
    canvas.fill(head, colours::scope);
    drawText(canvas, fonts.title, {side, 11}, story.airspace, reportInk(colours::paper));
    drawText(canvas, fonts.text, {side, 40}, subtitle(facts), reportInk(pale));
    drawRightText(canvas, fonts.score, {head.right - side, 4}, pointsText(story.score), colours::amber);
    const int possible = std::max(story.possibleScore, 1);
    const int percent = static_cast<int>(std::int64_t{story.score} * 100 / possible);
    const std::string share =
        story.possibleScore > 0
            ? FormatText("of %s possible, %d %%", {pointsText(story.possibleScore), long{percent}})
            : std::string();
    drawRightText(canvas, fonts.text, {head.right - side, 40}, share, pale);
    const Rect bar{head.left, head.bottom - barHeight, head.right, head.bottom};
    canvas.fill(bar, colours::scopeRing);
    const int width = bar.width() * std::clamp(percent, 0, 100) / 100;
    canvas.fill({bar.left, bar.top, bar.left + width, bar.bottom}, colours::amber);
}

void paintVerdict(Canvas& canvas, const ReportFonts& fonts, const ShiftStory& story) {
    drawText(canvas, fonts.heading, {side, verdictTop}, verdictOf(story), reportInk(colours::ink));
    std::string text;
    for (const std::string& remark : remarksOn(story)) {
        text += (text.empty() ? "" : "  ") + remark;
    }
    drawText(canvas, fonts.text, {side, remarksTop}, text, reportInk(colours::ink));
}

// Points by cause ------------------------------------------------------------------------------------------

struct PointsColumns {
    int count;
    int points;
    int bars;
};

void paintCause(Canvas& canvas, const ReportFonts& fonts, const CauseRow& row, const Rect& line, int most) {
    const PointsColumns columns{line.left + 180, line.left + 236, line.left + 246};
    const Colour colour = row.points < 0 ? colours::bad : colours::good;
    drawText(canvas, fonts.text, line.topLeft(), row.cause, reportInk(colours::ink));
    drawRightText(canvas, fonts.text, {columns.count, line.top}, std::to_string(row.count), colours::faint);
    const std::string sign = row.points > 0 ? "+" : "";
    drawRightText(canvas, fonts.text, {columns.points, line.top}, sign + pointsText(row.points), colour);
    const int width = (line.right - columns.bars) * std::abs(row.points) / std::max(most, 1);
    canvas.fill({columns.bars, line.top + 3, columns.bars + std::max(width, 1), line.bottom - 5}, colour);
}

void paintPoints(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts) {
    const Rect box = headed(canvas, fonts, pointsBox, "Points");
    const auto rows = pointsByCause(facts.story);
    const int height = fonts.text.lineHeight() + flightRowGap;
    int most = 0;
    for (const CauseRow& row : rows) {
        most = std::max(most, std::abs(row.points));
    }
    Rect line{box.left, box.top, box.right, box.top + height};
    for (const CauseRow& row : rows) {
        paintCause(canvas, fonts, row, line, most);
        line = line.movedBy({0, height});
    }
    canvas.fill({line.left, line.top, line.left + 236, line.top + 1}, colours::rule);
    drawText(canvas, fonts.heading, {line.left, line.top + 3}, "Score", reportInk(colours::ink));
    drawRightText(canvas, fonts.heading, {line.left + 236, line.top + 3}, pointsText(facts.story.score),
                  colours::ink);
}

// Flights --------------------------------------------------------------------------------------------------

std::string timeOr(const std::optional<ClockSeconds>& clock, std::string_view none) {
    return clock ? FormatMinutesSeconds(clock->count()) : std::string(none);
}

enum class ColumnAlign { left, right };

/// A column of the table of flights: `edge` is where its text begins or ends.
struct FlightColumn {
    std::string_view head;
    int edge;
    ColumnAlign align;
    std::string (*text)(const FlightStory&);
};

constexpr std::array flightColumns{std::to_array<FlightColumn>({
    {"Flight", 4, ColumnAlign::left, [](const FlightStory& flight) { return flight.callsign; }},
    {"From", 68, ColumnAlign::left,
     [](const FlightStory& flight) { return flight.from.empty() ? std::string("--") : flight.from; }},
    {"To", 108, ColumnAlign::left, [](const FlightStory& flight) { return flight.to; }},
    {"Came", 188, ColumnAlign::right,
     [](const FlightStory& flight) { return timeOr(flight.appeared, "--"); }},
    {"Done", 238, ColumnAlign::right, [](const FlightStory& flight) { return timeOr(flight.ended, "--"); }},
    {"Orders", 286, ColumnAlign::right,
     [](const FlightStory& flight) { return std::to_string(flight.orders); }},
    {"Points", 336, ColumnAlign::right, [](const FlightStory& flight) { return pointsText(flight.points); }},
    {"Outcome", 352, ColumnAlign::left, [](const FlightStory& flight) { return endWords(flight); }},
})};

Rect flightsBox(int pageHeight) {
    return {side, lowerTop, flightsRight, pageHeight - bottomMargin};
}

void paintFlightText(Canvas& canvas, const Font& font, const FlightColumn& column, Point corner,
                     std::string_view text, Colour colour) {
    if (column.align == ColumnAlign::right) {
        drawRightText(canvas, font, {corner.x + column.edge, corner.y}, text, colour);
    } else {
        drawText(canvas, font, {corner.x + column.edge, corner.y}, text, reportInk(colour));
    }
}

Colour flightColour(const FlightStory& flight) {
    switch (flight.end) {
    case FlightEnd::landed:
    case FlightEnd::left: return colours::good;
    case FlightEnd::lost:
    case FlightEnd::collided: return colours::bad;
    case FlightEnd::none: break;
    }
    return flight.appeared ? colours::ink : colours::faint;
}

void paintFlight(Canvas& canvas, const ReportFonts& fonts, const FlightStory& flight, const Rect& row) {
    for (const FlightColumn& column : flightColumns) {
        const bool isOutcome = &column == &flightColumns.back();
        const bool isLoss = column.head == "Points" && flight.points < 0;
        const Colour colour = isOutcome ? flightColour(flight) : isLoss ? colours::bad : colours::ink;
        paintFlightText(canvas, fonts.text, column, {row.left, row.top + flightRowGap / 2},
                        column.text(flight), colour);
    }
}

/// In the order in which they come.
std::vector<const FlightStory*> flightsByTime(const ShiftStory& story) {
    std::vector<const FlightStory*> flights;
    flights.reserve(story.flights.size());
    for (const FlightStory& flight : story.flights) {
        flights.push_back(&flight);
    }
    std::ranges::sort(flights, {},
                      [](const FlightStory* flight) { return std::pair(flight->scheduled, flight); });
    return flights;
}

void paintFlights(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts, int pageHeight,
                  int first) {
    const Rect box = flightsBox(pageHeight);
    for (const FlightColumn& column : flightColumns) {
        paintFlightText(canvas, fonts.heading, column, box.topLeft(), column.head, colours::ink);
    }
    canvas.fill({box.left, box.top + headingHeight - 4, box.right, box.top + headingHeight - 3},
                colours::faint);
    const Rect area = reportFlightArea(fonts, pageHeight);
    const int height = fonts.text.lineHeight() + flightRowGap;
    const auto flights = flightsByTime(facts.story);
    Rect row{area.left, area.top, area.right, area.top + height};
    for (auto i = static_cast<std::size_t>(first); i < flights.size() && row.bottom <= area.bottom; ++i) {
        if (i % 2 == 1) {
            canvas.fill(row, colours::stripe);
        }
        paintFlight(canvas, fonts, *flights[i], row);
        row = row.movedBy({0, height});
    }
}

} // namespace

ReportFonts reportFontsOf(FontSet& fonts) {
    return {fonts.font(pageTitleFont), fonts.font(scoreFont), fonts.font(headingFont), fonts.font(pageFont),
            fonts.font(pageSmallFont)};
}

int reportFlightRows(const ReportFonts& fonts, int pageHeight) {
    return (flightsBox(pageHeight).height() - headingHeight) / (fonts.text.lineHeight() + flightRowGap);
}

Rect reportFlightArea(const ReportFonts& fonts, int pageHeight) {
    const Rect box = flightsBox(pageHeight);
    const int rows = reportFlightRows(fonts, pageHeight);
    const int top = box.top + headingHeight;
    return {box.left, top, box.right - scrollBarRoom, top + rows * (fonts.text.lineHeight() + flightRowGap)};
}

int reportHeightForAll(const ReportFonts& fonts, const ReportFacts& facts) {
    const int rows = static_cast<int>(facts.story.flights.size());
    const int height =
        lowerTop + headingHeight + rows * (fonts.text.lineHeight() + flightRowGap) + bottomMargin;
    return std::max(height, reportPageSize.height);
}

void paintReport(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts, int pageHeight,
                 int firstFlight) {
    canvas.fill({0, 0, reportPageSize.width, pageHeight}, colours::paper);
    paintHead(canvas, fonts, facts);
    paintVerdict(canvas, fonts, facts.story);
    paintPoints(canvas, fonts, facts);
    paintScoreChart(canvas, fonts, facts, headed(canvas, fonts, chartBox, "Score over the minutes"));
    paintFlights(canvas, fonts, facts, pageHeight, firstFlight);
    paintNearMissMap(canvas, fonts, facts, headed(canvas, fonts, mapBox, "Too close"));
    paintHistory(canvas, fonts, facts, headed(canvas, fonts, historyBox, "Your shifts here"));
}

} // namespace ventrel
