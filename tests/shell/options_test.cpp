// Options from the file to the menus and back.

#include <fstream>
#include <sstream>

#include "records/options_file.h"
#include "records/window_memory.h"
#include "resources/menus.h"
#include "shell/commands.h"
#include "shell/option_commands.h"
#include "shell/popup_menus.h"
#include "shell/quiet_shift.h"

namespace ventrel {
namespace {

TEST(OptionsFile, KeepsWhatThePlayerChangedAndWhatTheGameDoesNotKnow) {
    const TempFolder folder;
    const std::filesystem::path path = folder / "options.ini";
    std::ofstream{path} << "; mine\n[Options]\nSingleSound=4\nCustomPlanes=99\nCustomSched=7200\nMusic=off\n"
                           "CustomSkill=-17\nFuture=1\n";
    auto profile = ProfileFile::read(path).value();
    Options options = ReadOptions(profile);
    EXPECT_EQ(options.singleSound, 4);
    EXPECT_EQ(options.customBonus, 825);
    EXPECT_EQ(options.music, 0);
    EXPECT_EQ(options.effects, 1);
    options.singleSound = 9;
    options.windowed = 1;
    WriteOptions(options, profile);
    ASSERT_TRUE(profile.save());
    Options again = ReadOptions(ProfileFile::read(path).value());
    EXPECT_EQ(again.singleSound, 4);
    again.singleSound = 9;
    EXPECT_EQ(again, options);
    EXPECT_EQ(ProfileFile::read(path)->integer("Options", "Future", 0), 1);
    EXPECT_EQ(ReadOptions(ProfileFile::read(folder / "none.ini").value()), Options{});
}

TEST(OptionsFile, ThePlaceOfAWindowIsThatOfItsPicture) {
    auto profile = ProfileFile::fromText("", "");
    writeWindowPlace({-20, 30, 780, 630}, 800, profile);
    EXPECT_EQ(readWindowPlace(profile, 800), (Rect{-20, 30, 780, 630}));
    EXPECT_EQ(readWindowPlace(profile, 1024), std::nullopt);
}

/// An item of the menus: how the keyboard reaches it, what it is called, and its option.
struct MenuPath {
    std::string_view letters;
    std::string_view text;
    int Options::* option;
    bool isTickedWhenOn = true;
};
constexpr std::array paths{std::to_array<MenuPath>({
    {"dw", "Radar S&weep", &Options::radarSweep},
    {"dg", "&Grid", &Options::showGrid},
    {"dv", "Direct to &VOR Lines", &Options::showRoutes},
    {"di", "Background &Image", &Options::mapDetails},
    {"um", "&Music", &Options::music},
    {"us", "&Sound Effects", &Options::effects},
    {"uv", "Pilot &Voices", &Options::voice},
    {"a", "&Auto Select New Planes", &Options::autoSelect},
})};

/// The item of that text, wherever it stands; null when there is none.
const MenuItem* itemNamed(const Menu& menu, std::string_view text) {
    for (const MenuItem& item : menu) {
        if (item.text == text) {
            return &item;
        }
        if (const MenuItem* found = itemNamed(item.items, text)) {
            return found;
        }
    }
    return nullptr;
}

bool isTicked(GameStage& stage, std::string_view text) {
    const Menu menu = optionsMenu(stage.shell());
    const MenuItem* item = itemNamed(menu, text);
    return item != nullptr && item->checked;
}

bool isGreyed(const Menu& menu, std::string_view text) {
    const MenuItem* item = itemNamed(menu, text);
    return item == nullptr || item->greyed;
}

TEST(OptionMenus, EachItemTurnsItsOwnOptionOverAndIsTickedWhileItIsOn) {
    GameStage stage;
    const Options start = stage.program().options();
    for (const MenuPath& path : paths) {
        for (const bool isFirst : {true, false}) {
            stage.todo([&path](Script& script) {
                script.key(Key::o, withAlt);
                // "Display Options" has no letter of its own; it is the fifth line.
                if (path.letters.front() == 'd') {
                    script.key(Key::down).key(Key::down).key(Key::down).key(Key::down).key(Key::down);
                    script.key(Key::right);
                } else if (path.letters.size() > 1) {
                    script.type(path.letters.substr(0, 1));
                }
                script.type(path.letters.substr(path.letters.size() - 1)).wait(1);
            });
            stage.look([&stage, &path, start, isFirst] {
                Options expected = start;
                if (isFirst) {
                    expected.*path.option = start.*path.option == 0 ? 1 : 0;
                }
                EXPECT_EQ(stage.shell().options, expected) << path.text;
                EXPECT_EQ(isTicked(stage, path.text), stage.shell().options.*path.option != 0) << path.text;
                const Options saved = ReadOptions(ProfileFile::read(stage.profile()).value());
                EXPECT_EQ(saved.*path.option, expected.*path.option) << path.text << " was not saved";
            });
        }
    }
    stage.play();
}

TEST(OptionMenus, VolumesGoByStepsFromTheMenuAndByKeys) {
    GameStage stage;
    const auto expectVolumes = [&stage](int music, int sound) {
        stage.look([&stage, music, sound] {
            EXPECT_EQ(stage.sounds.choices().musicVolume, music);
            EXPECT_EQ(stage.sounds.choices().soundVolume, sound);
            const Options saved = ReadOptions(ProfileFile::read(stage.profile()).value());
            EXPECT_EQ((std::pair{saved.musicVolume, saved.soundVolume}), (std::pair{music, sound}));
        });
    };
    const auto press = [&stage](Key key) { stage.todo([key](Script& script) { script.key(key).wait(1); }); };
    stage.todo([](Script& script) { script.key(Key::o, withAlt).type("ul2").wait(1); });
    stage.todo([](Script& script) { script.key(Key::o, withAlt).type("uo3").wait(1); });
    expectVolumes(2, 3);
    stage.look([&stage] {
        EXPECT_EQ(stage.sounds.count("click"), 1) << "a sample of the new loudness";
        const auto menu = optionsMenu(stage.shell());
        const MenuItem* music = itemNamed(menu, "Music Vo&lume\tF5 F6");
        ASSERT_NE(music, nullptr);
        EXPECT_TRUE(music->items[1].checked);
        EXPECT_FALSE(music->items[2].checked);
    });
    press(Key::f5);
    press(Key::f5); // it is the softest already
    press(Key::f8);
    expectVolumes(1, 4);
    press(Key::f6);
    press(Key::f7);
    expectVolumes(2, 3);
    stage.play();
}

TEST(OptionMenus, WhatTheRadarShowsChangesAtOnce) {
    GameStage stage(800, "[Options]\nRadarSweep=0\nStormTrak=0\n[Game]\nName=mary\nSkill=1\n");
    QuietShift shift(stage);
    shift.enter(FlightIndex{0}, {.cell = {10, 20}, .altitude = 5, .heading = 90});
    stage.skipTo(QuietShift::entryTime);
    stage.look([&stage] {
        stage.game().flight(FlightIndex{0}).plan = {
            {.cell = {10, 20}, .altitude = 5, .heading = 90, .directTarget = PointIndex{0}},
            {.cell = {30, 20}}};
        RadarRepaint(stage.shell().radar);
    });
    stage.wait(1);
    const auto radar = [&stage] {
        return pictureOf(stage.desktop().picture(), radarWindowRect(stage.shell().radar.layout));
    };
    for (const int item : {command::routes, command::grid}) {
        const auto before = std::make_shared<Bitmap>();
        stage.look([&stage, radar, before, item] {
            *before = radar();
            onCommand(stage.shell(), item);
        });
        stage.wait(1);
        stage.look([&stage, radar, before, item] {
            EXPECT_NE(radar(), *before) << item;
            onCommand(stage.shell(), item);
        });
        stage.wait(1);
        stage.look([radar, before, item] { EXPECT_EQ(radar(), *before) << item; });
    }
    stage.play();
}

TEST(AidsDialog, KeepsAndShowsWhatIsTickedAtOkAlone) {
    constexpr int Options::* pauseAtRim = &Options::aidPauseAtRim;
    GameStage stage(800, "[Options]\nRadarSweep=0\nStormTrak=0\n[Game]\nName=mary\nSkill=1\n");
    stage.startNewGame();
    const auto tickAndPress = [&stage](Key key) {
        stage.todo([key](Script& script) {
            script.key(Key::o, withAlt).type("i").wait(1).key(Key::p, withAlt).key(key).wait(1);
        });
    };
    const auto expectAid = [&stage, pauseAtRim](int value) {
        stage.look([&stage, pauseAtRim, value] {
            EXPECT_FALSE(stage.isDialogOpen());
            EXPECT_EQ(stage.shell().options.*pauseAtRim, value);
            EXPECT_EQ(ReadOptions(ProfileFile::read(stage.profile()).value()).*pauseAtRim, value);
        });
    };
    tickAndPress(Key::escape);
    expectAid(0);
    tickAndPress(Key::enter);
    expectAid(1);
    tickAndPress(Key::enter);
    expectAid(0);
    stage.play();
}

TEST(AidsDialog, ClearColoursAreOnTheStripsAtOnce) {
    GameStage stage(800, "[Options]\nRadarSweep=0\n[Game]\nName=mary\nSkill=1\n");
    QuietShift shift(stage);
    shift.enter(FlightIndex{0}, {.cell = {10, 20}, .altitude = 5, .heading = 90});
    stage.skipTo(QuietShift::entryTime);
    const auto strips = [&stage] {
        return pictureOf(stage.desktop().picture(), stage.shell().strips.window.bounds());
    };
    const auto before = std::make_shared<Bitmap>();
    stage.look([&stage, strips, before] {
        *before = strips();
        Options chosen = stage.shell().options;
        chosen.aidColours = 1;
        chooseAids(stage.shell(), chosen);
    });
    stage.wait(1);
    stage.look([strips, before] { EXPECT_NE(strips(), *before); });
    stage.play();
}

TEST(OptionMenus, TickTheSizeTheScreenAndThePause) {
    GameStage stage(800);
    stage.look([&] {
        EXPECT_TRUE(isTicked(stage, "800 x 600"));
        EXPECT_FALSE(isTicked(stage, "1024 x 768"));
        EXPECT_TRUE(isTicked(stage, "&Full Screen"));
        EXPECT_TRUE(isGreyed(optionsMenu(stage.shell()), "&Pause\tPAUSE"));
        EXPECT_TRUE(isGreyed(optionsMenu(stage.shell()), "&Schedule...\tCtrl+S"));
        EXPECT_TRUE(isGreyed(optionsMenu(stage.shell()), "&Boss Key\tESC"));
        EXPECT_TRUE(isGreyed(fileMenu(stage.shell()), "&End Game"));
        EXPECT_FALSE(isGreyed(fileMenu(stage.shell()), "&New Game..."));
        stage.shell().options.windowed = 1;
        stage.shell().options.resolution = largeResolution;
        EXPECT_FALSE(isTicked(stage, "&Full Screen"));
        EXPECT_FALSE(isTicked(stage, "800 x 600"));
        EXPECT_TRUE(isTicked(stage, "1024 x 768"));
        stage.shell().options.resolution = smallResolution;
    });
    stage.todo([](Script& script) { script.key(Key::o, withAlt).type("r").key(Key::enter).wait(1); });
    stage.look([&] { EXPECT_FALSE(stage.isDialogOpen()) << "it has that size already"; });
    stage.startNewGame();
    stage.look([&] {
        EXPECT_FALSE(isTicked(stage, "&Pause\tPAUSE"));
        EXPECT_FALSE(isGreyed(optionsMenu(stage.shell()), "&Pause\tPAUSE"));
        EXPECT_FALSE(isGreyed(optionsMenu(stage.shell()), "&Schedule...\tCtrl+S"));
        EXPECT_FALSE(isGreyed(optionsMenu(stage.shell()), "&Boss Key\tESC"));
        EXPECT_FALSE(isGreyed(fileMenu(stage.shell()), "&End Game"));
    });
    stage.todo([](Script& script) { script.key(Key::p).wait(1); });
    stage.look([&] { EXPECT_TRUE(isTicked(stage, "&Pause\tPAUSE")); });
    stage.play();
}

/// The items of a menu and its submenus as they are read, each with a comma.
std::string readAloud(const Menu& menu) {
    std::string words;
    for (const MenuItem& item : menu) {
        words += item.text.substr(0, item.text.find('\t')) + "," + readAloud(item.items);
    }
    std::erase(words, '&');
    return words;
}

TEST(OptionMenus, KeepTheOrderThatHandsHaveLearned) {
    GameStage stage(800);
    stage.look([&] {
        std::string words = "," + readAloud(fileMenu(stage.shell())) + readAloud(optionsMenu(stage.shell())) +
                            readAloud(makeMenu(systemMenuItems));
        std::istringstream usual("New Game...,End Game,Exit,Schedule...,Boss Key,Pause,Show Hi Scores...,"
                                 "Display Options,Radar Sweep,Grid,Direct to VOR Lines,Background Image,"
                                 "Sounds,Music,Sound Effects,Pilot Voices,Screen Resolution,800 x 600,"
                                 "1024 x 768,Full Screen,Auto Select New Planes,Minimize,Close");
        for (std::string item; std::getline(usual, item, ',');) {
            const std::size_t place = words.find("," + item + ",");
            ASSERT_NE(place, std::string::npos) << item << " is not behind those before it";
            words.erase(0, place + 1);
        }
    });
    stage.play();
}

TEST(OptionMenus, OpenUnderTheirButtons) {
    GameStage stage(800);
    struct Opened {
        Point click;
        std::string_view letter;
        Point corner;
    };
    const auto expectDialog = [&](const Opened& opened, const char* what) {
        auto before = std::make_shared<Bitmap>();
        stage.look([&stage, before] { *before = stage.backend.screen(); });
        stage.todo([opened](Script& script) { script.moveTo(opened.click).click(opened.click).wait(1); });
        stage.look([&stage, before, opened, what] {
            // The button itself is shown pressed or released on the way.
            const Rect box = differenceOf(*before, stage.backend.screen());
            EXPECT_EQ(box.left, opened.corner.x) << what;
            EXPECT_GT(box.bottom, opened.corner.y + 20) << what;
        });
        stage.todo([opened](Script& script) { script.type(opened.letter).wait(1); });
    };
    expectDialog({{57, 30}, "n", {31, 39}}, "File");
    stage.look([&] { EXPECT_TRUE(stage.isDialogOpen()); });
    stage.todo([](Script& script) { script.key(Key::escape).wait(1); });
    expectDialog({{119, 30}, "a", {93, 39}}, "Options");
    stage.look([&] { EXPECT_EQ(stage.shell().options.autoSelect, 1); });
    expectDialog({{181, 30}, "a", {155, 39}}, "Help");
    stage.look([&] { EXPECT_TRUE(stage.isDialogOpen()); });
    stage.todo([](Script& script) { script.key(Key::enter).wait(1); });
    expectDialog({{4, 3}, "n", {2, 7}}, "System");
    stage.look([&] { EXPECT_TRUE(stage.backend.isMinimised()); });
    stage.play();
}

} // namespace
} // namespace ventrel
