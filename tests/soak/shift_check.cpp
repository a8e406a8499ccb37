#include "tests/soak/shift_check.h"

#include "records/airport_catalogue.h"
#include "replay/replay_airspace.h"
#include "replay/replay_reader.h"
#include "tools/sim/shift_run.h"
#include "tools/sim/trace_writer.h"

namespace ventrel {

namespace {

/// Plays without writing anything down.
class Nobody final : public Recorder {
public:
    using Recorder::Recorder;

    void shiftSetUp() override {}
    void stepTaken() override {}
    void runEnded(const RunResult&) override {}
};

/// All that is to be known of a game between two steps.
std::string stateText(const Game& game) {
    Output output;
    TraceWriter writer(output, game);
    writer.shiftSetUp();
    writer.stepTaken();
    output << "lamp " << static_cast<int>(game.litLamp) << ", free orders " << game.freeOrders
           << ", generator " << std::string_view(std::to_string(game.random.state));
    return output.text();
}

/// The first place at which two texts part, from both.
std::string parting(const std::string& here, const std::string& there) {
    constexpr std::size_t shown = 120;
    const auto differs = std::mismatch(here.begin(), here.end(), there.begin(), there.end());
    const auto at = static_cast<std::size_t>(differs.first - here.begin());
    const std::size_t from = at < shown / 2 ? 0 : at - shown / 2;
    return "'" + here.substr(from, shown) + "' in the window, '" + there.substr(from, shown) + "' alone";
}

void playAll(Playback& playback, Game& game) {
    Nobody nobody(game);
    runReplay(game, nobody, playback, ClockSeconds{latestReplayClock});
}

} // namespace

Result<AirspacePtr> ShiftCheck::airspaceOf(const Replay& replay) {
    const auto known = airspaces_.find(replay.header.airspaceChecksum);
    if (known != airspaces_.end()) {
        return known->second;
    }
    const std::array folders{airportFolder(program_), players_};
    auto found = findReplayAirspace(replay.header, folders);
    if (found) {
        airspaces_[replay.header.airspaceChecksum] = *found;
    }
    return found;
}

ShiftCheck::Trouble ShiftCheck::follow(const Shell& shell) {
    program_ = shell.programFolder;
    players_ = shell.playersAirports;
    const std::filesystem::path& now = shell.replayWriter.file();
    if (now == known_) {
        return file_.empty() || shell.game.isRunning() ? std::nullopt : close();
    }
    Trouble trouble = close();
    known_ = now;
    file_ = now;
    ++counts_.begun;
    return trouble;
}

ShiftCheck::Trouble ShiftCheck::close() {
    if (file_.empty()) {
        return std::nullopt;
    }
    return prove(std::exchange(file_, {}));
}

ShiftCheck::Trouble ShiftCheck::programEnded() {
    Trouble trouble = close();
    known_.clear();
    return trouble;
}

ShiftCheck::Trouble ShiftCheck::prove(const std::filesystem::path& file) {
    std::error_code gone;
    if (!std::filesystem::exists(file, gone)) {
        return std::nullopt; // deleted in the dialog, or renamed
    }
    auto replay = readReplay(file);
    if (!replay) {
        return "the replay cannot be read: " + replay.error().text;
    }
    const auto airspace = airspaceOf(*replay);
    auto game = airspace ? replayedGame(*replay, *airspace) : tl::unexpected(airspace.error());
    if (!game) {
        return "the replay cannot be played: " + game.error().text;
    }
    const std::optional<ReplayEnd> end = replay->end;
    for (const ReplayEvent& event : replay->events) {
        counts_.steps += std::holds_alternative<ReplayedStep>(event.what) ? 1 : 0;
        counts_.orders += std::holds_alternative<ReplayedOrder>(event.what) ? 1 : 0;
    }
    counts_.clockSeconds += replay->until.count();
    counts_.unended += end ? 0 : 1;
    counts_.handled += end && end->outcome == ReplayOutcome::handled ? 1 : 0;
    counts_.collisions += end && end->outcome == ReplayOutcome::collision ? 1 : 0;
    counts_.givenUp += end && end->outcome == ReplayOutcome::givenUp ? 1 : 0;
    Playback playback{std::move(*replay)};
    playAll(playback, *game);
    if (playback.deviation()) {
        return "the simulation alone plays another shift: " + playback.deviation()->text;
    }
    const auto proven = playback.proven(*game);
    return end && !proven ? Trouble("the simulation alone ends another shift: " + proven.error().text)
                          : std::nullopt;
}

ShiftCheck::Trouble ShiftCheck::compareNow(const Shell& shell) {
    std::error_code gone;
    if (file_.empty() || !shell.game.isRunning() || shell.lesson || !std::filesystem::exists(file_, gone)) {
        return std::nullopt;
    }
    auto replay = readReplay(file_);
    if (!replay) {
        return "the replay cannot be read: " + replay.error().text;
    }
    if (replay->end) {
        return std::nullopt; // something else is on the console
    }
    const auto airspace = airspaceOf(*replay);
    auto game = airspace ? replayedGame(*replay, *airspace) : tl::unexpected(airspace.error());
    if (!game) {
        return "the replay cannot be played: " + game.error().text;
    }
    Playback playback{std::move(*replay)};
    playAll(playback, *game);
    game->clock = shell.game.clock;
    const std::string here = stateText(shell.game);
    const std::string there = stateText(*game);
    return here == there ? std::nullopt : Trouble(parting(here, there));
}

} // namespace ventrel
