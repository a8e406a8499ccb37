// What a long evening costs: memory after ten endings is what it was after the first.

#include <malloc.h>

#include <fstream>

#include "images/movie_parts.h"
#include "platform/images/jpeg_writer.h"
#include "shell/plain_program.h"
#include "shell/quiet_shift.h"

namespace ventrel {
namespace {

/// Three seconds of one picture.
void writeFilm(const std::filesystem::path& file) {
    const Bitmap picture({304, 228});
    const std::vector<std::byte> jpeg = encodeJpeg(picture, 90);
    const std::string frame(reinterpret_cast<const char*>(jpeg.data()), jpeg.size());
    writeText(file, movieFile(std::vector(45, frame), 304, 228, 66667));
}

class EndingsTest : public ::testing::Test {
protected:
    EndingsTest() { writeFilm(program.folder() / "grf/main.avi"); }

    PlainProgram program;
    GameStage stage{1024, "[Game]\nName=mary\nSkill=1\n", program.folder()};

    /// With a place in the table: line, film, table.
    void endWell() {
        QuietShift shift(stage);
        stage.look([this] {
            for (Flight& flight : stage.game().flights) {
                flight.inPlay = false;
            }
        });
        stage.skip();
        stage.wait(60000); // the film ends by itself
        stage.todo([](Script& script) { script.key(Key::enter).wait(20); });
    }
    void endWithCollision() {
        QuietShift shift(stage);
        shift.enter(FlightIndex{0}, {.cell = {10, 10}, .altitude = 5, .heading = 90});
        shift.enter(FlightIndex{1}, {.cell = {30, 30}, .altitude = 5, .heading = 90});
        stage.skipTo(QuietShift::entryTime);
        stage.look([this] {
            for (const int i : {0, 1}) {
                stage.game().flight(FlightIndex{i}).plan = {{.cell = {10, 10}, .altitude = 5, .heading = 90}};
            }
        });
        stage.skip();
        stage.skip();
        stage.wait(12000);
        stage.todo([](Script& script) { script.key(Key::space).wait(20); });
    }
};

TEST_F(EndingsTest, TenTakeNoMoreMemoryThanOne) {
    constexpr std::size_t slack = 64 * 1024; // of lists that keep the room they once needed
    std::size_t afterOne = 0;
    for (int round = 1; round <= 10; ++round) {
        endWell();
        endWithCollision();
        stage.look([this, &afterOne, round] {
            ASSERT_FALSE(stage.isDialogOpen() || stage.game().isRunning());
            EXPECT_EQ(stage.sounds.count("grf\\main.snd"), 1) << "the film is silent";
            stage.sounds.heard = {};
            const std::size_t used = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
            afterOne = round == 1 ? used : afterOne;
            EXPECT_LE(used, afterOne + slack) << "after " << round;
        });
    }
    stage.play();
}

} // namespace
} // namespace ventrel
