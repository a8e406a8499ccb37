#include "story/shift_report.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "base/format.h"
#include "base/level_names.h"
#include "story/shift_words.h"

namespace ventrel {

namespace {

constexpr std::string_view sparedName = "Spared: never below 0";

CauseRow rowFor(const ShiftStory& story, const CauseWords& words) {
    CauseRow row{.cause = words.heading};
    for (const PointsChange& change : story.changes) {
        if (change.change.cause == words.cause && change.change.delta != 0) {
            ++row.count;
            row.points += change.change.delta;
        }
    }
    return row;
}

/// What penalties asked for and could not get.
CauseRow sparedPoints(const ShiftStory& story) {
    CauseRow row{.cause = sparedName};
    for (const PointsChange& change : story.changes) {
        const int spared = change.change.score - (change.before + change.change.delta);
        row.count += spared != 0 ? 1 : 0;
        row.points += spared;
    }
    return row;
}

std::string costliest(const ShiftStory& story) {
    const auto rows = pointsByCause(story);
    const auto worst = std::ranges::min_element(rows, {}, &CauseRow::points);
    if (worst == rows.end() || worst->points >= 0) {
        return {};
    }
    return FormatText("%s cost most: %s points.", {worst->cause, pointsText(-worst->points)});
}

std::string handledRemark(const ShiftStory& story) {
    const int handled = handledCount(story);
    const int all = static_cast<int>(story.flights.size());
    if (handled == all) {
        return "Every flight landed or left as it should.";
    }
    return FormatText("%d of %d flights landed or left as they should.", {long{handled}, long{all}});
}

std::string orderRemark(const ShiftStory& story) {
    long orders = 0;
    for (const FlightStory& flight : story.flights) {
        orders += flight.orders;
    }
    return orders > story.freeOrders
               ? FormatText("%d orders, %d more than are free.", {orders, orders - story.freeOrders})
               : FormatText("%d orders, of %d that are free.", {orders, long{story.freeOrders}});
}

std::string apartRemark(const ShiftStory& story) {
    const auto count = static_cast<long>(story.nearMisses.size());
    if (count == 0) {
        return story.end == ShiftEnd::collision ? std::string() : "No two came too close.";
    }
    return count == 1 ? "One near miss." : FormatText("%d near misses.", {count});
}

} // namespace

std::string_view skillName(Skill skill) {
    return levelNames.at(static_cast<std::size_t>(skill));
}

std::vector<CauseRow> pointsByCause(const ShiftStory& story) {
    std::vector<CauseRow> rows;
    rows.reserve(causeWords.size() + 1);
    for (const CauseWords& words : causeWords) {
        rows.push_back(rowFor(story, words));
    }
    rows.push_back(sparedPoints(story));
    std::erase_if(rows, [](const CauseRow& row) { return row.count == 0; });
    return rows;
}

std::string verdictOf(const ShiftStory& story) {
    const std::string time = FormatMinutesSeconds(story.clock.count());
    switch (story.end) {
    case ShiftEnd::everyFlightHandled: return FormatText("The shift was played to its end in %s.", {time});
    case ShiftEnd::collision: {
        std::string text = FormatText("It ended at %s in a mid-air collision", {time});
        std::string_view between = " of ";
        for (const FlightStory& flight : story.flights) {
            if (flight.end == FlightEnd::collided) {
                text += std::string(between) + flight.callsign;
                between = " and ";
            }
        }
        return text + ".";
    }
    case ShiftEnd::givenUp: return FormatText("It was given up at %s.", {time});
    case ShiftEnd::left: return FormatText("Its replay was watched until %s.", {time});
    case ShiftEnd::running: break;
    }
    return FormatText("It is being played, at %s.", {time});
}

std::vector<std::string> remarksOn(const ShiftStory& story) {
    std::vector remarks{handledRemark(story), costliest(story), apartRemark(story), orderRemark(story)};
    std::erase_if(remarks, [](const std::string& remark) { return remark.empty(); });
    return remarks;
}

std::string endWords(const FlightStory& flight) {
    switch (flight.end) {
    case FlightEnd::landed: return "landed";
    case FlightEnd::left: return "left";
    case FlightEnd::lost: return "lost";
    case FlightEnd::collided: return "collided";
    case FlightEnd::none: break;
    }
    return flight.appeared ? "under way" : "to come";
}

int handledCount(const ShiftStory& story) {
    return static_cast<int>(std::ranges::count_if(story.flights, [](const FlightStory& flight) {
        return flight.end == FlightEnd::landed || flight.end == FlightEnd::left;
    }));
}

std::vector<CurvePoint> scoreCurve(const ShiftStory& story) {
    std::vector<CurvePoint> curve{{0_s, 0}};
    for (const PointsChange& change : story.changes) {
        curve.push_back({change.clock, change.change.score});
    }
    curve.push_back({story.clock, story.score});
    return curve;
}

std::string pointsText(int points) {
    constexpr int thousand = 1000;
    const int size = std::abs(points);
    const std::string_view sign = points < 0 ? "-" : "";
    return size < thousand ? FormatText("%s%d", {sign, long{size}})
                           : FormatText("%s%d,%03d", {sign, long{size / thousand}, long{size % thousand}});
}

} // namespace ventrel
