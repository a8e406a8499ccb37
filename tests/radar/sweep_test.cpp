// The sweep: its path, its pace, and that it never leaves a trace.

#include "radar/sweep.h"

#include <gtest/gtest.h>

#include <numeric>

#include "radar_stage.h"

namespace ventrel {
namespace {

constexpr Millis clockSecond = 400;

/// A radar whose sweep turns, driven by the loop; the clock follows the machine's time.
struct SweepStage : RadarStage {
    explicit SweepStage(const RadarLayout& layout = smallRadarLayout) : RadarStage(layout) {
        options.radarSweep = 1;
        radar.sweep.end = {200, 0}; // in sight
        radar.sweep.isOutward = true;
        desktop.setIdle([this, start = backend.now(), first = clock] {
            clock = first + ClockSeconds{static_cast<int>((backend.now() - start) / clockSecond)};
            return RadarTick(radar);
        });
    }

    /// The latest frame (with what has blinked since) and the line once over it: all that may be seen.
    Bitmap wanted() const {
        Bitmap picture = radar.backBuffer;
        Canvas(picture).invert(sweepLine(radar.sweep.end, radar.layout, radar.scope));
        return picture;
    }
};

TEST(SweepTest, RunsAlongTheTopAndTheRightEdgeAndBack) {
    Sweep sweep;
    const int size = smallRadarLayout.scopeSize;
    const auto after = [&](int steps) {
        for (int i = 0; i < steps; ++i) {
            SweepAdvance(sweep, size);
        }
        return sweep.end;
    };
    EXPECT_EQ(after(1), (Point{-1, 0})) << "the very first step turns it outward";
    EXPECT_EQ(after(1 + size), (Point{size, 0}));
    EXPECT_EQ(after(size), (Point{size, size}));
    EXPECT_EQ(after(1), (Point{size, size + 1}));
    EXPECT_EQ(after(1), (Point{size, size})) << "one pixel below the square it turns back";
    EXPECT_EQ(after(size + size), (Point{0, 0}));
    EXPECT_EQ(after(1), (Point{1, 0})) << "and outward again";
}

class SweepOnEitherScope : public ::testing::TestWithParam<int> {}; // by the window's width

TEST_P(SweepOnEitherScope, LeavesNoTrail) {
    SweepStage stage(GetParam() == smallWindow.width ? smallRadarLayout : largeRadarLayout);
    for (int i = 0; i < 30; ++i) {
        stage.flyAt({6 + i % 6 * 6, 8 + i / 6 * 7}, i % 8 * 45).activatedAt = stage.clock;
    }
    constexpr int looks = 100;
    for (int look = 0; look < looks; ++look) {
        stage.script.wait(5 + look % 7).then([&, look] {
            ASSERT_EQ(stage.sent(), stage.wanted()) << "look " << look;
            if (look % 9 == 4) {
                RadarRepaint(stage.radar);
            }
        });
    }
    stage.play();
    EXPECT_GT(stage.radar.sweep.end.x, 200 + looks) << "it has turned all the while";
}

INSTANTIATE_TEST_SUITE_P(SweepTest, SweepOnEitherScope,
                         ::testing::Values(smallWindow.width, largeWindow.width));

TEST(SweepTest, StepsOnePixelEverySixMillisecondsAndTenAfterAFrame) {
    SweepStage stage;
    stage.frame();
    const auto tickAfter = [&](Millis pause) {
        stage.backend.wait(pause);
        RadarTick(stage.radar);
        return stage.radar.sweep.end.x;
    };
    const int start = tickAfter(6);
    EXPECT_EQ(tickAfter(5), start) << "not yet";
    EXPECT_EQ(tickAfter(1), start + 1);
    stage.frame();
    EXPECT_EQ(stage.radar.sweep.end.x, start + 1) << "a frame in between two steps is no step";
    EXPECT_EQ(tickAfter(6), start + 11);
    EXPECT_EQ(tickAfter(6), start + 12);
    EXPECT_EQ(tickAfter(100), start + 13) << "a late step makes up for nothing";
}

TEST(SweepTest, KeepsItsPaceWhereAPictureOfTheScreenTakesLonger) {
    SweepStage stage;
    stage.backend.setFrameTime(16);
    stage.frame();
    stage.backend.wait(6);
    RadarTick(stage.radar);
    const int start = stage.radar.sweep.end.x;
    const Millis began = stage.backend.now();
    int awakenings = 0;
    while (stage.backend.now() < began + 300) {
        const Millis next = RadarTick(stage.radar).value();
        stage.backend.wait(next - stage.backend.now());
        ++awakenings;
    }
    RadarTick(stage.radar);
    EXPECT_NEAR(stage.radar.sweep.end.x, start + static_cast<int>(stage.backend.now() - began) / 6, 1);
    EXPECT_LE(awakenings, 20);
    stage.backend.wait(1000);
    const int before = stage.radar.sweep.end.x;
    RadarTick(stage.radar);
    EXPECT_EQ(stage.radar.sweep.end.x, before + 3) << "no more than a picture's steps are made up for";
}

TEST(SweepTest, AFrameNeverLosesTheLineAlsoDuringAPause) {
    SweepStage stage;
    stage.frame();
    int x = stage.radar.sweep.end.x;
    for (const Millis pause : {1, 6, 3, 1000, 6, 2}) {
        stage.backend.wait(pause);
        stage.paused = pause > 3;
        stage.frame();
        x += pause > 5 ? 10 : 0;
        EXPECT_EQ(stage.radar.sweep.end.x, x) << "after " << pause << " ms";
        EXPECT_EQ(stage.shown(), stage.wanted()) << "after " << pause << " ms";
    }
}

TEST(SweepTest, SendsOnlyItsOwnPixels) {
    SweepStage stage(largeRadarLayout);
    const int size = stage.radar.layout.scopeSize;
    stage.clock = 101_s; // no frame for the next 400 ms and more
    stage.frame();
    stage.script.wait(20); // the first picture is sent whole
    for (int i = 0; i < 100; ++i) {
        stage.script.wait(6).then([&] {
            const auto& parts = stage.backend.lastSending().changed;
            const int pixels = std::accumulate(parts.begin(), parts.end(), 0, [](int sum, const Rect& part) {
                return sum + part.width() * part.height();
            });
            EXPECT_LT(pixels, size * size / 40);
        });
    }
    stage.play();
    EXPECT_GT(stage.backend.sendings(), 100U);
}

TEST(SweepTest, StandsStillWhenSwitchedOffAndIsGoneWithTheNextFrame) {
    SweepStage stage;
    stage.script.wait(500).then([&] {
        stage.options.radarSweep = 0;
        RadarRepaint(stage.radar);
    });
    stage.script.wait(1).then([&] {
        const Point stood = stage.radar.sweep.end;
        EXPECT_EQ(stage.sent(), stage.radar.backBuffer);
        stage.backend.wait(100);
        EXPECT_EQ(RadarTick(stage.radar), std::nullopt) << "nothing moves by itself";
        EXPECT_EQ(stage.radar.sweep.end, stood);
    });
    stage.play();
}

} // namespace
} // namespace ventrel
