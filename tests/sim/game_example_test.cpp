// The example at the head of sim/game.h, as it stands there: the build copies its lines into
// game_example.inc.

#include <gtest/gtest.h>

#include <filesystem>

#include "sim/game.h"

namespace ventrel {
namespace {

TEST(GameHeader, ItsExampleSendsOrdersUntilTheShiftEnds) {
    std::filesystem::current_path(PROGRAM_FOLDER);
#include "game_example.inc"
    EXPECT_FALSE(game.isRunning());
    EXPECT_GT(game.clock, 0_s);
    constexpr int freeOrdersPerPlane = 5;
    EXPECT_LT(game.freeOrders, freeOrdersPerPlane * game.planeCount()) << "orders were sent";
}

} // namespace
} // namespace ventrel
