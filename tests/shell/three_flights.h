// A game with three flights in the air, and what is to be seen of the one that is selected.

#pragma once

#include <gtest/gtest.h>

#include "shell/quiet_shift.h"
#include "shell/selection.h"

namespace ventrel {

class ThreeFlights : public ::testing::Test {
protected:
    GameStage stage;

    /// Three flights well apart, in the air at 60.
    void begin() {
        QuietShift shift(stage);
        shift.enter(FlightIndex{0}, {.cell = {10, 20}, .altitude = 5, .heading = 90});
        shift.enter(FlightIndex{1}, {.cell = {30, 12}, .altitude = 7, .heading = 180});
        shift.enter(FlightIndex{2}, {.cell = {20, 35}, .altitude = 9, .heading = 0});
        stage.skipTo(QuietShift::entryTime);
    }

    void expectSelected(FlightIndex flight, const char* how) {
        stage.look([this, flight, how] {
            for (const FlightIndex i : stage.game().flightPlaces()) {
                EXPECT_EQ(stage.game().flight(i).selected, i == flight)
                    << "flight " << i.number() << ", " << how;
            }
            EXPECT_EQ(stage.shell().panel.state.flight, flight) << how;
            EXPECT_EQ(stage.shell().pressedStrip, StripsFlightSlot(stage.shell().strips, flight)) << how;
            EXPECT_TRUE(stage.shell().exec.window.isEnabled()) << how;
        });
    }

    void press(Key key, int times = 1) {
        stage.todo([key, times](Script& script) {
            for (int i = 0; i < times; ++i) {
                script.key(key);
            }
            script.wait(1);
        });
    }

    const Flight& flight(FlightIndex index) { return stage.game().flight(index); }
};

} // namespace ventrel
