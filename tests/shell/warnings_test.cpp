// What the player is warned of and can read: the rings of conflicts ahead, and the pilots' captions.

#include <algorithm>

#include "console/signal_colours.h"
#include "shell/quiet_shift.h"

namespace ventrel {
namespace {

constexpr FlightIndex eastbound{0};
constexpr FlightIndex westbound{1};

/// How many pixels of the scope have the colour of the rings.
int ringPixels(GameStage& stage) {
    const Bitmap scope = pictureOf(stage.backend.screen(), stage.shell().radar.window.bounds());
    const Colour ring = usualSignals.conflictRing;
    return static_cast<int>(std::ranges::count(scope.pixels(), toPixel(ring)));
}

TEST(Warnings, ARingComesThreeMovesAheadAndGoesWithTheOrderThatPreventsIt) {
    GameStage stage(800,
                    "[Options]\nRadarSweep=0\nMapDetails=0\nAidConflicts=1\n[Game]\nName=mary\nSkill=0\n");
    QuietShift shift(stage);
    shift.enter(eastbound, {.cell = {12, 24}, .altitude = 5, .heading = 90});
    shift.enter(westbound, {.cell = {20, 24}, .altitude = 6, .heading = 270});
    stage.skipTo(QuietShift::entryTime);
    stage.look(
        [&stage] { stage.game().flight(westbound).current().altitude = 5; }); // nobody enters like that
    const auto expectRings = [&stage](bool shown, const char* when) {
        stage.look([&stage, shown, when] {
            EXPECT_EQ(ringPixels(stage) > 0, shown) << when;
            EXPECT_EQ(stage.shell().conflicts.isEndangered(eastbound), shown) << when;
        });
    };
    expectRings(false, "four moves before");
    stage.skipTo(QuietShift::entryTime + 30_s);
    expectRings(true, "three moves before");
    stage.selectByStrip(westbound);
    stage.sendByPanel({.altitude = 8, .heading = 270});
    expectRings(false, "without a step between");
    stage.play();
}

TEST(Warnings, ATonePerNewConflictIsHeardWhereItIsAskedForAlsoWithoutRings) {
    for (const bool isAskedFor : {false, true}) {
        GameStage stage(800, std::string("[Options]\nRadarSweep=0\nMapDetails=0\n") +
                                 (isAskedFor ? "AidConflictTone=1\n" : "AidConflicts=1\n") +
                                 "[Game]\nName=mary\nSkill=0\n");
        QuietShift shift(stage);
        shift.enter(eastbound, {.cell = {12, 24}, .altitude = 5, .heading = 90});
        shift.enter(westbound, {.cell = {20, 24}, .altitude = 6, .heading = 270});
        stage.skipTo(QuietShift::entryTime);
        stage.look([&stage] { stage.game().flight(westbound).current().altitude = 5; });
        const auto expectTones = [&stage, isAskedFor](int tones, const char* when) {
            stage.look([&stage, tones, isAskedFor, when] {
                EXPECT_EQ(stage.sounds.count("snd\\conflict.snd"), isAskedFor ? tones : 0) << when;
                EXPECT_EQ(ringPixels(stage) > 0, !isAskedFor && tones > 0) << when;
            });
        };
        expectTones(0, "four moves before");
        stage.skipTo(QuietShift::entryTime + 30_s);
        expectTones(1, "three moves before");
        stage.skipTo(QuietShift::entryTime + 60_s);
        expectTones(1, "still the same two");
        stage.play();
    }
}

TEST(Warnings, WhatAPilotSaysCanBeReadForAWhileAlsoWithoutVoices) {
    GameStage stage(800, "[Options]\nVoice=0\nAidCaptions=1\n[Game]\nName=mary\nSkill=0\n");
    QuietShift shift(stage);
    shift.enter(eastbound, {.cell = {12, 24}, .altitude = 5, .heading = 90});
    shift.enter(westbound, {.cell = {20, 34}, .altitude = 6, .heading = 270});
    stage.skipTo(QuietShift::entryTime);
    std::size_t waiting = 0;
    stage.look([&] {
        const Captions& captions = stage.shell().captions;
        EXPECT_TRUE(captions.window.isVisible());
        waiting = captions.lines.size();
        ASSERT_EQ(waiting, 2U);
        EXPECT_NE(captions.lines.front().find("with you level at 5,000"), std::string::npos);
    });
    stage.wait(2000);
    stage.look(
        [&] { EXPECT_EQ(stage.shell().captions.lines.size(), 1U) << "the second call took its place"; });
    stage.wait(5000);
    stage.look([&] { EXPECT_FALSE(stage.shell().captions.window.isVisible()); });
    stage.play();
}

} // namespace
} // namespace ventrel
