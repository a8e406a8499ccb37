// The opening, the movie and the press release: what is seen and heard when, and every way of closing them.

#include <malloc.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "golden.h"
#include "images/movie_parts.h"
#include "platform/headless/script.h"
#include "platform/images/jpeg_writer.h"
#include "presentation/movie.h"
#include "presentation/opening.h"
#include "presentation/press_release.h"

namespace ventrel {
namespace {

using ::testing::ElementsAre;

constexpr Colour red = Colour::rgb(255, 0, 0);
constexpr Colour green = Colour::rgb(0, 255, 0);
constexpr Colour blue = Colour::rgb(0, 0, 255);
constexpr Colour black = Colour::rgb(0, 0, 0);

Bitmap plain(Size size, Colour colour) {
    Bitmap picture(size);
    Canvas(picture).fill(picture.bounds(), colour);
    return picture;
}

/// That it is the whole picture, in its place, is seen by the line from corner to corner.
Bitmap crossed(Size size, Colour colour) {
    Bitmap picture = plain(size, colour);
    Canvas(picture).line({0, 0}, {size.width, size.height}, Colour::rgb(255, 255, 255));
    return picture;
}

class PresentationTest : public ::testing::Test {
protected:
    explicit PresentationTest(Size size = {1024, 768})
        : backend(size), desktop(backend, size), script(backend) {
        desktop.setMainWindow(desktop.create({.bounds = desktop.area(), .background = Colour::rgb(9, 9, 9)}));
    }

    HeadlessBackend backend;
    Desktop desktop;
    Script script;
    std::vector<std::string> log;

    void note(const std::string& what) { log.push_back(what + " " + std::to_string(desktop.now() - start)); }
    Colour shownAt(Point p) { return toColour(backend.screen().at(p.x, p.y)); }
    Millis start = 1000;
};

class OpeningTest : public PresentationTest {
protected:
    OpeningTest() = default;
    explicit OpeningTest(Size size) : PresentationTest(size) {}

    Millis soundLength = 12000;
    Millis musicLength = 3000;
    std::optional<Millis> soundEnd = {};
    std::optional<Millis> musicEnd = {};

    bool isSounding(const std::optional<Millis>& end) { return end && desktop.now() < *end; }

    void play() {
        start = desktop.now();
        const OpeningSounds sounds{.playScroll =
                                       [this] {
                                           soundEnd = desktop.now() + soundLength;
                                           return true;
                                       },
                                   .isAnyPlaying = [this] { return isSounding(soundEnd); },
                                   .stopEffects = [this] { soundEnd.reset(); },
                                   .playMusic =
                                       [this] {
                                           note("music");
                                           musicEnd = desktop.now() + musicLength;
                                       },
                                   .isMusicPlaying = [this] { return isSounding(musicEnd); },
                                   .stopMusic = [this] { musicEnd.reset(); }};
        const bool goesOn =
            playOpening({desktop, sounds, [this] {
                             return OpeningPictures{crossed(desktop.size(), red), crossed({799, 577}, green)};
                         }});
        note(goesOn ? "over" : "quit");
    }
    /// The curtain's upper edge.
    int curtainTop() {
        int y = 0;
        while (y < desktop.size().height && shownAt({5, y}) != red) {
            ++y;
        }
        return y;
    }
    std::pair<std::string, Millis> last() {
        const auto blank = log.back().find(' ');
        return {log.back().substr(0, blank), std::stoll(log.back().substr(blank + 1))};
    }
};

TEST_F(OpeningTest, HoldsSlidesWithTheSoundAndShowsTheTitleWithItsMusic) {
    script.wait(100).then([this] { EXPECT_EQ(backend.cursor(), nullptr); });
    script.wait(8800).then([this] { EXPECT_EQ(curtainTop(), 0); });
    script.wait(1100).then([this] { // 10.0 s: one second of sliding
        EXPECT_NEAR(curtainTop(), 50, 3);
        EXPECT_EQ(shownAt({512, 20}), black);
    });
    script.wait(1900).then([this] { EXPECT_NEAR(curtainTop(), 145, 4); });
    play();
    EXPECT_NEAR(static_cast<double>(last().second), 12000 + 3000, 100);
    EXPECT_EQ(backend.beeps().size(), 5U);
    EXPECT_EQ(desktop.topLevels().size(), 1U);
}

TEST_F(OpeningTest, TenTakeNoMoreMemoryThanOne) {
    constexpr std::size_t slack = 16 * 1024;
    soundLength = 9500;
    play();
    const std::size_t afterOne = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
    for (int i = 1; i < 10; ++i) {
        play();
    }
    EXPECT_LE(::mallinfo2().uordblks + ::mallinfo2().hblkhd, afterOne + slack);
}

TEST_F(OpeningTest, ASlowMachinesCurtainComesDownWithTheSoundToo) {
    soundLength = 25000;
    desktop.setIdle([this] {
        backend.wait(30);
        return std::optional<Millis>{};
    });
    int top = 0;
    script.wait(24000).then([this, &top] { top = curtainTop(); });
    play();
    EXPECT_GT(top, 700);
}

TEST_F(OpeningTest, AClickAndThreeKeysEndItAtEveryStage) {
    constexpr Key click = Key::unknown;
    constexpr auto ends = std::to_array<std::pair<Millis, Key>>({{500, click},
                                                                 {500, Key::escape},
                                                                 {10000, click},
                                                                 {10000, Key::enter},
                                                                 {12500, click},
                                                                 {12500, Key::space},
                                                                 {14500, click},
                                                                 {14500, Key::escape}});
    for (const auto& [when, key] : ends) {
        SCOPED_TRACE(std::to_string(when) + " key " + std::to_string(static_cast<int>(key)));
        Script person(backend);
        person.wait(when - 200).key(Key::a).key(Key::space, {.control = true});
        person.click({300, 740}, MouseButton::right).wait(200);
        key == click ? person.press({300, 740}) : person.key(key);
        play();
        EXPECT_NEAR(static_cast<double>(last().second), static_cast<double>(when), 30);
        EXPECT_FALSE(soundEnd || musicEnd);
        EXPECT_TRUE(backend.beeps().empty());
        EXPECT_EQ(desktop.topLevels().size(), 1U);
        EXPECT_FALSE(backend.isCaptured());
        EXPECT_NE(backend.cursor(), nullptr);
    }
}

class SmallOpeningTest : public OpeningTest {
protected:
    SmallOpeningTest() : OpeningTest({800, 600}) {}
};

TEST_F(SmallOpeningTest, HoldsLongerAndALongSoundBringsTheCurtainDownToAStrip) {
    soundLength = 30000;
    script.wait(12900).then([this] { EXPECT_EQ(curtainTop(), 0); });
    script.wait(3100).then([this] { expectGolden(backend.screen(), "opening"); });
    script.wait(4800).then([this] { EXPECT_NEAR(curtainTop(), 390, 3); });
    script.wait(600).then([this] { EXPECT_EQ(curtainTop(), 600) << "what is left of it is black"; });
    script.wait(4600).then(
        [this] { EXPECT_EQ(shownAt({100, 587}), green) << "the title's lower edge is hidden"; });
    play();
    EXPECT_NEAR(static_cast<double>(last().second), 30000 + 3000, 200);
}

TEST_F(OpeningTest, QuittingEndsItToo) {
    script.wait(3000).then([this] { desktop.quit(); });
    play();
    EXPECT_EQ(last().first, "quit");
}

class MovieWindowTest : public PresentationTest {
protected:
    /// Its first half is green, its second blue.
    static std::optional<MovieFile> movie(std::uint32_t frames, std::uint32_t frameTime) {
        std::vector<std::string> jpegs;
        for (std::uint32_t i = 0; i < frames; ++i) {
            const auto jpeg = encodeJpeg(plain({304, 228}, i < frames / 2 ? green : blue), 90);
            jpegs.emplace_back(reinterpret_cast<const char*>(jpeg.data()), jpeg.size());
        }
        const std::string bytes = movieFile(jpegs, 304, 228, frameTime);
        const auto file = std::as_bytes(std::span(bytes));
        return readMovie({file.begin(), file.end()});
    }
    void show(std::optional<MovieFile> film) {
        start = desktop.now();
        MovieStart({desktop, crossed({600, 240}, red), std::move(film), [this] { note("sound"); },
                    [this] {
                        note("closed");
                        desktop.quit();
                    }});
        desktop.run();
    }
};

TEST_F(MovieWindowTest, PlaysInItsFrameAndEndsByItself) {
    script.wait(200).then([this] {
        const Rect place = Rect::at({212 - 20, 264 - 20}, {640, 280});
        Bitmap part(place.size());
        Canvas(part).draw(part.bounds(), backend.screen(), place);
        expectGolden(part, "movie");
        EXPECT_EQ(backend.cursor(), nullptr);
    });
    script.wait(1000).key(Key::enter).click({5, 5});
    script.wait(1000).then([this] { EXPECT_GT(shownAt({600, 400}).blue(), 250) << "the film stands still"; });
    show(movie(40, 66667));
    EXPECT_EQ(log.front(), "sound 0");
    EXPECT_NEAR(std::stod(log.back().substr(7)), 2667, 30);
    EXPECT_NE(backend.cursor(), nullptr);
}

TEST_F(MovieWindowTest, AfterFiveSecondsAnyKeyOrClickClosesIt) {
    script.wait(4900).key(Key::space).press({100, 100});
    script.wait(200).then([this] {
        EXPECT_EQ(log.size(), 1U);
        EXPECT_NE(backend.cursor(), nullptr);
    });
    script.click({100, 100}, MouseButton::right).wait(100).key(Key::x);
    show(movie(400, 66667));
    EXPECT_NEAR(std::stod(log.back().substr(7)), 5200, 30);
}

TEST_F(MovieWindowTest, WithoutAFilmTheFrameWaitsForThePlayer) {
    script.wait(60000).then([this] { EXPECT_TRUE(log.empty()); }).press({1, 1});
    show(std::nullopt);
    EXPECT_EQ(log.size(), 1U) << "no sound without a film";
}

class PressReleaseTest : public PresentationTest {
protected:
    PressReleaseTest() = default;
    explicit PressReleaseTest(Size size) : PresentationTest(size) {}

    FontSet fonts{PROGRAM_FOLDER "/fonts"};

    void show(const PressRelease& text) {
        start = desktop.now();
        showPressRelease({desktop, fonts, plain({250, 100}, red), text, [this] {
                              note("closed");
                              desktop.quit();
                          }});
        desktop.run();
    }
};

class SmallPressReleaseTest : public PressReleaseTest {
protected:
    SmallPressReleaseTest() : PressReleaseTest({800, 600}) {}
};

TEST_F(PressReleaseTest, APageOnBlackThatIsLockedForASecond) {
    script.wait(900).key(Key::a).press({500, 500}).then([this] {
        EXPECT_TRUE(log.empty());
        EXPECT_EQ(shownAt({286, 300}), black);
        EXPECT_EQ(shownAt({287, 94}), Colour::rgb(255, 255, 255));
        EXPECT_EQ(shownAt({737, 400}), Colour::rgb(128, 128, 128));
        EXPECT_EQ(shownAt({738, 675}), Colour::rgb(128, 128, 128));
        EXPECT_EQ(shownAt({739, 400}), black);
        EXPECT_EQ(shownAt({387, 114}), red);
        EXPECT_EQ(shownAt({636, 213}), red);
    });
    script.wait(200).key(Key::a);
    show({"Monday", "An accident.", "Somebody."});
    EXPECT_THAT(log, ElementsAre("closed 1100"));
    EXPECT_FALSE(backend.isCaptured());
}

TEST_F(SmallPressReleaseTest, LongNamesWrapAndStayOnThePage) {
    script.wait(1100).then([this] {
        const Bitmap& screen = backend.screen();
        Bitmap page({454, 584});
        Canvas(page).draw(page.bounds(), screen, Rect::at({174, 9}, page.size()));
        expectGolden(page, "press_release");
    });
    script.press({1, 1});
    Game game;
    const auto airspace = std::make_shared<Airspace>();
    airspace->name = std::string(69, 'M');
    game.airspace = airspace;
    game.controllerName = std::string(30, 'W');
    game.flights.resize(2);
    game.flights[0].callsign = game.flights[1].callsign = std::string_view("UA999H");
    game.flights[0].plan = {{.altitude = 10}};
    game.collisionFlights = {FlightIndex{0}, FlightIndex{1}};
    show(composePressRelease(game, "Wednesday, September 30, 2026"));
}

} // namespace
} // namespace ventrel
