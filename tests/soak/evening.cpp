#include "tests/soak/evening.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <exception>
#include <utility>

#include "audio/sound_system.h"
#include "console/window_size.h"
#include "records/high_scores.h"
#include "records/options_file.h"
#include "resources/option_rows.h"
#include "shell/program_data.h"
#include "shell/tick.h"
#include "tests/soak/gestures.h"
#include "tests/soak/picture_check.h"
#include "tests/soak/resources.h"

namespace ventrel {

namespace {

namespace fs = std::filesystem;

constexpr int gesturesOfAnEvening = 3000; // at most: not every monkey begins shifts
constexpr int gesturesBetweenWaysBack = 40;
constexpr int gesturesBetweenComparisons = 60;
constexpr int triesToLeave = 60;
constexpr auto latenesses = std::to_array<Millis>({0, 20, 200, 600, 600, 1000});

/// Of a program that has been played with; what caches and lists hold at most.
constexpr std::size_t mostGrowth = std::size_t{12} << 20;

/// A folder of the evening's own, gone with it.
class EveningFolder {
public:
    EveningFolder() : path_(fs::temp_directory_path() / ("ventrel-soak-" + std::to_string(::getpid()))) {
        fs::remove_all(path_);
        fs::create_directories(path_);
    }
    EveningFolder(const EveningFolder&) = delete;
    EveningFolder& operator=(const EveningFolder&) = delete;
    ~EveningFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

/// Options as another player might have left them, and shifts that do not take all night.
Options drawOptions(Chance& chance) {
    Options options;
    for (const OptionRow& row : optionRows) {
        const int value = options.*row.value;
        if (value == 0 || value == 1) {
            options.*row.value = chance.below(2);
        }
    }
    options.resolution = chance.oneIn(2) ? smallResolution : largeResolution;
    options.windowed = 1;
    options.airportSelect = chance.below(40);
    options.customPlanes = chance.between(1, 20);
    options.customSched = chance.between(1, 12) * 60;
    return options;
}

class Evening {
public:
    Evening(const EveningSetup& setup, Journal& journal, SoakCounts& counts)
        : setup_(setup), chance_(setup.seed), journal_(journal), counts_(counts), picture_(setup.pictures) {}

    void play() {
        OptionsStore(profile()).update([this](ProfileFile& file) {
            WriteOptions(drawOptions(chance_), file);
            file.set("Game", "Name", "mary");
            constexpr std::array skills{"0", "1", "4", "4", "4"};
            file.set("Game", "Skill", chance_.oneOf(skills));
        });
        while (!isOver()) {
            runProgram();
        }
    }

private:
    /// The program and all that it stands on, for one run.
    struct Run {
        SoakMachine machine;
        ProgramData data;
        SoundSystem sounds;
        OptionsStore store;
        Program program;
        int filesAtStart = openFiles();

        Run(Options& options, Size size, const fs::path& folder, FirstScene scene, Player player,
            std::uint32_t seed, bool hasSound)
            : machine(size), data(openProgramData(PROGRAM_FOLDER)),
              sounds(machine.device, machine.sequencer, PROGRAM_FOLDER), store(folder / "ventrel.ini"),
              program({machine.backend,
                       data.fonts,
                       sounds,
                       store,
                       {},
                       scene,
                       player,
                       [this] { return begun + std::chrono::seconds(machine.headless.now() / 1000); }},
                      {PROGRAM_FOLDER, folder, folder / "own"}, options, seed) {
            machine.device.broken = hasSound ? SoundFault::none : SoundFault::missing;
            std::tm today{};
            today.tm_mday = 25;
            today.tm_mon = 10;
            today.tm_year = 126;
            machine.headless.setToday(today);
        }
        UtcMoment begun{std::chrono::sys_days{std::chrono::year{2026} / 11 / 25}};
    };

    fs::path profile() const { return folder_.path() / "ventrel.ini"; }
    bool isOver() const {
        return hasFound_ || gestures_ >= gesturesOfAnEvening || check_.counts().begun >= setup_.shifts;
    }

    void runProgram() {
        OptionsStore stored(profile());
        Options options = ReadOptions(stored.now());
        const Size size = chooseWindowSize(options, {1280, 1024});
        const FirstScene scene = chance_.oneIn(6)    ? FirstScene::opening
                                 : chance_.oneIn(12) ? FirstScene::shiftOfTheDay
                                                     : FirstScene::console;
        const Player player = chance_.oneIn(8) ? Player::newcomer : Player::known;
        const std::uint32_t seed = static_cast<std::uint32_t>(chance_.below(1 << 30));
        Run run(options, size, folder_.path(), scene, player, seed, !chance_.oneIn(6));
        run_ = &run;
        ++counts_.programs;
        journal_.note("the program starts, scene " + std::to_string(static_cast<int>(scene)));
        Script(run.machine.headless).wait(20).then([this] { goOn(); });
        if (run.program.startUp()) {
            begunBefore_ = check_.counts().begun;
            bytesAtRest_ = 0;
            leaving_ = 0;
            isLooking_ = false;
            program().desktop().setIdle([this] { return isLooking_ ? std::nullopt : Tick(shell()); });
            run.program.run();
            const Options left = run.program.options();
            run.store.update([&](ProfileFile& file) { WriteOptions(left, file); });
            note(check_.programEnded());
            if (const auto trouble = run.store.takeFailure()) {
                found("the options could not be kept: " + trouble->text);
            }
            if (const auto scores = readHighScores(folder_.path() / highScoreFileName); !scores) {
                found("the table of scores is lost: " + scores.error().text);
            }
        } else {
            found("the program does not start");
        }
        run_ = nullptr;
    }

    Program& program() { return run_->program; }
    Shell& shell() { return run_->program.shell(); }

    // A step: the gesture's inputs, then everything that was due, then a full repaint, then the checks.

    void goOn() {
        if (program().desktop().isQuitting()) {
            return;
        }
        if (isOver()) {
            program().desktop().quit();
            return;
        }
        ++gestures_;
        ++counts_.gestures;
        run_->machine.forgetWhatWasHeard();
        comeBack();
        Hand hand(run_->machine.headless, journal_);
        Scene scene{program(), run_->machine, hand, chance_};
        run_->machine.backend.lateness = chance_.oneOf(latenesses);
        if (leaving_ > 0) {
            tryToLeave(scene, leaving_++ - 1);
        } else {
            makeGesture(scene);
        }
        // A machine delivers what it has at once; what is due at this moment, too, is seen to before the
        // look.
        hand.then([] {});
        hand.then([this] {
            isLooking_ = true; // nothing moves on meanwhile
            picture_.paintAll(program(), run_->machine.headless.screen());
        });
        hand.then([this] { look(); });
    }

    /// From the boss, or from nowhere.
    void comeBack() {
        if (run_->machine.headless.isMinimised() && (leaving_ > 0 || chance_.oneIn(2))) {
            journal_.note("restore");
            run_->machine.headless.restore();
        }
    }

    void look() {
        isLooking_ = false;
        if (program().desktop().isQuitting()) {
            return;
        }
        ++counts_.repaints;
        const std::string name = "seed" + std::to_string(setup_.seed);
        note(picture_.compare(program(), run_->machine.headless.screen(), name));
        if (shell().game.score < 0 || shell().log.story().score < 0) {
            found("the score is " + std::to_string(shell().game.score));
        }
        note(check_.follow(shell()));
        if (gestures_ % gesturesBetweenComparisons == 0) {
            ++counts_.comparisons;
            note(check_.compareNow(shell()));
        }
        noteWhatIsSeen();
        Hand hand(run_->machine.headless, journal_);
        const Standing standing = standingOf({program(), run_->machine, hand, chance_});
        followWayBack(standing);
        if (standing == Standing::console) {
            lookAtRest();
        }
        goOn();
    }

    void noteWhatIsSeen() {
        const Shell& now = shell();
        const std::array sights{
            std::pair{"lesson", now.lesson != nullptr},
            std::pair{"replay", isReplaying(now)},
            std::pair{"watched", isSteered(now) && !isReplaying(now)},
            std::pair{"practice", isPractice(now) && !isSteered(now) && now.lesson == nullptr},
            std::pair{"day", now.day.has_value() && now.game.isRunning()},
            std::pair{"paused", now.paused && now.game.isRunning()},
            std::pair{"rings", now.game.phase == Phase::rings},
            std::pair{"last-line", now.game.phase == Phase::lastLine},
            std::pair{"log", now.logWindow.isOpen()},
            std::pair{"minimised", run_->machine.headless.isMinimised()},
        };
        for (const auto& [name, isSeen] : sights) {
            counts_.seen[name] += isSeen ? 1 : 0;
        }
        const Window active = program().desktop().activeWindow();
        if (active.exists() && active != now.mainWindow) {
            const Size size = active.size();
            ++counts_.seen[std::to_string(size.width) + "x" + std::to_string(size.height)];
        }
    }

    void followWayBack(Standing standing) {
        const bool isThere = standing == Standing::console || standing == Standing::game;
        if (isThere) {
            counts_.left += leaving_ > 0 ? 1 : 0;
            leaving_ = 0;
        } else if (leaving_ > triesToLeave) {
            found("there is no way back to the console");
        } else if (leaving_ == 0 && gestures_ % gesturesBetweenWaysBack == 0) {
            leaving_ = 1;
        }
    }

    /// No game runs and nothing is open.
    void lookAtRest() {
        if (shell().game.phase != Phase::idle || shell().lesson || isReplaying(shell())) {
            return;
        }
        if (openFiles() != run_->filesAtStart) {
            found(std::to_string(openFiles()) + " files are open, at the start of the program " +
                  std::to_string(run_->filesAtStart));
        }
        const std::size_t now = bytesInUse();
        if (bytesAtRest_ == 0 && check_.counts().begun > begunBefore_ + 1) {
            bytesAtRest_ = now;
        }
        if (bytesAtRest_ != 0 && now > bytesAtRest_) {
            counts_.mostGrowth = std::max(counts_.mostGrowth, now - bytesAtRest_);
            if (now - bytesAtRest_ > mostGrowth) {
                found("memory has grown from " + std::to_string(bytesAtRest_) + " to " + std::to_string(now) +
                      " bytes in one program");
            }
        }
    }

    void note(const std::optional<std::string>& trouble) {
        if (trouble) {
            found(*trouble);
        }
    }

    void found(const std::string& what) {
        if (hasFound_) {
            return;
        }
        hasFound_ = true;
        std::string text = "seed " + std::to_string(setup_.seed) + ", gesture " + std::to_string(gestures_) +
                           ": " + what + "\nThe latest inputs:\n";
        for (const std::string& line : journal_.latest()) {
            text += "  " + line + "\n";
        }
        counts_.findings.push_back(std::move(text));
    }

    EveningSetup setup_;
    Chance chance_;
    Journal& journal_;
    SoakCounts& counts_;
    EveningFolder folder_;
    PictureCheck picture_;
    ShiftCheck check_;
    Run* run_ = nullptr;
    int gestures_ = 0;
    int leaving_ = 0; // the next try, from 1; 0: the monkey stays
    int begunBefore_ = 0;
    std::size_t bytesAtRest_ = 0;
    bool isLooking_ = false;
    bool hasFound_ = false;

public:
    const ShiftCheck& check() const { return check_; }
    void fail(const std::string& what) { found(what); }
};

void add(ShiftCounts& all, const ShiftCounts& more) {
    all.begun += more.begun;
    all.handled += more.handled;
    all.collisions += more.collisions;
    all.givenUp += more.givenUp;
    all.unended += more.unended;
    all.clockSeconds += more.clockSeconds;
    all.steps += more.steps;
    all.orders += more.orders;
}

} // namespace

void playEvening(const EveningSetup& setup, Journal& journal, SoakCounts& counts) {
    journal.begin("evening " + std::to_string(setup.seed));
    Evening evening(setup, journal, counts);
    try {
        evening.play();
    } catch (const std::exception& fault) {
        evening.fail(std::string("it threw: ") + fault.what());
    }
    ++counts.evenings;
    add(counts.shifts, evening.check().counts());
}

} // namespace ventrel
