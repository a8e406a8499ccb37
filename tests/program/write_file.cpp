// Writes one of the player's files as the game does, for the script that kills it meanwhile:
//
//     write_file score|options|shift|replay FILE

#include <cstdlib>
#include <span>
#include <string_view>

#include "base/profile_file.h"
#include "records/high_scores.h"
#include "replay/replay_writer.h"
#include "story/shift_history.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

bool enterScore(const fs::path& file) {
    const auto made = makeHighScoreFile(file);
    const auto place = InsertHighScore(file, {"Bob", 900, "New York"});
    return made && place && place->row && place->saved;
}

bool changeOption(const fs::path& file) {
    auto profile = ProfileFile::read(file);
    if (!profile) {
        return false;
    }
    profile->set("Options", "Music", std::to_string(1 - profile->integer("Options", "Music", 0)));
    return profile->save().has_value();
}

bool addShift(const fs::path& file) {
    PastShift shift;
    shift.date = "2026-01-02 03:04";
    shift.airspace = "Harbour";
    shift.flights = 1;
    return addToShiftHistory(file, shift).has_value();
}

/// A few lines into a new file.
bool writeReplay(const fs::path& file) {
    Game game;
    ReplayWriter writer(game);
    if (!writer.begin(file, {})) {
        return false;
    }
    for (int step = 0; step < 3; ++step) {
        writer.stepBegun();
    }
    writer.giveUp();
    return true;
}

} // namespace
} // namespace ventrel

int main(int count, char** words) {
    using namespace ventrel;
    const std::span<char*> arguments(words, words + count);
    if (arguments.size() != 3) {
        return EXIT_FAILURE;
    }
    const std::string_view what = arguments[1];
    const std::filesystem::path file = arguments[2];
    const bool isWritten = what == "score"     ? enterScore(file)
                           : what == "options" ? changeOption(file)
                           : what == "shift"   ? addShift(file)
                           : what == "replay"  ? writeReplay(file)
                                               : false;
    return isWritten ? EXIT_SUCCESS : EXIT_FAILURE;
}
