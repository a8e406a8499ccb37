// The aids of the scope: ways ahead, trails, runways, and tags that give way to each other.

#include <gtest/gtest.h>

#include "golden.h"
#include "map_geometry/map_geometry.h"
#include "radar/flight_marks.h"
#include "radar_stage.h"
#include "sim/flight_step.h"

namespace ventrel {
namespace {

constexpr std::array scopeAids{&Options::aidHeadingLines, &Options::aidRunways,   &Options::aidHistory,
                               &Options::aidFullTags,     &Options::aidTidyTags,  &Options::aidLargeTags,
                               &Options::aidOrderLine,    &Options::aidPauseAtRim};

/// A crowd of flights that have come three cells, over a runway and by the rim, with all aids; for the first
/// of them an order to turn round is on the panel.
void showCrowd(RadarStage& stage) {
    for (int Options::* const aid : scopeAids) {
        stage.options.*aid = 1;
    }
    stage.options.mapDetails = 0;
    stage.paused = true;
    const int cell = stage.radar.layout.cellSize;
    Vor airport;
    airport.ident = "JFK";
    airport.isAirport = true;
    airport.pixel = {24 * cell, 20 * cell};
    airport.runwayHeading = 225;
    airport.labelColour = airport.symbolColour = airport.runwayColour = Colour::rgb(230, 220, 190);
    airport.labelPlace = 2;
    stage.use({airport, airport});
    stage.buildMap();
    constexpr std::array<Cell, 11> cells{{{21, 7},
                                          {24, 9},
                                          {23, 8},
                                          {26, 8},
                                          {25, 10},
                                          {24, 17},
                                          {26, 16},
                                          {25, 18},
                                          {22, 13},
                                          {28, 12},
                                          {27, 3}}};
    for (std::size_t i = 0; i < cells.size(); ++i) {
        Flight& flight = stage.flyAt(cells[i], static_cast<int>(i) * headingStep % fullCircle);
        flight.current().speed = i % 3 == 0 ? Speed::slow : i % 3 == 1 ? Speed::normal : Speed::fast;
        flight.selected = i == 0;
    }
    stage.radar.callbacks.unsentOrder = [] {
        return UnsentOrder{FlightIndex{0}, {.altitude = 5, .heading = 180}};
    };
    for (int move = 0; move < 3; ++move) {
        for (Flight& flight : stage.game.flights) {
            moveAlongPlan(flight);
        }
        stage.frame();
    }
}

TEST(WayAhead, LeadsThreeMinutesAlongAHeadingAndThroughEveryTurn) {
    Flight flight;
    flight.plan = {{.cell = {20, 20}, .altitude = 5, .heading = 90}};
    for (const auto& [speed, cells] :
         {std::pair{Speed::fast, 12}, std::pair{Speed::normal, 6}, std::pair{Speed::slow, 3}}) {
        flight.plan[0].speed = speed;
        EXPECT_EQ(wayAhead(flight).size(), 1U + static_cast<std::size_t>(cells));
        EXPECT_EQ(wayAhead(flight).back(), (Cell{20 + cells, 20}));
    }
    flight.plan = {{.cell = {20, 20}, .heading = 0, .speed = Speed::slow},
                   {.heading = 315, .speed = Speed::slow},
                   {.heading = 270, .speed = Speed::slow},
                   {.heading = 225, .speed = Speed::slow},
                   {.heading = 180, .speed = Speed::slow}};
    EXPECT_EQ(wayAhead(flight).back(), (Cell{17, 21})) << "a slow one, but its turn is shown whole";
}

TEST(OrderLine, IsThereWhileTheOrderLeadsElsewhere) {
    RadarStage stage;
    stage.options.aidOrderLine = 1;
    stage.flyAt({20, 20}, 90);
    PanelOrder order{.altitude = 5, .heading = 90};
    stage.radar.callbacks.unsentOrder = [&order] { return UnsentOrder{FlightIndex{0}, order}; };
    const auto dashes = [&] {
        stage.frame();
        return stage.count(selectedWhite, scopeSquare(stage.radar.layout));
    };
    EXPECT_EQ(dashes(), 0);
    order.altitude = 7;
    EXPECT_EQ(dashes(), 0) << "the same way, if higher";
    order.heading = 0;
    EXPECT_GT(dashes(), 30);
}

TEST(History, FollowsAFlightFromCellToCellAndForgetsItWhenItJumps) {
    RadarStage stage;
    stage.options.aidHistory = 1;
    stage.options.mapDetails = 0;
    stage.buildMap();
    Flight& flight = stage.flyAt({20, 20}, 90);
    const auto fly = [&](Cell to) {
        flight.current().cell = to;
        stage.frame();
        return stage.radar.aids.history.trails[0].count;
    };
    for (int x = 20; x < 30; ++x) {
        fly({x, 20});
    }
    const auto dotAt = [&](int x) { return stage.shown().at(x * stage.radar.layout.cellSize - 1, 219) != 0; };
    EXPECT_TRUE(dotAt(28) && dotAt(24));
    EXPECT_FALSE(dotAt(23)) << "the oldest have gone";
    EXPECT_EQ(fly({10, 10}), 1U);
    stage.options.aidHistory = 0;
    stage.frame();
    EXPECT_TRUE(stage.radar.aids.history.trails.empty());
}

class TagOrderTest : public ::testing::Test {
protected:
    static constexpr Rect scope{0, 0, 600, 600};

    void arrange(const std::vector<Rect>& landmarks = {}) {
        arrangeTags(order_, flights_, {scope, landmarks});
    }
    Rect box(std::size_t i) const {
        return tagStand(flights_[i].tag, flights_[i].at, tagPlaceOf(order_, flights_[i].flight)).box;
    }
    /// Hidden pixels of tags, and whether one leaves the scope.
    int hidden() const {
        int sum = 0;
        for (std::size_t i = 0; i < flights_.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                const Rect common = box(i).intersectedWith(box(j));
                sum += common.width() * common.height();
            }
        }
        return sum;
    }
    void fly(Point at) {
        flights_.push_back({FlightIndex{static_cast<int>(flights_.size())}, at, {40, 60, 13}});
    }

    TagOrder order_;
    std::vector<TaggedFlight> flights_;
};

TEST_F(TagOrderTest, ACrowdIsReadableStaysOnTheScopeAndStandsStill) {
    for (int i = 0; i < 36; ++i) {
        fly({180 + i % 6 * 42 + i * 7 % 11, 200 + i / 6 * 36 + i * 5 % 9});
    }
    fly({594, 300});
    fly({300, 4});
    const int before = hidden();
    arrange();
    EXPECT_LT(hidden(), before / 10) << "of " << before;
    for (std::size_t i = 0; i < flights_.size(); ++i) {
        EXPECT_EQ(cornersOutside(scope, box(i)), 0) << i;
    }
    const std::vector<std::uint8_t> places = order_.places;
    order_.flights.clear(); // as if they had moved
    arrange();
    int changed = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
        changed += places[i] != order_.places[i] ? 1 : 0;
    }
    EXPECT_LE(changed, 1);
}

TEST_F(TagOrderTest, ATagGoesBackOnceThereIsRoom) {
    fly({300, 300});
    fly({310, 304});
    arrange();
    EXPECT_EQ(hidden(), 0);
    EXPECT_NE(order_.places[0] + order_.places[1], 0);
    flights_[1].at.x = 500;
    arrange();
    EXPECT_EQ(order_.places, (std::vector<std::uint8_t>{0, 0}));
}

TEST_F(TagOrderTest, ATagUnderItsFlightLeavesTheBracketOfTheChosenOneFree) {
    const std::vector<Rect> allButBelow{{200, 200, 268, 400}, {332, 200, 400, 400}, {268, 200, 332, 296}};
    fly({300, 300});
    arrange(allButBelow);
    ASSERT_TRUE(box(0).intersects(bracketBox({300, 300})));
    flights_[0].hasBracket = true;
    arrange(allButBelow);
    EXPECT_GT(box(0).top, 300);
    EXPECT_FALSE(box(0).intersects(bracketBox({300, 300})));
}

TEST(ScopeAids, ARefreshEqualsAWholeRepaintUnderTheSweep) {
    RadarStage stage;
    stage.options.radarSweep = 1;
    showCrowd(stage);
    Flight& fresh = stage.game.flights[6];
    fresh.activatedAt = stage.clock - 2_s;
    fresh.callsign = "NEW1";
    stage.frame();
    const Bitmap whole = stage.shown();
    RadarRefresh(stage.radar);
    EXPECT_EQ(stage.shown(), whole);
    stage.clock += 1_s;
    RadarRefresh(stage.radar);
    const Bitmap hidden = stage.shown();
    EXPECT_NE(hidden, whole);
    fresh.inPlay = false;
    const Bitmap under = [&] {
        RadarRefresh(stage.radar);
        return stage.shown();
    }();
    EXPECT_EQ(count(hidden, flightGreen, scopeSquare(stage.radar.layout)),
              count(under, flightGreen, scopeSquare(stage.radar.layout)))
        << "all of a flight that blinks is away, wherever its tag stands";
}

TEST(ScopeAids, ACrowdWithAllOfThemLooksAsItDid) {
    for (const auto& [layout, name] :
         {std::pair{&smallRadarLayout, "aids_800"}, {&largeRadarLayout, "aids_1024"}}) {
        RadarStage stage(*layout);
        showCrowd(stage);
        const int cell = layout->cellSize;
        expectGolden(crop(stage.radar.backBuffer, {16 * cell, 0, 33 * cell, 25 * cell}), name);
    }
}

} // namespace
} // namespace ventrel
