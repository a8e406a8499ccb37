// The table of high scores as a player meets it: at a shift's end, from the menu, and with a file that is no
// table.

#include "base/shortage.h"
#include "base/whole_file.h"
#include "golden.h"
#include "records/high_scores.h"
#include "shell/plain_program.h"
#include "shell/quiet_shift.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

constexpr Size pictureSize{689, 600};
constexpr Point deleteButton{300, 584}; // in the picture
constexpr Point okButton{400, 584};

class HighScoreDialogTest : public ::testing::Test {
protected:
    explicit HighScoreDialogTest(int width = 1024) {
        stage_ = std::make_unique<GameStage>(width, "[Game]\nName=mary\nSkill=1\n", program_.folder());
    }

    GameStage& stage() { return *stage_; }
    fs::path file() { return stage().shell().highScorePath; }

    void fill(const std::vector<HighScoreEntry>& entries) {
        stage().look([this, entries] {
            for (const HighScoreEntry& entry : entries) {
                ASSERT_TRUE(InsertHighScore(file(), entry));
            }
        });
    }
    void fillTen() {
        std::vector<HighScoreEntry> entries;
        for (int i = 1; i <= 10; ++i) {
            entries.push_back({"Mary", 100 * i, "New York"});
        }
        fill(entries);
    }
    void openFromMenu() {
        stage().todo([](Script& script) { script.key(Key::o, withAlt).key(Key::down).key(Key::down); });
        stage().todo([](Script& script) { script.key(Key::down).key(Key::down).key(Key::enter).wait(20); });
    }
    Point onPicture(Point place) {
        const Size screen = stage().desktop().size();
        return Point{(screen.width - pictureSize.width) / 2, (screen.height - pictureSize.height) / 2} +
               place;
    }
    void click(Point place) {
        stage().todo([this, place](Script& script) { script.click(onPicture(place)).wait(20); });
    }
    void press(Key key) {
        stage().todo([key](Script& script) { script.key(key).wait(20); });
    }
    void expectOpen(bool open, const std::string& when) {
        stage().look([this, open, when] { EXPECT_EQ(stage().isDialogOpen(), open) << when; });
    }
    /// Which rows hold letters of that colour, from the top.
    std::vector<int> rowsOf(Colour colour) {
        std::vector<int> rows;
        const Bitmap picture = pictureOf(stage().backend.screen(), Rect::at(onPicture({}), pictureSize));
        for (int row = 0; row < highScoreRows; ++row) {
            bool isThere = false;
            for (int y = 50 + row * pitch(); y < 50 + (row + 1) * pitch(); ++y) {
                isThere =
                    isThere || std::ranges::find(picture.row(y), toPixel(colour)) != picture.row(y).end();
            }
            if (isThere) {
                rows.push_back(row);
            }
        }
        return rows;
    }
    int pitch() { return stage().shell().fonts.font({Face::arial, -18, true}).lineHeight() + 3; }

    static constexpr Colour newRow = Colour::rgb(192, 0, 0);
    static constexpr Colour otherRow = Colour::rgb(0, 110, 0);
    static std::vector<int> rows(int count) {
        std::vector<int> all(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            all[static_cast<std::size_t>(i)] = i;
        }
        return all;
    }

    /// A shift that ends with so many points, down to its game-over line.
    void endShiftWith(int score) {
        QuietShift shift(stage());
        stage().look([this, score] {
            for (Flight& flight : stage().game().flights) {
                flight.inPlay = false;
            }
            stage().game().score = score - stage().game().bonus;
        });
        stage().skip();
        expectOpen(false, "the game-over line scrolls");
    }

private:
    PlainProgram program_;
    std::unique_ptr<GameStage> stage_;
};

class SmallHighScoreDialogTest : public HighScoreDialogTest {
protected:
    SmallHighScoreDialogTest() : HighScoreDialogTest(800) {}
};

TEST_F(SmallHighScoreDialogTest, NamesOfAnyLengthStayInTheirColumns) {
    fill({{"Mary", 1250, "New York"},
          {std::string(30, 'W'), 65535, std::string(69, 'M')},
          {"Bartholomew Featherstone", 12345, "Chicago"},
          {"\x01\x7F\x80\xFF\t\n", 7, "\x8D tower"}});
    openFromMenu();
    stage().look([this] {
        const Rect place = Rect::at(onPicture({-17, 0}), {pictureSize.width + 34, pictureSize.height});
        expectGolden(pictureOf(stage().backend.screen(), place), "high_scores");
    });
    stage().play();
}

TEST_F(HighScoreDialogTest, OnlyOkClosesIt) {
    fillTen();
    openFromMenu();
    press(Key::escape);
    stage().todo([](Script& script) { script.key(Key::f, withAlt).click({57, 30}).wait(20); });
    expectOpen(true, "after Esc, Alt+F, and a click where File lies beneath");
    stage().look([this] {
        EXPECT_EQ(rowsOf(otherRow), rows(10));
        EXPECT_TRUE(rowsOf(newRow).empty());
    });
    press(Key::enter);
    expectOpen(false, "after Enter, for OK has the keyboard");
    openFromMenu();
    click(okButton);
    expectOpen(false, "after OK");
    openFromMenu();
    stage().todo([](Script& script) { script.window(WindowEvent::closeRequested).wait(20); });
    expectOpen(false, "after the program's window was to close");
    stage().play();
}

TEST_F(HighScoreDialogTest, DeletionAsksFirst) {
    fillTen();
    openFromMenu();
    click(deleteButton);
    press(Key::escape);
    stage().look([this] {
        EXPECT_EQ(rowsOf(otherRow), rows(10)) << "Cancel changes nothing";
        EXPECT_TRUE(stage().backend.beeps().empty());
    });
    click(deleteButton);
    press(Key::enter);
    stage().look([this] {
        EXPECT_TRUE(rowsOf(otherRow).empty());
        EXPECT_EQ(readText(file()), std::string(1040, '\0'));
    });
    expectOpen(true, "after the deletion");
    stage().play();
}

TEST_F(HighScoreDialogTest, WithoutItsPictureNothingIsShownOrTold) {
    stage().look([this] {
        fs::remove(stage().shell().programFolder / "grf/hiscore.grf");
        stage().sounds.heard.clear();
    });
    openFromMenu();
    expectOpen(false, "without the picture");
    stage().look([this] {
        EXPECT_EQ(stage().sounds.count("mci\\idle.mci"), 1);
        EXPECT_TRUE(stage().backend.beeps().empty());
    });
    stage().play();
}

TEST_F(HighScoreDialogTest, AFileThatIsNoTableIsNamedAndLeftAlone) {
    stage().look([this] { writeText(file(), "mine"); });
    openFromMenu();
    press(Key::enter); // the box that names it
    stage().look([this] {
        EXPECT_EQ(stage().backend.beeps(), std::vector{MessageIcon::stop});
        EXPECT_TRUE(rowsOf(otherRow).empty());
    });
    click(deleteButton);
    press(Key::enter);
    press(Key::enter); // it says so again
    stage().look([this] { EXPECT_EQ(readText(file()), "mine"); });
    expectOpen(true, "after all that");
    stage().play();
}

TEST_F(HighScoreDialogTest, AShiftsEndEntersItsScoreOnceAndShowsIt) {
    fillTen();
    endShiftWith(550);
    stage().wait(60000);
    stage().look([this] { EXPECT_TRUE(rowsOf(otherRow).empty()) << "the film comes first"; });
    press(Key::space);
    stage().look([this] {
        EXPECT_EQ(rowsOf(newRow), std::vector{5});
        EXPECT_EQ(rowsOf(otherRow), (std::vector{0, 1, 2, 3, 4, 6, 7, 8, 9}));
        const HighScoreEntry mine{"Mary", 550, stage().game().airspace->name};
        EXPECT_EQ(readHighScores(file()).value()[5], mine);
        EXPECT_FALSE(stage().game().isRunning());
    });
    press(Key::enter);
    stage().look([this] {
        EXPECT_EQ(stage().sounds.heard.back(), "mci\\idle.mci");
        EXPECT_EQ(readHighScores(file()).value()[6].score, 500);
    });
    expectOpen(false, "after OK");
    stage().play();
}

TEST_F(HighScoreDialogTest, WithoutAPlaceTheTableIsShownAlone) {
    fillTen();
    endShiftWith(100);
    stage().wait(60000);
    expectOpen(true, "the last line is gone");
    stage().look([this] {
        EXPECT_TRUE(rowsOf(newRow).empty());
        EXPECT_EQ(rowsOf(otherRow), rows(10));
    });
    stage().play();
}

TEST_F(HighScoreDialogTest, ANewGameDuringTheLastLineDoesNotCostTheScore) {
    endShiftWith(550);
    stage().todo([](Script& script) { script.key(Key::f, withAlt).type("n").key(Key::enter).wait(20); });
    stage().look([this] { EXPECT_EQ(rowsOf(newRow), std::vector{0}); });
    press(Key::enter);
    stage().wait(60000);
    stage().look([this] {
        EXPECT_TRUE(stage().game().isRunning());
        EXPECT_EQ(readHighScores(file()).value()[0].score, 550);
        EXPECT_EQ(readHighScores(file()).value()[1].score, 0);
    });
    stage().play();
}

TEST_F(HighScoreDialogTest, ATableThatCannotBeWrittenIsToldOfAndStaysAsItWas) {
    fillTen();
    auto disk = std::make_shared<std::optional<FullDisk>>();
    endShiftWith(1000);
    stage().look([disk] { disk->emplace(); });
    stage().wait(60000);
    stage().look([this, disk] {
        EXPECT_EQ(stage().backend.beeps(), std::vector{MessageIcon::stop});
        disk->reset();
    });
    press(Key::enter);
    stage().wait(5000);
    press(Key::space);
    stage().look([this] { EXPECT_EQ(readHighScores(file()).value()[1].score, 900); });
    expectOpen(true, "the table all the same");
    stage().play();
}

TEST_F(HighScoreDialogTest, ARunningGameWaitsMeanwhileAndItsMusicComesBack) {
    stage().startNewGame();
    stage().look([this] { stage().sounds.heard.clear(); });
    openFromMenu();
    stage().look([this] {
        EXPECT_EQ(stage().backend.title(), "Ventrel (Paused)");
        EXPECT_EQ(stage().sounds.heard.back(), "mci\\splash.mci") << "the pause has not silenced the table";
    });
    press(Key::enter);
    stage().look([this] {
        EXPECT_EQ(stage().backend.title(), "Ventrel");
        EXPECT_EQ(stage().sounds.heard.back(), "mci\\game.mci");
    });
    stage().play();
}

} // namespace
} // namespace ventrel
