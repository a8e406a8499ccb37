#include "shell/presentations.h"

#include "base/data_path.h"
#include "base/whole_file.h"
#include "presentation/movie.h"
#include "presentation/press_release.h"
#include "shell/game_flow.h"
#include "shell/high_score_dialog.h"

namespace ventrel {

namespace {

constexpr std::string_view letterheadName = "grf\\letterhead.grf";
constexpr std::string_view movieFrameName = "grf\\movie_frame.grf";
constexpr std::string_view movieName = "grf\\main.avi";
constexpr std::string_view movieSound = "grf\\main.snd";
constexpr std::size_t movieLimit = std::size_t{64} << 20;

/// An empty one in place of a picture that cannot be read, of which the player is told.
Bitmap pictureOrNone(Shell& shell, std::string_view name, Size size) {
    auto picture = loadPictureOfSize(shell.programFolder, name, size);
    if (!picture) {
        shell.report(picture.error());
        return {};
    }
    return std::move(*picture);
}

/// None where there is no film that can be played.
std::optional<MovieFile> loadMovie(const Shell& shell) {
    auto bytes = readWholeFile(DataPath(shell.programFolder, movieName), movieLimit);
    return bytes ? readMovie(std::move(*bytes)) : std::nullopt;
}

} // namespace

void reportCollision(Shell& shell) {
    Bitmap letterhead = pictureOrNone(shell, letterheadName, letterheadSize);
    const std::string date = pressReleaseDate(shell.desktop.backend().today());
    showPressRelease({.desktop = shell.desktop,
                      .fonts = shell.fonts,
                      .letterhead = std::move(letterhead),
                      .text = composePressRelease(shell.game, date),
                      .closed = [&shell] { shell.sounds.playMusic(idleMusic, false); }});
}

void celebrate(Shell& shell, int row) {
    Bitmap frame = pictureOrNone(shell, movieFrameName, movieFrameSize);
    MovieStart({.desktop = shell.desktop,
                .framePicture = std::move(frame),
                .movie = loadMovie(shell),
                .playSound = [&shell] { shell.sounds.playEffect(movieSound); },
                .closed = [&shell, row] { ShowHighScores(shell, row); }});
}

} // namespace ventrel
