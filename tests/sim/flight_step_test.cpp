#include "sim/flight_step.h"

#include <gtest/gtest.h>

#include "small_airspace.h"

namespace ventrel {
namespace {

std::vector<ClockSeconds> movesOf(Speed speed, ClockSeconds activatedAt) {
    TestGame test;
    Flight& flight = test.fly({24, 30}, 5, 90, SmallAirspace::northWest);
    flight.activatedAt = activatedAt;
    flight.current().speed = speed;
    std::vector<ClockSeconds> moves;
    for (ClockSeconds now = 90_s; now <= 255_s; now += stepInterval) {
        const int before = flight.current().cell.x;
        test.step(now);
        if (flight.current().cell.x != before) {
            moves.push_back(now);
        }
    }
    return moves;
}

TEST(FlightStep, SpeedDecidesHowOftenAFlightMoves) {
    EXPECT_EQ(movesOf(Speed::slow, 75_s), (std::vector<ClockSeconds>{135_s, 195_s, 255_s}));
    EXPECT_EQ(movesOf(Speed::normal, 75_s),
              (std::vector<ClockSeconds>{105_s, 135_s, 165_s, 195_s, 225_s, 255_s}));
    EXPECT_EQ(movesOf(Speed::fast, 75_s).size(), 12U);
}

TEST(FlightStep, ActsOncePerMultipleOfFifteenAndOnlyInAGame) {
    TestGame test;
    Flight& flight = test.fly({24, 30}, 5, 90, SmallAirspace::northWest);
    flight.current().speed = Speed::fast;
    test.step(45_s);
    test.step(45_s);
    test.step(46_s);
    EXPECT_EQ(flight.current().cell.x, 25);
    test.game.phase = Phase::idle;
    test.game.clock = 60_s;
    EXPECT_FALSE(SimulationStep(test.game, test.events));
    EXPECT_EQ(flight.current().cell.x, 25);
}

TEST(FlightStep, AFlightIsAnnouncedTwoMinutesAheadAndDoesNotMoveWhenItEnters) {
    TestGame test;
    Flight& flight = test.fly({2, 24}, 5, 90, SmallAirspace::northWest);
    flight.activatedAt = 0_s;
    flight.scheduledAt = 180_s;
    test.step(60_s);
    EXPECT_FALSE(flight.announced);
    EXPECT_EQ(test.game.listedCount, 0);
    test.step(75_s);
    EXPECT_TRUE(flight.announced);
    EXPECT_EQ(test.game.listedCount, 1);
    EXPECT_EQ(test.steps(90_s, 180_s), (Lines{"13 F0 entering airspace, proceeding to NW",
                                              "radio with you level at five thousand", "active 0"}));
    Flight& departure = test.wait(SmallAirspace::mid, SmallAirspace::northWest);
    departure.activatedAt = 0_s;
    departure.scheduledAt = 195_s;
    EXPECT_EQ(test.step(195_s),
              (Lines{"13 F1 request departure at MID", "radio requesting departure", "active 1"}));
    EXPECT_FALSE(flight.announced);
    EXPECT_EQ(flight.activatedAt, 180_s);
    EXPECT_EQ(flight.current().cell, (Cell{2, 24}));
}

TEST(FlightStep, AnArrivalIsAnnouncedThenScoredAtItsNextMove) {
    TestGame test;
    const Flight& flight = test.fly({23, 24}, 1, 90, SmallAirspace::mid);
    EXPECT_EQ(test.step(60_s),
              (Lines{"10 F0 is landing at MID, good day", "radio landing good day", "lamp 0"}));
    EXPECT_EQ(test.step(75_s), Lines{});
    EXPECT_EQ(test.step(90_s), (Lines{"score 150 = 150", "lamp 3"}));
    EXPECT_FALSE(flight.inPlay);
    test.game.bonus = 475;
    EXPECT_EQ(test.step(105_s), (Lines{"score 475 = 625", "ended 0"}));
}

TEST(FlightStep, AMissedApproachIsToldThenPaidAndTheFlightFliesOn) {
    TestGame test;
    const Flight& tooHigh = test.fly({23, 24}, 2, 90, SmallAirspace::mid);
    test.game.score = 400;
    EXPECT_EQ(test.step(60_s), (Lines{"11 F0, missed approach at MID- altitude too high",
                                      "radio going around, request new approach what the hell!", "lamp 1"}));
    // With the yellow lamp lit, the second pilot is not heard.
    test.fly({24, 23}, 1, 180, SmallAirspace::mid).callsign = "BAD";
    EXPECT_EQ(test.step(90_s),
              (Lines{"score -150 = 250", "11 BAD, missed approach at MID- incorrect heading"}));
    EXPECT_TRUE(tooHigh.inPlay);
    EXPECT_EQ(tooHigh.current().cell, (Cell{25, 24}));
    EXPECT_EQ(test.step(120_s), (Lines{"score -150 = 100"}));
    EXPECT_EQ(test.step(150_s), (Lines{"lamp 3"}));
}

TEST(FlightStep, AnExitNeedsTenThousandFeet) {
    TestGame test;
    const Flight& low = test.fly({12, 13}, 9, 0, SmallAirspace::northWest);
    EXPECT_EQ(test.step(60_s), (Lines{"11 F0, cannot exit to  NW VOR- altitude too low",
                                      "radio request vectors to the VOR what the hell!", "lamp 1"}));
    const Flight& high = test.fly({13, 13}, 10, 315, SmallAirspace::northWest);
    // The failure is paid for in the same step, so the lamp stays yellow.
    EXPECT_EQ(test.step(90_s), (Lines{"score -100 = 0", "10 F1, leaving airspace at NW- good day",
                                      "radio leaving your airspace good day"}));
    EXPECT_TRUE(low.inPlay);
    EXPECT_EQ(test.step(120_s), (Lines{"score 75 = 75", "lamp 3"}));
    EXPECT_FALSE(high.inPlay);
}

TEST(FlightStep, APointThatIsAirportAndExitIsJudgedAsAnAirport) {
    SmallAirspace air = SmallAirspace::usual().airport("BTH", {24, 40}, 180);
    air.last().isExit = true;
    TestGame test{air};
    Flight& flight = test.fly({24, 39}, 10, 180, PointIndex{5});
    flight.destinationKind = DestinationKind::exit;
    EXPECT_EQ(test.step(60_s).front(), "11 F0, missed approach at BTH- altitude too high");
}

TEST(FlightStep, AClearedDepartureRollsThenLiftsOffOnACourse) {
    TestGame test;
    Flight& flight = test.wait(SmallAirspace::mid, SmallAirspace::northWest);
    test.steps(60_s, 90_s);
    EXPECT_EQ(flight.groundState, GroundState::waiting);
    flight.groundState = GroundState::cleared;
    test.steps(105_s, 120_s);
    EXPECT_EQ(flight.groundState, GroundState::rolling);
    EXPECT_EQ(flight.current().cell, (Cell{24, 24}));
    test.steps(135_s, 150_s);
    EXPECT_EQ(flight.groundState, GroundState::airborne);
    EXPECT_EQ(flight.current().cell, (Cell{25, 24}));
    EXPECT_EQ(flight.lastStep().altitude, 10);
    EXPECT_EQ(flight.lastStep().cell, (Cell{12, 12}));
}

TEST(FlightStep, AWaitingDepartureComplainsFromTheTenthMinuteOn) {
    TestGame test;
    test.wait(SmallAirspace::mid, SmallAirspace::northWest);
    test.game.score = 500;
    EXPECT_EQ(test.steps(60_s, 615_s), Lines{});
    const Lines first = test.step(630_s);
    ASSERT_EQ(first.size(), 3U);
    EXPECT_EQ(first[0], "score -50 = 450");
    EXPECT_EQ(first[1].substr(0, 3), "11 ");
    EXPECT_NE(first[1].find("F0"), std::string::npos);
    EXPECT_TRUE(first[2] == "radio still waiting" || first[2] == "radio say again still waiting");
    EXPECT_EQ(test.steps(645_s, 915_s), Lines{});
    // The draw for its wording is made also when the lamp silences the call.
    test.game.litLamp = LampLevel::yellow;
    const RandomGenerator before = test.game.random;
    EXPECT_EQ(test.step(930_s).size(), 3U); // score, line, and the frame putting the lamp out
    RandomGenerator once = before;
    once.next();
    EXPECT_EQ(test.game.random.state, once.state);
}

TEST(FlightStep, ADepartureBoundForItsOwnAirportHasLandedWithoutTakingOff) {
    TestGame test;
    const Flight& flight = test.wait(SmallAirspace::mid, SmallAirspace::mid);
    EXPECT_EQ(test.step(60_s), (Lines{"score 150 = 150"}));
    EXPECT_FALSE(flight.inPlay);
}

TEST(FlightStep, AnEnteringFlightGoesLowerBelowTrafficInItsRowOrColumn) {
    TestGame test;
    test.wait(SmallAirspace::mid, SmallAirspace::northWest).current().altitude =
        6; // far off, but in the column
    test.fly({40, 9}, 7, 90, SmallAirspace::northWest);
    for (const auto& [altitude, entered] : {std::pair{6, 5}, std::pair{7, 6}, std::pair{8, 8}}) {
        Flight& flight = test.fly({25, 8}, altitude, 90, SmallAirspace::northWest);
        flight.activatedAt = 0_s;
        flight.scheduledAt = 45_s;
        test.game.lastStepTime = 0_s;
        const auto lines = test.step(45_s);
        EXPECT_EQ(flight.current().altitude, entered);
        ASSERT_EQ(lines.size(), 3U);
        EXPECT_EQ(lines[1],
                  "radio " + phraseAsWords(std::string{snippet::levelAt, VoiceAltitudeCode(entered)}));
        test.game.flights.pop_back();
    }
}

} // namespace
} // namespace ventrel
