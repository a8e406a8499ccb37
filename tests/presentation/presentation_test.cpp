// The opening, the movie and the press release: what is seen and heard when, and every way of closing them.

#include <malloc.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "golden.h"
#include "images/movie_parts.h"
#include "platform/canvas/jpeg_writer.h"
#include "platform/headless/script.h"
#include "presentation/movie.h"
#include "presentation/opening.h"
#include "presentation/press_release.h"

namespace ventrel {
namespace {

using ::testing::ElementsAre;

constexpr Colour red = Colour::rgb(255, 0, 0);
constexpr Colour green = Colour::rgb(0, 255, 0);
constexpr Colour black = Colour::rgb(0, 0, 0);

Bitmap plain(Size size, Colour colour) {
    Bitmap picture(size);
    Canvas(picture).fill(picture.bounds(), colour);
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
    bool hasSound = true;
    std::optional<Millis> soundEnd = {};
    std::optional<Millis> musicEnd = {};

    bool isSounding(const std::optional<Millis>& end) { return end && desktop.now() < *end; }

    void play() {
        start = desktop.now();
        const OpeningSounds sounds{.playScroll =
                                       [this] {
                                           soundEnd = desktop.now() + soundLength;
                                           return hasSound;
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
                             return OpeningPictures{plain(desktop.size(), red), plain({799, 577}, green)};
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

TEST_F(OpeningTest, WithoutMusicTheTitleStaysTwoSeconds) {
    musicLength = 0;
    play();
    EXPECT_NEAR(static_cast<double>(last().second), 12000 + 2000, 100);
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

TEST_F(OpeningTest, WithoutItsSoundItIsOverAtOnce) {
    hasSound = false;
    play();
    EXPECT_THAT(log, ElementsAre("over 0"));
    EXPECT_EQ(desktop.topLevels().size(), 1U);
}

TEST_F(OpeningTest, ALongSoundBringsTheCurtainDownToAStrip) {
    soundLength = 30000;
    script.wait(22500).then([this] {
        EXPECT_GT(curtainTop(), 760) << "what is left of it is black";
        EXPECT_EQ(shownAt({512, 384}), green);
    });
    play();
    EXPECT_NEAR(static_cast<double>(last().second), 30000 + 3000, 200);
}

/// Each way of closing at each stage.
class OpeningClosedTest : public OpeningTest,
                          public ::testing::WithParamInterface<std::tuple<Millis, Key>> {};

TEST_P(OpeningClosedTest, EndsItAtOnce) {
    const auto [when, key] = GetParam();
    script.wait(when);
    if (key == Key::unknown) {
        script.press({300, 740});
    } else {
        script.key(Key::a).key(key);
    }
    play();
    EXPECT_NEAR(static_cast<double>(last().second), static_cast<double>(when), 30);
    EXPECT_FALSE(soundEnd);
    EXPECT_FALSE(musicEnd);
    EXPECT_TRUE(backend.beeps().empty());
    EXPECT_EQ(desktop.topLevels().size(), 1U);
    EXPECT_FALSE(backend.isCaptured());
}

INSTANTIATE_TEST_SUITE_P(EveryStage, OpeningClosedTest,
                         ::testing::Combine(::testing::Values(500, 10000, 12500, 14500),
                                            ::testing::Values(Key::unknown, Key::escape, Key::enter,
                                                              Key::space)));

class SmallOpeningTest : public OpeningTest {
protected:
    SmallOpeningTest() : OpeningTest({800, 600}) {}
};

TEST_F(SmallOpeningTest, HoldsLonger) {
    soundLength = 14000;
    script.wait(12900).then([this] { EXPECT_EQ(curtainTop(), 0); });
    script.wait(600).then([this] { EXPECT_NEAR(curtainTop(), 25, 3); });
    play();
}

TEST_F(OpeningTest, QuittingEndsItToo) {
    script.wait(3000).then([this] { desktop.quit(); });
    play();
    EXPECT_EQ(last().first, "quit");
}

class MovieWindowTest : public PresentationTest {
protected:
    /// A green film.
    static std::optional<MovieFile> movie(std::uint32_t frames, std::uint32_t frameTime) {
        const std::vector<std::byte> jpeg = encodeJpeg(plain({304, 228}, green), 90);
        const std::string frame(reinterpret_cast<const char*>(jpeg.data()), jpeg.size());
        const std::string bytes = movieFile(std::vector(frames, frame), 304, 228, frameTime);
        const auto file = std::as_bytes(std::span(bytes));
        return readMovie({file.begin(), file.end()});
    }
    void show(std::optional<MovieFile> film) {
        start = desktop.now();
        MovieStart({desktop, plain({600, 240}, red), std::move(film), [this] { note("sound"); },
                    [this] {
                        note("closed");
                        desktop.quit();
                    }});
        desktop.run();
    }
};

TEST_F(MovieWindowTest, PlaysInItsFrameAndEndsByItself) {
    script.wait(200).then([this] {
        EXPECT_EQ(shownAt({212 + 5, 264 + 5}), red);
        EXPECT_EQ(shownAt({212 - 2, 300}), Colour::rgb(0, 0, 128));
        EXPECT_EQ(shownAt({212 - 17, 300}), black);
        EXPECT_GT(shownAt({212 + 280 + 100, 264 + 100}).green(), 250) << "the film lies over its frame";
        EXPECT_EQ(backend.cursor(), nullptr);
    });
    script.wait(1000).key(Key::enter).click({5, 5});
    show(movie(40, 66667));
    EXPECT_EQ(log.front(), "sound 0");
    EXPECT_NEAR(std::stod(log.back().substr(7)), 2667, 30);
}

TEST_F(MovieWindowTest, AfterFiveSecondsAnyKeyOrClickClosesIt) {
    script.wait(4900).key(Key::space).press({100, 100});
    script.wait(300).then([this] { EXPECT_EQ(log.size(), 1U); }).key(Key::x);
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
