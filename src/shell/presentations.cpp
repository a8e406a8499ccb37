#include "shell/presentations.h"

#include <array>

#include "base/data_path.h"
#include "base/whole_file.h"
#include "base/windows1252.h"
#include "console/window_size.h"
#include "presentation/movie.h"
#include "presentation/opening.h"
#include "presentation/press_release.h"
#include "shell/day_dialog.h"
#include "shell/game_flow.h"
#include "shell/high_score_dialog.h"

namespace ventrel {

namespace {

constexpr std::string_view titleName = "grf\\splash.grf";
constexpr Size titleSize{799, 577};
constexpr std::string_view scrollSound = "snd\\scroll.snd";
constexpr std::string_view titleMusic = "mci\\fade.mci";
constexpr std::array openingFiles{titleName, scrollSound, titleMusic};

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

OpeningSounds openingSounds(Shell& shell) {
    GameSounds& sounds = shell.sounds;
    return {.playScroll =
                [&shell] {
                    const Result<bool> isPlaying = shell.sounds.playEffect(scrollSound);
                    shell.tellLater(isPlaying);
                    return isPlaying && *isPlaying;
                },
            .isAnyPlaying = [&sounds] { return sounds.isAnyPlaying(); },
            .stopEffects = [&sounds] { sounds.stopEffects(); },
            .playMusic = [&sounds] { sounds.playMusic(titleMusic, false); },
            .isMusicPlaying = [&sounds] { return sounds.isMusicPlaying(); },
            .stopMusic = [&sounds] { sounds.stopMusic(); }};
}

OpeningPictures openingPictures(Shell& shell) {
    const Size window = shell.windowSize();
    return {.curtain =
                pictureOrNone(shell, isLarge(window) ? "grf\\curtain10.grf" : "grf\\curtain8.grf", window),
            .title = pictureOrNone(shell, titleName, titleSize)};
}

} // namespace

Result<> checkOpening(const std::filesystem::path& programFolder) {
    for (const std::string_view name : openingFiles) {
        const std::filesystem::path file = DataPath(programFolder, name);
        std::error_code fault;
        if (!std::filesystem::exists(file, fault)) {
            return failed(FormatStringId(TextId::cannotOpenFile, {pathText(file)}));
        }
    }
    return {};
}

bool showOpening(Shell& shell) {
    return playOpening({.desktop = shell.desktop, .sounds = openingSounds(shell), .loadPictures = [&shell] {
                            return openingPictures(shell);
                        }});
}

void reportCollision(Shell& shell) {
    Bitmap letterhead = pictureOrNone(shell, letterheadName, letterheadSize);
    const std::string date = pressReleaseDate(shell.desktop.backend().today());
    showPressRelease({.desktop = shell.desktop,
                      .fonts = shell.fonts,
                      .letterhead = std::move(letterhead),
                      .text = composePressRelease(shell.game, date),
                      .closed = [&shell] {
                          shell.sounds.playMusic(idleMusic, false);
                          tellOfTheDay(shell);
                      }});
}

void celebrate(Shell& shell, int row) {
    Bitmap frame = pictureOrNone(shell, movieFrameName, movieFrameSize);
    MovieStart({.desktop = shell.desktop,
                .framePicture = std::move(frame),
                .movie = loadMovie(shell),
                .playSound = [&shell] { shell.tellLater(shell.sounds.playEffect(movieSound)); },
                .closed =
                    [&shell, row] {
                        ShowHighScores(shell, row);
                        tellOfTheDay(shell);
                    }});
}

} // namespace ventrel
