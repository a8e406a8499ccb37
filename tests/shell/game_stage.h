// The whole game on a machine in memory, and a person who plays it: clicks, keys, and looks in between.
//
//     GameStage stage;
//     stage.todo([](Script& script) { script.key(Key::f, withAlt).type("n").key(Key::enter); });
//     stage.look([&] { EXPECT_TRUE(stage.shell().game.isRunning()); });
//     stage.play();

#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/temp_folder.h"
#include "platform/headless/script.h"
#include "platform/widgets/message_box.h"
#include "shell/program.h"

namespace ventrel {

/// Writes down what is to be heard.
class HeardSounds : public GameSounds {
public:
    std::vector<std::string> heard; ///< "click", "set", "select", "stop", and names of effects and music

    SoundFault fault = SoundFault::none; ///< what keeps the machine silent
    std::string unreadable;              ///< an effect whose file is damaged

    Result<SoundFault> start() override {
        return unreadable.empty() ? Result<SoundFault>(fault) : failed(unreadable);
    }
    void choose(const SoundChoices& choices) override { choices_ = choices; }
    const SoundChoices& choices() const { return choices_; }
    Result<bool> playEffect(std::string_view name) override {
        return choices_.effects ? hear(std::string(name)) : false;
    }
    void clickControl() override { heard.emplace_back("click"); }
    void clickSet() override { heard.emplace_back("set"); }
    Result<bool> clickSelect() override { return hear("select"); }
    Result<bool> speak(const SpokenCall& call, RandomGenerator&) override {
        return choices_.voices ? hear("radio " + std::string(call.phrase)) : false;
    }
    void stopEffects() override { heard.emplace_back("stop effects"); }
    bool isAnyPlaying() const override { return false; }
    bool playMusic(std::string_view name, bool repeat) override {
        if (choices_.music) {
            heard.push_back(std::string(name) + (repeat ? " again and again" : ""));
        }
        return choices_.music;
    }
    void stopMusic() override { heard.emplace_back("stop music"); }
    bool isMusicPlaying() const override { return false; }
    int voiceSetCount() const override { return 0; }

    int count(std::string_view sound) const;

private:
    Result<bool> hear(std::string sound) {
        if (sound == unreadable) {
            return failed(sound);
        }
        heard.push_back(std::move(sound));
        return true;
    }

    SoundChoices choices_;
};

/// A piece of a picture.
Bitmap pictureOf(const Bitmap& screen, const Rect& part);

/// The box around all pixels that differ between two pictures of one size; an empty one when none does.
Rect differenceOf(const Bitmap& before, const Bitmap& after);

class GameStage {
public:
    using Task = std::function<void(Script&)>;

    /// The program at that window width, with an options file of that text.
    explicit GameStage(int windowWidth = 1024, std::string_view profileText = "[Game]\nName=mary\nSkill=1\n",
                       const std::filesystem::path& programFolder = PROGRAM_FOLDER,
                       FirstScene firstScene = FirstScene::console,
                       GameSounds* otherSounds = nullptr); ///< in place of `sounds`

    HeadlessBackend backend;
    HeardSounds sounds;
    std::chrono::seconds clockGoesBy{0}; ///< that the common time is ahead of the machine's

    Shell& shell() { return program_->shell(); }
    Game& game() { return shell().game; }
    Desktop& desktop() { return program_->desktop(); }
    Program& program() { return *program_; }
    const std::filesystem::path& profile() const { return profile_; }
    /// A folder for the player's own airport files, which is not there yet.
    std::filesystem::path playersAirports() const { return folder_ / "own"; }

    /// Adds to the list of what the person does; each entry begins when all that came before has been done.
    /// What an entry adds while it is being done comes right after it.
    void todo(Task task) { tasks_.push_back(std::move(task)); }
    /// Looks, or changes something behind the program's back.
    void look(std::function<void()> action) {
        todo([action = std::move(action)](Script&) { action(); });
    }
    void wait(Millis duration) {
        todo([duration](Script& script) { script.wait(duration); });
    }

    /// File, New Game, and OK; then `seed` has drawn the shift.
    void startNewGame(std::uint32_t seed = 7);
    /// The clock skips to its next multiple of 15, and the radar shows what has become of the flights.
    void skip();
    void skipTo(ClockSeconds clock);

    /// Selects a listed flight by its strip's button, after scrolling to it.
    void selectByStrip(FlightIndex flight);
    /// Sets that order on the panel by the mouse and presses Enter.
    void sendByPanel(const PlanStep& order);

    /// Does all that is to be done, and leaves the program.
    void play();

    /// A point of the main window on the radar, the panel, the console.
    Point onRadar(Cell cell);
    Point onPanel(Point panel);
    /// Of an aircraft as it is drawn now.
    Point onFlight(FlightIndex flight);

    /// Whether a dialog or a message box is open.
    bool isDialogOpen();

private:
    void perform();

    TempFolder folder_;
    std::filesystem::path profile_;
    FontSet fonts_;
    std::unique_ptr<OptionsStore> store_;
    std::unique_ptr<Program> program_;
    std::deque<Task> tasks_;
};

} // namespace ventrel
