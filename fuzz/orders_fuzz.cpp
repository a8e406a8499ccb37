// The reader of scripted orders against any file: what it accepts is in order, says the same when it is
// written and read again, and can be played.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "demand.h"
#include "scratch_folder.h"
#include "short_shift.h"
#include "tools/sim/order_text.h"
#include "tools/sim/shift_run.h"
#include "tools/sim/trace_writer.h"

namespace {

using namespace ventrel;
using Orders = std::vector<ScriptedOrder>;

/// As a file has them.
std::string written(const Orders& orders, const Game& game) {
    Output text;
    for (const auto& [clock, flight, order] : orders) {
        text << clock.count() << ' ' << flight.number() << ' ' << order.altitude << ' ' << order.heading
             << ' ' << static_cast<int>(order.speed) << ' '
             << directTargetNumber(order.directTarget, game.vorCount()) << ' ' << static_cast<int>(order.hold)
             << '\n';
    }
    return text.text();
}

void playShift(Game& game, const Orders& orders) {
    Output output;
    TraceWriter writer{output, game};
    runShift(game, writer, {.orders = orders, .until = shortShiftEnd, .steering = {}});
    demand(game.score >= 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScratchFolder folder;
    const auto file = folder.put("fuzz.orders", {reinterpret_cast<const char*>(data), size});
    Game game = shortShift();
    const auto read = readOrderFile(file, game);
    if (!read) {
        demand(read.error().text.starts_with(file.string()));
        return 0;
    }
    const Orders& orders = *read;
    demand(std::ranges::is_sorted(orders, {}, &ScriptedOrder::clock));
    const std::string text = written(orders, game);
    const auto again = readOrderFile(folder.put("again.orders", text), game);
    demand(again && written(*again, game) == text);
    playShift(game, orders);
    return 0;
}
