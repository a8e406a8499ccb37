// A program folder of which one file is damaged: what the player is told, and whether the game starts.

#include <cstdlib>
#include <fstream>

#include "platform/images/png_writer.h"
#include "records/airport_catalogue.h"
#include "shell/game_stage.h"
#include "shell/pictures.h"
#include "shell/plain_program.h"
#include "shell/program_data.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

using Damaging = std::function<void(const fs::path& file)>;

void cut(const fs::path& file) {
    const std::string whole = readText(file);
    fs::remove(file);
    writeText(file, whole.substr(0, whole.size() / 2));
}

void fillWithNoise(const fs::path& file) {
    const auto size = fs::file_size(file);
    fs::remove(file);
    std::string noise;
    for (RandomGenerator random{5}; noise.size() < size;) {
        noise.push_back(static_cast<char>(random.next()));
    }
    writeText(file, noise);
}

struct NamedDamage {
    std::string name;
    Damaging damage;
};
std::vector<NamedDamage> damages() {
    return {
        {"missing", [](const fs::path& file) { fs::remove(file); }},
        {"empty",
         [](const fs::path& file) {
             fs::remove(file);
             writeText(file, "");
         }},
        {"cut", cut},
        {"noise", fillWithNoise},
        {"unreadable", // also for an administrator: a link to itself
         [](const fs::path& file) {
             fs::remove(file);
             fs::create_symlink(file.filename(), file);
         }},
        {"a folder",
         [](const fs::path& file) {
             fs::remove(file);
             fs::create_directory(file);
         }},
    };
}

/// What becomes of a start from a folder.
struct Start {
    bool hasFaces = false;
    bool isShown = false;
    std::string told; ///< all of it
    std::size_t boxes = 0;
};

Start startFrom(const fs::path& folder) {
    Start start;
    HeadlessBackend backend({800, 600});
    HeardSounds sounds;
    ProgramData data = openProgramData(folder);
    for (const std::string& trouble : data.troubles) {
        start.told += trouble + "\n";
    }
    start.hasFaces = data.fonts.hasFaces();
    if (const auto pictures = loadPictures(folder, 800)) {
        for (const std::string& trouble : pictures->troubles) {
            start.told += trouble + "\n";
        }
    }
    OptionsStore store({});
    Program program({backend, data.fonts, sounds, store, data.troubles}, {folder}, Options{.resolution = 2},
                    1);
    Script(backend).wait(10).key(Key::enter).wait(10).then([&] {
        start.isShown = backend.isShown() && program.shell().mainWindow.isActive();
        program.desktop().quit();
    });
    if (const auto started = program.startUp()) {
        program.run();
    } else {
        start.told += started.error().text;
    }
    start.boxes = backend.beeps().size();
    return start;
}

/// A plain program folder, one file of which is damaged for a while.
class Damage : public ::testing::Test {
protected:
    Damage() {
        makePlainProgram(folder_.path());
        fs::remove(folder_ / "fonts");
        fs::copy(fs::path(PROGRAM_FOLDER) / "fonts", folder_ / "fonts");
    }

    /// Damages the file of that name in one way after the other.
    void forEachDamage(const std::string& name, const std::function<void(const Start&)>& check) {
        for (const auto& [kind, damage] : damages()) {
            SCOPED_TRACE(name + ", " + kind);
            check(startWith(name, damage));
        }
    }
    Start startWith(const std::string& name, const Damaging& damage) {
        const fs::path file = folder_ / name;
        const std::string whole = readText(file);
        damage(file);
        Start start = startFrom(folder_.path());
        fs::remove_all(file);
        writeText(file, whole);
        return start;
    }
    Start startWithPicture(const std::string& name, Size size) {
        return startWith("grf/" + name + ".grf",
                         [size](const fs::path& file) { EXPECT_TRUE(writePng(file, Bitmap(size))); });
    }
    static void expectNamed(const Start& start, const std::string& name) {
        EXPECT_EQ(start.boxes, 1U);
        EXPECT_NE(start.told.find(name), std::string::npos) << start.told;
    }

    TempFolder folder_;
};

TEST_F(Damage, PicturesOfTheConsoleAreNamedAndNothingStarts) {
    for (const char* name :
         {"bkgnd8", "r8frame", "lamp_green_dark", "lamp_red_bright", "strip_button_up", "pointer_hand"}) {
        forEachDamage("grf/" + std::string(name) + ".grf", [name](const Start& start) {
            EXPECT_FALSE(start.isShown);
            expectNamed(start, name);
        });
    }
}

TEST_F(Damage, WithoutTheIconOrACloudPlayGoesOn) {
    for (const char* name : {"icon", "cloud0", "cloud15"}) {
        forEachDamage("grf/" + std::string(name) + ".grf", [name](const Start& start) {
            EXPECT_TRUE(start.isShown);
            expectNamed(start, name);
        });
    }
    // Not of this size of the window, or not needed before it is asked for.
    for (const char* other : {"bkgnd10", "about"}) {
        forEachDamage("grf/" + std::string(other) + ".grf", [](const Start& start) {
            EXPECT_TRUE(start.isShown);
            EXPECT_EQ(start.told, "");
        });
    }
}

TEST_F(Damage, AnotherFaceStandsInForAFont) {
    for (const char* name : {"LiberationSans-Regular", "LiberationMono-Bold"}) {
        forEachDamage("fonts/" + std::string(name) + ".ttf", [name](const Start& start) {
            EXPECT_TRUE(start.hasFaces);
            EXPECT_TRUE(start.isShown);
            expectNamed(start, name);
        });
    }
}

TEST_F(Damage, MissingFoldersAreToldInOneBox) {
    for (int i = 0; i < 16; ++i) {
        fs::remove(folder_ / ("grf/cloud" + std::to_string(i) + ".grf"));
    }
    const Start cloudless = startFrom(folder_.path());
    EXPECT_TRUE(cloudless.isShown);
    EXPECT_EQ(cloudless.boxes, 1U);
    fs::remove_all(folder_ / "grf");
    EXPECT_EQ(startFrom(folder_.path()).boxes, 1U);
    fs::remove_all(folder_ / "fonts");
    EXPECT_FALSE(openProgramData(folder_.path()).fonts.hasFaces());
}

TEST_F(Damage, PicturesOfAnotherSizeAreRefused) {
    for (const auto& [name, size] : {std::pair{"bkgnd8", Size{801, 600}},
                                     {"lamp_red_dark", Size{1, 1}},
                                     {"pointer_arrow", Size{33, 32}}}) {
        const Start refused = startWithPicture(name, size);
        EXPECT_FALSE(refused.isShown) << name;
        expectNamed(refused, name);
    }
    expectNamed(startWithPicture("r8frame", {539, 538}), "539 x 538 pixels in place of 539 x 539");
    expectNamed(startWithPicture("cloud3", {540, 20}), "cloud3");
    EXPECT_EQ(startWithPicture("cloud3", {539, 20}).told, "");
}

} // namespace
} // namespace ventrel
