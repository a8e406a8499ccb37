// The reader of lessons against any bytes; what it accepts can be checked, and followed when it is well.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "lessons/lesson_file.h"
#include "lessons/lesson_follower.h"
#include "lessons/lesson_shift.h"

namespace {

/// An airspace with the points that the corpus names.
ventrel::AirspacePtr smallAirspace() {
    using namespace ventrel;
    Airspace airspace;
    airspace.points.resize(2);
    airspace.points[0].ident = "ATL";
    airspace.points[0].isAirport = true;
    airspace.points[0].pixel = {308, 275};
    airspace.points[1].ident = "AHN";
    airspace.points[1].isExit = true;
    airspace.points[1].pixel = {451, 231};
    return std::make_shared<const Airspace>(std::move(airspace));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ventrel;
    constexpr int steps = 40;
    const auto lesson = readLesson({reinterpret_cast<const char*>(data), size}, "fuzz.lesson");
    if (!lesson) {
        return lesson.error().text.starts_with("fuzz.lesson:") ? 0 : (std::abort(), 0);
    }
    const AirspacePtr airspace = smallAirspace();
    if (!checkLesson(*lesson, *airspace)) {
        return 0;
    }
    Game game = makeLessonGame(*lesson, airspace, {});
    LessonFollower follower(*lesson);
    for (int i = 0; i < steps && step(game, follower); ++i) {
        follower.noteRead();
        follower.follow({game, FlightIndex{0}, game.flights.front().current(), false});
        for (const FlightIndex flight : follower.takeBrought()) {
            bringFlight(game, flight);
        }
    }
    return 0;
}
