#include "evening.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>

#include "audio/sound_system.h"
#include "damages.h"
#include "platform/headless/headless_sound.h"
#include "platform/headless/script.h"
#include "records/high_scores.h"
#include "records/options_file.h"
#include "replay/replay_folder.h"
#include "shell/commands.h"
#include "shell/game_flow.h"
#include "shell/high_score_dialog.h"
#include "shell/presentations.h"
#include "shell/program.h"
#include "shell/program_data.h"
#include "shell/steered_play.h"
#include "story/shift_history.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr Size picture{800, 600};
constexpr std::uint32_t seed = 7;
constexpr Millis aMoment = 30;
constexpr Millis aWhile = 7000; // longer than anything is locked for
constexpr Millis aMinute = 60'000;
constexpr int mostSkips = 12;                // until a pilot has called
constexpr int mostEscapes = 6;               // until the console is in front again
constexpr std::size_t shortestCall = 13'000; // samples; all effects in play are shorter
constexpr std::string_view midiMark = "MThd";
constexpr UtcMoment evenings = std::chrono::sys_days{std::chrono::January / 3 / 2026};

class Evening {
public:
    explicit Evening(const EveningSetup& setup) : setup_(setup) {
        sound_.broken = setup.soundFault;
        options_ = ReadOptions(store_.atStart());
        options_.resolution = smallResolution;
    }

    Outcome spend();

private:
    using Task = std::function<void(Script&)>;

    Shell& shell() { return program_->shell(); }
    Desktop& desktop() { return program_->desktop(); }
    bool isConsoleInFront() { return shell().mainWindow.isActive(); }

    void todo(Task task) { tasks_.push_back(std::move(task)); }
    void press(Key key, Modifiers modifiers = {}, Millis then = aMoment) {
        todo([=](Script& script) { script.key(key, modifiers).wait(then); });
    }
    /// Does something from the program's own loop, as its commands are done.
    void act(std::function<void()> action) {
        todo([this, action = std::move(action)](Script& script) {
            shell().mainWindow.post(action);
            script.wait(aMoment);
        });
    }
    void command(int id) {
        act([this, id] { onCommand(shell(), id); });
    }
    void expect(Station station, std::function<bool()> isSo) {
        todo([this, station, isSo = std::move(isSo)](Script&) {
            if (!isSo()) {
                outcome_.failed.insert(station);
            }
        });
    }
    void expectWindow(Station station) {
        expect(station, [this] { return !isConsoleInFront(); });
    }

    void perform();
    void readBox(Script& script);
    void goBack(int tries = 0);
    void tryStation(Station station);
    void watchOpening();
    void startGame();
    void waitForCall(int skips);
    void beStopped();
    void endWithScore();
    void watchFilm();
    void takeLesson();
    void watchReplay();
    void changeOption();
    std::optional<std::size_t> shiftCount() const;
    bool isScoreKept();

    EveningSetup setup_;
    Outcome outcome_;
    HeadlessBackend backend_{picture};
    HeadlessSound sound_{[this] { return backend_.now(); }};
    HeadlessSequencer sequencer_{[this] { return backend_.now(); }};
    SoundSystem sounds_{sound_, sequencer_, setup_.programFolder};
    OptionsStore store_{setup_.playerFolder.empty() ? fs::path() : setup_.playerFolder / optionsName};
    Options options_;
    std::optional<ProgramData> data_;
    std::optional<Program> program_;
    std::deque<Task> tasks_;
    std::ptrdiff_t boxesRead_ = 0;
    std::size_t soundsBefore_ = 0;
    ClockSeconds clockBefore_{0};
    int score_ = 0;
};

/// A box is heard, and nothing else with an icon is.
void Evening::perform() {
    Script script(backend_);
    const auto boxes =
        std::ranges::count_if(backend_.beeps(), [](MessageIcon icon) { return icon != MessageIcon::none; });
    if (boxes > boxesRead_) {
        readBox(script);
    } else if (tasks_.empty()) {
        desktop().quit();
        return;
    } else {
        const Task task = std::move(tasks_.front());
        tasks_.pop_front();
        std::deque<Task> rest;
        rest.swap(tasks_);
        task(script);
        std::ranges::move(rest, std::back_inserter(tasks_)); // what a task adds comes right after it
    }
    script.then([this] { perform(); });
}

void Evening::readBox(Script& script) {
    ++boxesRead_;
    backend_.setClipboard("");
    script.key(Key::c, withControl).then([this] {
        const std::string text = backend_.clipboard();
        if (std::ranges::find(outcome_.told, text) == outcome_.told.end()) {
            outcome_.told.push_back(text);
        }
    });
    script.key(Key::enter).wait(aMoment);
}

/// Whatever is open still is closed.
void Evening::goBack(int tries) {
    todo([this, tries](Script& script) {
        if (isConsoleInFront()) {
            return;
        }
        if (tries == mostEscapes) {
            throw std::logic_error("a window stays open");
        }
        script.key(tries % 2 == 0 ? Key::escape : Key::enter).wait(aWhile);
        goBack(tries + 1);
    });
}

void Evening::watchOpening() {
    todo([this](Script& script) {
        script.wait(aMinute / 60); // its curtain hangs
        soundsBefore_ = sound_.starts.size();
    });
    expect(Station::opening, [this] { return soundsBefore_ > 0 && !isConsoleInFront(); });
    todo([this](Script& script) {
        if (!isConsoleInFront()) {
            script.key(Key::escape).wait(aMoment);
        }
    });
}

void Evening::startGame() {
    todo([](Script& script) { script.key(Key::f, withAlt).type("n").wait(aMoment); });
    todo([](Script& script) { script.type("mary").wait(aMoment); });
    todo([this](Script& script) {
        if (!isConsoleInFront()) {
            shell().game.random.state = seed;
            script.key(Key::enter).wait(aMoment);
        }
    });
    expect(Station::game, [this] { return shell().game.isRunning(); });
}

void Evening::waitForCall(int skips) {
    todo([this, skips](Script& script) {
        const auto isCall = [](const HeadlessSound::Start& start) {
            return start.recording->size() >= shortestCall;
        };
        const bool isHeard = std::any_of(sound_.starts.begin() + static_cast<std::ptrdiff_t>(soundsBefore_),
                                         sound_.starts.end(), isCall);
        if (isHeard) {
            return;
        }
        if (skips == mostSkips || !shell().game.isRunning()) {
            outcome_.failed.insert(Station::calls);
            return;
        }
        script.key(Key::space).wait(aMinute / 10);
        waitForCall(skips + 1);
    });
}

void Evening::beStopped() {
    todo([this](Script& script) {
        clockBefore_ = shell().game.clock;
        backend_.standStill(aMinute);
        script.wait(aMoment);
    });
    expect(Station::stop, [this] {
        return shell().game.isRunning() && shell().game.clock - clockBefore_ <= ClockSeconds{1};
    });
}

/// None where the list cannot be read.
std::optional<std::size_t> Evening::shiftCount() const {
    const auto shifts = readShiftHistory(setup_.playerFolder / historyFileName);
    return shifts ? std::optional(shifts->size()) : std::nullopt;
}

bool Evening::isScoreKept() {
    const auto scores = readHighScores(shell().highScorePath);
    return scores && scores->front().score == score_;
}

/// With one better than all before it.
void Evening::endWithScore() {
    const auto shiftsBefore = shiftCount();
    const auto scores = readHighScores(setup_.playerFolder / highScoreFileName);
    score_ = (scores ? scores->front().score : 0) + 1;
    act([this] {
        shell().game.phase = Phase::lastLine;
        shell().game.score = score_;
        shell().events.shiftEnded(ShiftResult::everyFlightHandled);
    });
    todo([](Script& script) { script.wait(aMinute); });
    goBack();
    expect(Station::ending, [this] { return isScoreKept(); });
    expect(Station::list, [this, shiftsBefore] {
        const std::string& trouble = shell().keeping.trouble;
        if (!trouble.empty()) {
            outcome_.told.push_back("in the report: " + trouble);
        }
        return shiftsBefore && shiftCount() == *shiftsBefore + 1;
    });
}

void Evening::watchFilm() {
    act([this] {
        soundsBefore_ = sound_.starts.size();
        celebrate(shell(), 0);
    });
    expect(Station::film, [this] { return !isConsoleInFront() && sound_.starts.size() > soundsBefore_; });
}

void Evening::takeLesson() {
    command(command::lessons);
    todo([this](Script& script) {
        if (!isConsoleInFront()) {
            script.key(Key::enter).wait(aMoment);
        }
    });
    expect(Station::lesson, [this] { return shell().lesson != nullptr; });
    act([this] {
        if (shell().lesson) {
            leaveLesson(shell());
        }
    });
}

void Evening::watchReplay() {
    command(command::replays);
    todo([this](Script& script) {
        if (!isConsoleInFront()) {
            script.key(Key::enter).wait(aMoment);
        }
    });
    expect(Station::replay, [this] { return isSteered(shell()); });
    todo([this](Script& script) {
        if (!isConsoleInFront()) {
            script.key(Key::escape).wait(aMoment);
        }
    });
    act([this] {
        if (isSteered(shell())) {
            abandonGame(shell());
        }
    });
}

void Evening::changeOption() {
    todo([this](Script&) { shell().options.showGrid = 0; });
    command(command::grid);
    expect(Station::options,
           [this] { return ReadOptions(store_.now()).showGrid == 1 && !setup_.playerFolder.empty(); });
}

void Evening::tryStation(Station station) {
    switch (station) {
    case Station::opening: watchOpening(); break;
    case Station::game: startGame(); break;
    case Station::calls:
        todo([this](Script&) { soundsBefore_ = sound_.starts.size(); });
        waitForCall(0);
        break;
    case Station::stop: beStopped(); break;
    case Station::ending: endWithScore(); break;
    case Station::list: break; // seen to at the ending
    case Station::page:
        act([this] { reportCollision(shell()); });
        expectWindow(station);
        break;
    case Station::film: watchFilm(); break;
    case Station::table:
        act([this] { ShowHighScores(shell()); });
        expectWindow(station);
        break;
    case Station::about:
        command(command::about);
        expectWindow(station);
        break;
    case Station::lesson: takeLesson(); break;
    case Station::replay: watchReplay(); break;
    case Station::options: changeOption(); break;
    }
    goBack();
}

Outcome Evening::spend() {
    data_.emplace(openProgramData(setup_.programFolder));
    if (!data_->fonts.hasFaces()) {
        outcome_.told.push_back("on the terminal: " + data_->troubles.front());
        return outcome_;
    }
    const bool hasOpening = setup_.stations.contains(Station::opening);
    outcome_.isAskedAsNewcomer = store_.isFirstStart();
    program_.emplace(ProgramParts{backend_, data_->fonts, sounds_, store_, data_->troubles,
                                  hasOpening ? FirstScene::opening : FirstScene::console,
                                  store_.isFirstStart() ? Player::newcomer : Player::known,
                                  [] { return evenings; }},
                     ProgramPlaces{setup_.programFolder, setup_.playerFolder, setup_.playerFolder / "apt"},
                     options_, seed);
    Script(backend_).wait(aMoment).then([this] { perform(); });
    try {
        if (program_->startUp()) {
            if (hasOpening) {
                tryStation(Station::opening);
            }
            todo([this](Script& script) {
                script.wait(aMoment);
                outcome_.hasStarted = backend_.isShown() && shell().mainWindow.isVisible();
            });
            goBack();
            for (const Station station : setup_.stations) {
                if (station != Station::opening) {
                    tryStation(station);
                }
            }
            program_->run();
            store_.update([this](ProfileFile& profile) { WriteOptions(program_->options(), profile); });
        }
    } catch (const std::logic_error& error) {
        outcome_.hang = error.what();
    }
    const auto isMusic = [](const HeadlessSequencer::Start& start) {
        const auto* const text = reinterpret_cast<const char*>(start.midi.data());
        return std::string_view(text, start.midi.size()).starts_with(midiMark);
    };
    outcome_.hasMusic = std::ranges::any_of(sequencer_.starts, isMusic);
    return outcome_;
}

} // namespace

Outcome spendEvening(const EveningSetup& setup) {
    return Evening(setup).spend();
}

void preparePlayer(const fs::path& programFolder, const fs::path& playerFolder) {
    fs::create_directories(playerFolder / "apt");
    writeText(playerFolder / optionsName, "[Options]\nVoice=1\n[Game]\nName=mary\nSkill=0\n");
    fs::copy_file(programFolder / "apt/atlanta8.apt", playerFolder / ownAirspace);
    spendEvening({programFolder, playerFolder, {Station::game, Station::calls, Station::ending}});
    for (const auto& file : listReplays(playerFolder / replayFolderName)) {
        fs::rename(file.file, playerFolder / replayName);
    }
}

} // namespace ventrel
