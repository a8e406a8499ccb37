#include "shell/high_score_dialog.h"

#include <algorithm>

#include "base/data_path.h"
#include "base/format.h"
#include "platform/text/text.h"
#include "platform/widgets/dialog.h"
#include "presentation/framed_picture.h"
#include "records/high_scores.h"
#include "resources/dialogs.h"
#include "shell/game_flow.h"

namespace ventrel {

namespace {

constexpr std::string_view tableName = "grf\\hiscore.grf";
constexpr Size pictureSize{689, 600};
constexpr Size buttonSize{75, 19};
constexpr Point deletePlace{280, 575}; // in the picture
constexpr Point okPlace{365, 575};

constexpr FontRequest rowFont{Face::arial, -18, true};
constexpr int firstRow = 50;
constexpr int rowGap = 3;
constexpr int nameLeft = 5;
constexpr int scoreLeft = 120;
constexpr int airportLeft = 165;
constexpr int columnGap = 5;
constexpr std::string_view cutMark = "...";
constexpr Colour black = Colour::rgb(0, 0, 0);
constexpr Colour newRow = Colour::rgb(192, 0, 0);
constexpr Colour otherRow = Colour::rgb(0, 110, 0);

/// One showing of the table.
struct Showing {
    Shell& shell;
    Bitmap picture;
    std::optional<int> row;
    HighScores scores = {}; ///< empty where they cannot be read

    Point corner() const { return centredCorner(shell.desktop.size(), pictureSize); }
    void open(Dialog& dialog);
    void readScores();
    void paint(const Dialog& dialog, Canvas& canvas) const;
    void paintRow(Canvas& canvas, int number, const HighScoreEntry& entry) const;
    void onCommand(Dialog& dialog, int id);
    void deleteAll(Dialog& dialog);
};

/// As much of the text as there is room for; that some is missing is seen.
std::string fitted(const Font& font, const std::string& text, int width) {
    std::string fit = text;
    while (font.width(fit) > width && !fit.empty()) {
        const std::size_t kept = fit == text ? text.size() : fit.size() - cutMark.size();
        fit = kept == 0 ? std::string() : text.substr(0, kept - 1) + std::string(cutMark);
    }
    return fit;
}

void Showing::open(Dialog& dialog) {
    dialog.resizeInside(shell.desktop.size());
    dialog.frame().setBounds(shell.desktop.area());
    dialog.window(high_scores::deleteAll).setBounds(Rect::at(corner() + deletePlace, buttonSize));
    dialog.window(okId).setBounds(Rect::at(corner() + okPlace, buttonSize));
    dialog.focus(okId);
    shell.sounds.playMusic(tableMusic,
                           false); // here, since an opening dialog pauses a game and ends its music
}

void Showing::readScores() {
    auto read = readHighScores(shell.highScorePath);
    if (!read) {
        shell.report(read.error());
    }
    scores = read ? std::move(*read) : HighScores{};
}

/// A score of more digits than its column has room for begins further left.
void Showing::paintRow(Canvas& canvas, int number, const HighScoreEntry& entry) const {
    const Font& font = shell.fonts.font(rowFont);
    const Colour colour = number == row ? newRow : otherRow;
    const Point start = corner() + Point{0, firstRow + number * (font.lineHeight() + rowGap)};
    const auto write = [&](const std::string& text, int left, int right) {
        drawText(canvas, font, start + Point{left, 0}, fitted(font, text, right - left), {colour, {}});
    };
    const std::string score = FormatText("%d", {long{entry.score}});
    const int scoreStart = std::min(scoreLeft, airportLeft - columnGap - font.width(score));
    write(entry.name, nameLeft, scoreStart - columnGap);
    write(score, scoreStart, airportLeft - columnGap);
    write(entry.airport, airportLeft, pictureSize.width - columnGap);
}

void Showing::paint(const Dialog& dialog, Canvas& canvas) const {
    canvas.fill(dialog.inside().area(), black);
    canvas.draw(corner(), picture);
    drawNavyFrames(canvas, Rect::at(corner(), pictureSize));
    for (int number = 0; number < highScoreRows; ++number) {
        const HighScoreEntry& entry = scores[static_cast<std::size_t>(number)];
        if (entry.score != 0) {
            paintRow(canvas, number, entry);
        }
    }
}

void Showing::deleteAll(Dialog& dialog) {
    const auto answer = showMessageBox(shell.desktop, shell.widgetFonts, dialog.frame(),
                                       {.text = StringTableText(TextId::confirmDeleteScores),
                                        .title = programTitle,
                                        .icon = MessageIcon::exclamation,
                                        .buttons = MessageButtons::okCancel,
                                        .beeps = false});
    if (answer != MessageAnswer::ok) {
        return;
    }
    if (const auto deleted = deleteHighScores(shell.highScorePath)) {
        scores = {};
    } else {
        shell.report(deleted.error());
    }
    dialog.inside().invalidate();
}

void Showing::onCommand(Dialog& dialog, int id) {
    if (id == okId || id == cancelId) { // the latter when the program's window is to close
        dialog.end(okId);
    } else if (id == high_scores::deleteAll) {
        deleteAll(dialog);
    }
}

void runTable(Shell& shell, std::optional<int> row) {
    auto picture = loadPictureOfSize(shell.programFolder, tableName, pictureSize, ImageFormat::jpeg);
    if (!picture) {
        return;
    }
    Showing showing{shell, std::move(*picture), row};
    Dialog dialog(
        shell.desktop, shell.widgetFonts, shell.mainWindow, high_scores::shape,
        {.init = [&](Dialog& opened) { showing.open(opened); },
         .command = [&](Dialog& opened, const CommandInput& input) { showing.onCommand(opened, input.id); },
         .paint = [&](Dialog& opened, Canvas& canvas) { showing.paint(opened, canvas); },
         .escapeCommand = noEscape});
    showing.readScores();
    dialog.run(okId);
}

} // namespace

void ShowHighScores(Shell& shell, std::optional<int> row) {
    shell.sounds.stopMusic();
    runTable(shell, row);
    shell.sounds.stopMusic();
    if (!shell.game.isRunning()) {
        shell.sounds.playMusic(idleMusic, false);
    }
}

} // namespace ventrel
