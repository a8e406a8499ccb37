// The rows of the table of faults that need no window: what a player is told, and what works still, when a
// file of the program or of the player is damaged, or the machine lacks something.
//
//     fault_rows FOLDER         a file of each kind
//     fault_rows FOLDER all     every file of the program's folder
//
// FOLDER/game is a copy of the program's folder, which is damaged in turn and left as it was; FOLDER/player
// is made. An administrator, whom no permission stops, would see another table.

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <span>

#include "base/watched_calls.h"
#include "base/windows1252.h"
#include "damages.h"
#include "evening.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

/// A kind of files, and where it counts.
struct Kind {
    std::string files; ///< as the table calls them
    std::vector<std::string> names;
    std::set<Station> stations; ///< besides the start
    bool isPlayers = false;     ///< lies in the player's folder
};

class Faults {
public:
    explicit Faults(fs::path folder) : folder_(std::move(folder)), game_(folder_ / "game") {}

    bool standsWhole();
    void tellOfKind(const Kind& kind);
    void tellOfMachine();
    const fs::path& game() const { return game_; }

private:
    Outcome spend(const std::set<Station>& stations, SoundFault fault = SoundFault::none);
    void renewPlayer();
    bool isPlayerAsBefore() const;
    std::string withoutFolders(std::string text) const;
    std::string messageOf(const Outcome& outcome) const;
    void tell(std::string_view what, std::string_view fault, const std::string& message,
              const std::string& works) const;

    fs::path folder_;
    fs::path game_;
    fs::path player_ = folder_ / "player";
    fs::path kept_ = folder_ / "kept"; // the player's files as they should be
};

std::string listed(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text;
}

std::string worksOf(const Outcome& outcome) {
    if (!outcome.hang.empty()) {
        return "**hangs**: " + outcome.hang;
    }
    if (!outcome.hasStarted) {
        return "does not start";
    }
    std::vector<std::string> without;
    for (const auto& [station, name] : namedStations) {
        if (outcome.failed.contains(station)) {
            without.emplace_back(name);
        }
    }
    if (!outcome.hasMusic) {
        without.emplace_back("music");
    }
    std::string text = without.empty() ? "plays on" : "plays on without " + listed(without);
    return text + (outcome.isAskedAsNewcomer ? ", after the question of the very first start" : "");
}

Outcome Faults::spend(const std::set<Station>& stations, SoundFault fault) {
    return spendEvening({game_, player_, stations, fault});
}

void Faults::renewPlayer() {
    fs::remove_all(player_);
    fs::copy(kept_, player_, fs::copy_options::recursive);
}

/// Whatever has been tried, no file of the player's has gone, changed or come.
bool Faults::isPlayerAsBefore() const {
    std::ptrdiff_t files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(kept_)) {
        ++files;
        const fs::path now = player_ / fs::relative(entry.path(), kept_);
        if (entry.is_regular_file() && readText(entry.path()) != readText(now)) {
            return false;
        }
    }
    return files == std::distance(fs::recursive_directory_iterator(player_), {});
}

std::string Faults::withoutFolders(std::string text) const {
    for (const auto& [folder, shown] : {std::pair(game_, ""), {player_, "~/"}}) {
        const std::string path = folder.string() + "/";
        for (auto at = text.find(path); at != std::string::npos; at = text.find(path)) {
            text.replace(at, path.size(), shown);
        }
    }
    for (const auto& [mark, shown] : {std::pair("\n", " "), {"|", "/"}, {"`", "'"}, {"<", "("}}) {
        for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark)) {
            text.replace(at, 1, shown);
        }
    }
    return text;
}

std::string Faults::messageOf(const Outcome& outcome) const {
    std::string message;
    for (const std::string& told : outcome.told) {
        message += (message.empty() ? "" : "<br>") + withoutFolders(toTerminal(told));
    }
    return message.empty() ? "none" : message;
}

void Faults::tell(std::string_view what, std::string_view fault, const std::string& message,
                  const std::string& works) const {
    std::printf("| %.*s | %.*s | %s | %s |\n", static_cast<int>(what.size()), what.data(),
                static_cast<int>(fault.size()), fault.data(), message.c_str(), works.c_str());
}

std::set<Station> everything() {
    std::set<Station> stations;
    for (const auto& [station, name] : namedStations) {
        stations.insert(station);
    }
    return stations;
}

/// Without any fault everything works, and nothing is told: else no row would mean anything.
bool Faults::standsWhole() {
    fs::remove_all(kept_);
    preparePlayer(game_, kept_);
    renewPlayer();
    const Outcome whole = spend(everything());
    const bool isWhole = whole.hasStarted && whole.told.empty() && whole.failed.empty() && whole.hasMusic &&
                         whole.hang.empty();
    if (!isWhole) {
        std::fprintf(stderr, "Without a fault: %s; %s\n", worksOf(whole).c_str(), messageOf(whole).c_str());
    }
    return isWhole;
}

/// Damages that come to the same stand in one row.
void Faults::tellOfKind(const Kind& kind) {
    std::vector<std::pair<std::pair<std::string, std::string>, std::vector<std::string>>> rows;
    for (const auto& [damage, name] : namedDamages) {
        renewPlayer();
        std::vector<fs::path> files;
        for (const std::string& file : kind.names) {
            files.push_back((kind.isPlayers ? player_ : game_) / file);
        }
        const DamagedFiles damaged(std::move(files), damage);
        const Outcome outcome = spend(kind.stations);
        std::string works = worksOf(outcome);
        if (kind.isPlayers) {
            works += damaged.areLeftAlone() ? "; it is left as it is" : "; it is written";
        }
        const std::pair row{messageOf(outcome), works};
        const auto same = std::ranges::find(rows, row, [](const auto& each) { return each.first; });
        if (same != rows.end()) {
            same->second.emplace_back(name);
        } else {
            rows.push_back({row, {std::string(name)}});
        }
    }
    for (const auto& [row, names] : rows) {
        tell(kind.files, listed(names), row.first, row.second);
    }
}

void Faults::tellOfMachine() {
    const std::set<Station> writing{Station::game, Station::ending, Station::options};
    const auto tellOfWriting = [&](std::string_view fault, const Outcome& outcome) {
        tell("the player's folder", fault, messageOf(outcome),
             worksOf(outcome) + (isPlayerAsBefore() ? "; nothing in it is lost" : "; **files differ**"));
    };
    renewPlayer();
    for (const auto& folder : {player_, player_ / "replays"}) {
        fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
    }
    tellOfWriting("read-only", spend(writing));
    for (const auto& folder : {player_, player_ / "replays"}) {
        fs::permissions(folder, fs::perms::owner_all);
    }
    renewPlayer();
    {
        WatchedCalls calls(player_);
        calls.writeError = ENOSPC;
        tellOfWriting("on a full disk", spend(writing));
    }
    {
        // Installed, the program has no folder that may be written.
        fs::permissions(game_, fs::perms::owner_read | fs::perms::owner_exec);
        const Outcome nowhere = spendEvening({game_, {}, writing});
        fs::permissions(game_, fs::perms::owner_all);
        tell("the player's folder", "none (no HOME)", messageOf(nowhere), worksOf(nowhere));
    }
    for (const auto& [fault, name] :
         {std::pair(SoundFault::missing, "missing"), {SoundFault::inUse, "in use"}}) {
        renewPlayer();
        const Outcome silent =
            spend({Station::opening, Station::game, Station::calls, Station::table}, fault);
        tell("sound device", name, messageOf(silent), worksOf(silent));
    }
    renewPlayer();
    const Outcome stopped = spend({Station::game, Station::stop, Station::ending});
    tell("the program", "stopped for a minute in play", messageOf(stopped), worksOf(stopped));
}

std::vector<std::string> ofEveryVoice(const fs::path& game, const std::string& word) {
    std::vector<std::string> names;
    for (int voice = 0; fs::exists(game / ("snd/pcm" + std::to_string(voice))); ++voice) {
        names.push_back("snd/pcm" + std::to_string(voice) + "/" + word);
    }
    return names;
}

std::string withTicks(const std::string& name, std::string_view also = "") {
    return "`" + name + "`" + std::string(also);
}

/// What each kind of the program's files, and of the player's, is there for.
std::vector<Kind> usualKinds(const fs::path& program) {
    using enum Station;
    const auto one = [](std::string name, std::string_view also, std::set<Station> stations) {
        const std::string shown = withTicks(name, also);
        return Kind{shown, {std::move(name)}, std::move(stations)};
    };
    const auto players = [](std::string name, std::string_view also, std::set<Station> stations) {
        const std::string shown = withTicks("~/" + name, also);
        return Kind{shown, {std::move(name)}, std::move(stations), true};
    };
    return {
        one("fonts/LiberationSans-Regular.ttf", ", and other faces", {}),
        {"all faces of `fonts/`",
         {"fonts/LiberationMono-Bold.ttf", "fonts/LiberationMono-Regular.ttf",
          "fonts/LiberationSans-Bold.ttf", "fonts/LiberationSans-Regular.ttf"},
         {}},
        one("grf/icon.grf", "", {}),
        one("grf/bkgnd8.grf", ", and all the console is made of", {}),
        one("grf/cloud0.grf", ", and other clouds", {game}),
        one("grf/curtain8.grf", "", {opening}),
        one("grf/splash.grf", "", {opening}),
        one("snd/scroll.snd", "", {opening}),
        one("mci/fade.mci", "", {opening}),
        one("mci/idle.mci", ", and other music", {}),
        one("snd/set.snd", ", `snd/control.snd`", {game}),
        one("snd/pnoise.snd", "", {game, calls}),
        {"`snd/pcm*/levelat.snd`, and other words of pilots",
         ofEveryVoice(program, "levelat.snd"),
         {game, calls}},
        one("apt/amsterdam8.apt", ", and other airspaces", {game}),
        one("grf/letterhead.grf", "", {game, page}),
        one("grf/movie_frame.grf", "", {film}),
        one("grf/main.avi", "", {film}),
        one("grf/main.snd", "", {film}),
        one("grf/hiscore.grf", "", {table}),
        one("grf/about.grf", "", {about}),
        one("lessons/1_scope.lesson", ", and other lessons", {lesson}),
        players(std::string(optionsName), ", the options", {game, options}),
        players("hiscore.dat", ", the scores", {game, ending, table}),
        players("shifts.txt", ", the list of shifts", {game, ending}),
        players(std::string(replayName), "", {replay}),
        players(std::string(ownAirspace), ", an airspace of one's own", {game}),
    };
}

/// Every file of the program's folder but the programs, with all that can be tried; of the pilots' words,
/// which are very many, with a call alone.
std::vector<Kind> everyFile(const fs::path& game) {
    std::vector<Kind> kinds;
    for (const auto& entry : fs::recursive_directory_iterator(game)) {
        const std::string name = fs::relative(entry.path(), game).string();
        if (entry.is_regular_file() && name.find('/') != std::string::npos) {
            const bool isWord = name.starts_with("snd/pcm");
            kinds.push_back(
                {withTicks(name), {name}, isWord ? std::set{Station::game, Station::calls} : everything()});
        }
    }
    std::ranges::sort(kinds, {}, &Kind::names);
    return kinds;
}

int tellAll(const fs::path& folder, bool isEveryFile) {
    Faults faults(folder);
    if (!faults.standsWhole()) {
        return EXIT_FAILURE;
    }
    for (const Kind& kind : isEveryFile ? everyFile(faults.game()) : usualKinds(faults.game())) {
        faults.tellOfKind(kind);
    }
    faults.tellOfMachine();
    return EXIT_SUCCESS;
}

} // namespace
} // namespace ventrel

int main(int count, char** words) {
    const std::span<char*> arguments(words, words + count);
    const bool isEveryFile = arguments.size() == 3 && std::string_view(arguments[2]) == "all";
    if (arguments.size() < 2 || (arguments.size() > 2 && !isEveryFile) || ::geteuid() == 0) {
        std::fputs("fault_rows FOLDER [all], and not as root\n", stderr);
        return EXIT_FAILURE;
    }
    return ventrel::tellAll(arguments[1], isEveryFile);
}
