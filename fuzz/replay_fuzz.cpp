// The replay's reader against any bytes: nothing crashes, and what is read is written and read the same
// again.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "replay/replay_reader.h"
#include "replay/replay_text.h"

namespace {

using namespace ventrel;

std::string written(const Replay& replay) {
    std::string text = replayHeaderText(replay.header);
    for (const ReplayEvent& event : replay.events) {
        text += replayLine(event);
    }
    for (const NoiseChange& change : replay.noise) {
        text += replayLine(replay.until, change);
    }
    if (replay.end) {
        text += replayLine(*replay.end);
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto read = readReplay(text, "fuzz.replay");
    if (!read) {
        return 0;
    }
    const std::string once = written(*read);
    const auto again = readReplay(once, "again.replay");
    if (!again || written(*again) != once) {
        std::abort();
    }
    return 0;
}
