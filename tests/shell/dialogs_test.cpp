// Every dialog's plan, and how the game's own dialogs look.

#include <ctime>
#include <map>
#include <set>

#include "console/steering_bar_layout.h"
#include "golden.h"
#include "platform/text/text.h"
#include "platform/widgets/menu.h"
#include "platform/widgets/widget_place.h"
#include "replay/replay_text.h"
#include "resources/accelerators.h"
#include "resources/aids_dialog.h"
#include "resources/dialogs.h"
#include "resources/help.h"
#include "resources/lesson_dialogs.h"
#include "shell/game_stage.h"
#include "shell/help_dialog.h"
#include "shell/lesson_dialogs.h"
#include "shell/plain_program.h"
#include "shell/replay_keeping.h"

namespace ventrel {
namespace {

struct NamedShape {
    std::string name;
    Size size;
    std::vector<ControlTemplate> controls;
};

NamedShape shapeOf(std::string name, const DialogTemplate& shape) {
    return {std::move(name), shape.size, {shape.controls.begin(), shape.controls.end()}};
}

/// All dialogs; of Help what is to be seen of one topic.
std::vector<NamedShape> allShapes() {
    std::vector<NamedShape> shapes{shapeOf("New Game", new_game::shape),
                                   shapeOf("Custom Skill", custom_skill::shape),
                                   shapeOf("Choose Airport", choose_airport::shape),
                                   shapeOf("Schedule", schedule::shape),
                                   shapeOf("Shift Report", shift_report::shape),
                                   shapeOf("About", about::shape),
                                   shapeOf("Aids", aids::shape),
                                   shapeOf("Watch a Shift", watch_shift::shape),
                                   shapeOf("Replays", replay_list::shape),
                                   shapeOf("Keep Replay As", keep_replay::shape),
                                   shapeOf("Jump", jump_to::shape),
                                   shapeOf("Shift of the Day", shift_of_day::shape),
                                   shapeOf("Result of the Day", day_result::shape),
                                   shapeOf("Lessons", lesson_list::shape),
                                   shapeOf("First start", first_start::shape)};
    for (std::size_t topic = 0; topic < help::topics.size(); ++topic) {
        NamedShape page{"Help, " + std::string(help::topics[topic]), help::shape.size, {}};
        const int first = help::pageControl(topic, 0);
        for (const ControlTemplate& control : help::controls) {
            const bool isOfPage = control.id >= first && control.id < help::pageControl(topic + 1, 0);
            if (isOfPage || control.id < help::pageControl(0, 0)) {
                page.controls.push_back(control);
            }
        }
        shapes.push_back(std::move(page));
    }
    return shapes;
}

bool contains(const Rect& outer, const Rect& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

bool takesFocus(const ControlTemplate& control) {
    return control.kind != ControlKind::staticText && control.kind != ControlKind::groupBox;
}

/// Two controls may lie over each other only where one is a group around the other.
bool mayMeet(const ControlTemplate& a, const ControlTemplate& b) {
    const bool isGroup = a.kind == ControlKind::groupBox;
    return !a.place.intersects(b.place) || (isGroup && contains(a.place, b.place));
}

TEST(Dialogs, LeaveRoomForEveryControl) {
    for (const NamedShape& shape : allShapes()) {
        const Rect inside{0, 0, shape.size.width, shape.size.height};
        std::set<int> ids;
        for (std::size_t i = 0; i < shape.controls.size(); ++i) {
            const ControlTemplate& control = shape.controls[i];
            SCOPED_TRACE(shape.name + ": " + std::string(control.text) + " " + std::to_string(control.id));
            EXPECT_TRUE(contains(inside, control.place));
            EXPECT_TRUE(control.id == 0 || ids.insert(control.id).second) << "its number is taken";
            for (std::size_t j = i + 1; j < shape.controls.size(); ++j) {
                EXPECT_TRUE(mayMeet(control, shape.controls[j]) || mayMeet(shape.controls[j], control))
                    << "lies over " << shape.controls[j].text << " " << shape.controls[j].id;
            }
        }
    }
}

TEST(Dialogs, GoFromControlToControlAsOneReads) {
    for (const NamedShape& shape : allShapes()) {
        const ControlTemplate* last = nullptr;
        std::set<char> letters;
        int defaults = 0;
        for (const ControlTemplate& control : shape.controls) {
            SCOPED_TRACE(shape.name + ": " + std::string(control.text) + " " + std::to_string(control.id));
            const char letter = mnemonicOf(control.text);
            EXPECT_TRUE(letter == '\0' || letters.insert(letter).second) << "its letter is taken";
            defaults += control.kind == ControlKind::defaultButton ? 1 : 0;
            if (!takesFocus(control)) {
                continue;
            }
            const bool isNext = last == nullptr || control.place.top > last->place.top ||
                                control.place.left >= last->place.right;
            EXPECT_TRUE(isNext) << "it comes after " << last->text << " " << last->id;
            last = &control;
        }
        EXPECT_EQ(defaults, 1) << shape.name;
    }
}

/// Pixels that a control's frame and marks take from its text.
Size trimOf(ControlKind kind) {
    switch (kind) {
    case ControlKind::pushButton:
    case ControlKind::defaultButton: return {8, 6};
    case ControlKind::checkBox:
    case ControlKind::radioButton: return {17, 0};
    default: return {};
    }
}

class DialogLooks : public ::testing::Test {
protected:
    DialogLooks() { makePlainProgram(folder_.path()); }

    void expectDialog(GameStage& stage, const std::string& name) {
        stage.look([&stage, name] {
            ASSERT_TRUE(stage.isDialogOpen()) << name;
            expectGolden(pictureOf(stage.backend.screen(), stage.desktop().activeWindow().bounds()),
                         "dialog_" + name);
        });
    }
    static void press(GameStage& stage, Key key) {
        stage.todo([key](Script& script) { script.key(key).wait(1); });
    }

    TempFolder folder_;
};

TEST_F(DialogLooks, TextsAreNotCut) {
    FontSet faces(std::filesystem::path(PROGRAM_FOLDER) / "fonts");
    const Font& font = widgetFontsOf(faces).text;
    for (const NamedShape& shape : allShapes()) {
        for (const ControlTemplate& control : shape.controls) {
            const Rect place = dialogUnitsToPixels(control.place);
            const bool wraps = (control.style & multiLine) != 0;
            const Size text =
                measureText(font, control.text, place.width(), {.wrap = wraps, .mnemonics = true});
            const Size trim = trimOf(control.kind);
            EXPECT_LE(text.width + trim.width, place.width()) << shape.name << ": " << control.text;
            EXPECT_LE(text.height + trim.height, place.height()) << shape.name << ": " << control.text;
        }
    }
}

TEST_F(DialogLooks, NewGameAndWhatItOpens) {
    GameStage stage(800, "[Game]\nName=mary\nSkill=4\n", folder_.path());
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("n").wait(1); });
    expectDialog(stage, "new_game");
    press(stage, Key::enter);
    expectDialog(stage, "custom_skill");
    press(stage, Key::escape);
    stage.todo([](Script& script) { script.key(Key::c, withAlt).wait(1).key(Key::down).wait(1); });
    expectDialog(stage, "choose_airport");
    press(stage, Key::escape);
    stage.todo([&stage](Script& script) {
        const Rect bounds = stage.desktop().activeWindow().bounds();
        script.click({bounds.left + 40, bounds.top + 60}).wait(1); // Easy
    });
    expectDialog(stage, "new_game_easy");
    press(stage, Key::escape);
    stage.play();
}

TEST_F(DialogLooks, ScheduleAndAbout) {
    GameStage stage(800, "[Game]\nName=mary\nSkill=1\n", folder_.path());
    stage.startNewGame();
    stage.skipTo(300_s);
    stage.look([&] { stage.game().score = 225; });
    stage.todo([](Script& script) { script.key(Key::s, withControl).wait(1); });
    expectDialog(stage, "schedule");
    press(stage, Key::enter);
    stage.todo([](Script& script) { script.key(Key::h, withAlt).type("a").wait(1); });
    expectDialog(stage, "about");
    press(stage, Key::enter);
    stage.play();
}

TEST_F(DialogLooks, AidsLessonsAndTheFirstStart) {
    GameStage stage(800, "[Options]\nAidTidyTags=1\n[Lessons]\n1_scope=1\n");
    stage.todo([](Script& script) { script.key(Key::o, withAlt).type("i").wait(1); });
    expectDialog(stage, "aids");
    press(stage, Key::escape);
    stage.todo([](Script& script) { script.key(Key::h, withAlt).type("l").wait(1); });
    expectDialog(stage, "lessons");
    press(stage, Key::escape);
    stage.look([&stage] { stage.shell().mainWindow.post([&stage] { welcomeNewcomer(stage.shell()); }); });
    stage.wait(1);
    expectDialog(stage, "first_start");
    press(stage, Key::escape);
    stage.play();
}

/// What became of a replay, and its name without the extension.
struct MadeReplay {
    std::string name;
    ReplayKind kind;
    std::optional<ReplayOutcome> outcome;
    int score;
};

/// Such a replay of San Francisco, whose shift was begun in that minute of an hour where the player is.
void makeReplay(const std::filesystem::path& folder, const MadeReplay& made, int minute) {
    const AirspacePtr airspace =
        loadAirport(std::filesystem::path(PROGRAM_FOLDER) / "apt" / "san_francisco8.apt").value();
    const ShiftSetup setup{.skill = Skill::moderate, .controllerName = "mary"};
    ReplayHeader header = replayHeader({airspace, setup, RandomGenerator{7}}, setup, 7);
    std::tm local{};
    local.tm_year = 126;
    local.tm_mon = 10;
    local.tm_mday = 24;
    local.tm_hour = 20;
    local.tm_min = minute;
    local.tm_isdst = -1;
    header.begun =
        std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::from_time_t(std::mktime(&local)));
    header.airspaceFile = "san_francisco8.apt";
    header.kind = made.kind;
    std::string text =
        replayHeaderText(header) + replayLine({.clock = 600_s, .what = ReplayedStep{1, made.score}});
    if (made.outcome) {
        text += replayLine(ReplayEnd{615_s, *made.outcome, made.score});
    }
    writeText(folder / (made.name + ".replay"), text);
}

TEST_F(DialogLooks, ReplaysAndWhatTheyOpen) {
    GameStage stage(800, "[Game]\nName=mary\nSkill=1\n", folder_.path());
    stage.look([&stage] {
        const std::filesystem::path folder = replayFolder(stage.shell());
        std::filesystem::create_directories(folder);
        int minute = 0;
        for (const MadeReplay& made : std::to_array<MadeReplay>({
                 {"shift 2026-11-24 20-00-00", ReplayKind::scored, ReplayOutcome::handled, 4725},
                 {"shift 2026-11-24 20-01-00", ReplayKind::practice, {}, 75},
                 {"shift 2026-11-24 20-02-00", ReplayKind::day, ReplayOutcome::collision, 1150},
                 {"The best of mine so far, and then some", ReplayKind::scored, ReplayOutcome::givenUp, 900},
             })) {
            makeReplay(folder, made, minute++);
        }
        writeText(folder / "shift 2026-11-24 20-09-00.replay", "damaged");
    });
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("r").wait(1); });
    expectDialog(stage, "replays");
    stage.todo([](Script& script) { script.key(Key::k, withAlt).wait(1); });
    expectDialog(stage, "keep_replay");
    press(stage, Key::escape);
    stage.todo([](Script& script) { script.key(Key::end).wait(1).key(Key::enter).wait(1); });
    stage.look([&stage] { EXPECT_TRUE(stage.isDialogOpen()) << "why the damaged one cannot be watched"; });
    press(stage, Key::enter);
    stage.todo([](Script& script) {
        const SteeringBarLayout& bar = smallSteeringBar;
        script.key(Key::home).wait(1).key(Key::enter).wait(20);
        script.click(bar.more.movedBy(bar.whole.topLeft()).topLeft() + Point{5, 5}).wait(20);
    });
    expectDialog(stage, "jump");
    press(stage, Key::escape);
    stage.play();
}

TEST_F(DialogLooks, TheShiftOfTheDay) {
    GameStage stage(800, "[Game]\nName=mary\n[Day]\nDate=2026-11-25\nScore=3375\n", folder_.path());
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("d").wait(1); });
    expectDialog(stage, "day");
    press(stage, Key::escape);
    stage.play();
}

TEST_F(DialogLooks, EveryPageOfHelp) {
    GameStage stage(800, "", folder_.path());
    press(stage, Key::f1);
    for (const char* page : {"keys", "desk", "arrivals", "departures", "separation", "points", "learning"}) {
        expectDialog(stage, std::string("help_") + page);
        press(stage, Key::down);
    }
    press(stage, Key::enter);
    stage.look([&] { EXPECT_FALSE(stage.isDialogOpen()); });
    stage.play();
}

TEST_F(DialogLooks, HelpNamesTheKeysAsThePlayersKeyboardDoes) {
    GameStage stage(800, "", folder_.path());
    const auto helpPage = [&stage](const std::shared_ptr<Bitmap>& page) {
        press(stage, Key::f1);
        stage.look([&stage, page] { *page = stage.backend.screen(); });
        press(stage, Key::enter);
    };
    const auto american = std::make_shared<Bitmap>();
    helpPage(american);
    stage.look([&stage] {
        for (const auto& [place, name] : std::map<Key, std::string>{
                 {Key::period, ":"}, {Key::comma, ";"}, {Key::leftBracket, "^"}, {Key::k, ""}}) {
            stage.backend.writeOnKey(place, name);
        }
        EXPECT_EQ(keysWithoutKeypad(help::keyRows[1], stage.backend), "I  O  L  :  ;  M  J  U");
        EXPECT_EQ(keysWithoutKeypad(help::keyRows[2], stage.backend), "K") << "of no alphabet of ours";
    });
    const auto french = std::make_shared<Bitmap>();
    helpPage(french);
    stage.look([american, french] { EXPECT_NE(*american, *french); });
    stage.play();
    for (const help::KeyRow& row : help::keyRows) {
        for (const auto& [place, name] : row.places) {
            const auto goesByPlace = [place](const Accelerator& key) {
                return key.key == place && key.by == KeyBy::place;
            };
            EXPECT_TRUE(place == Key::unknown || std::ranges::any_of(mainAccelerators, goesByPlace)) << name;
        }
    }
}

} // namespace
} // namespace ventrel
