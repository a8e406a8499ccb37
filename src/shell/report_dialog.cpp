#include "shell/report_dialog.h"

#include "base/format.h"
#include "base/whole_file.h"
#include "base/windows1252.h"
#include "platform/images/png_writer.h"
#include "platform/widgets/dialog.h"
#include "platform/widgets/scroll_bar.h"
#include "resources/dialogs.h"
#include "review/report_page.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr int pageMargin = 8;

/// The page in the dialog, in which the flights scroll.
struct ReportPane {
    ReportFonts fonts;
    ReportFacts facts;
    Window window = {};
    ScrollBar bar = {};

    int rows() const { return reportFlightRows(fonts, reportPageSize.height); }
};

ReportFacts factsOf(Shell& shell) {
    ReportFacts facts{shell.log.story(), shiftDate(shell), {}, shell.keeping.trouble};
    if (auto earlier = earlierShifts(shell)) {
        facts.earlier = std::move(*earlier);
    } else {
        facts.trouble = earlier.error().text;
    }
    return facts;
}

WindowHandlers handlersOf(ReportPane& pane) {
    WindowHandlers handlers;
    handlers.paint = [&pane](Canvas& canvas, const Rect&) {
        paintReport(canvas, pane.fonts, pane.facts, reportPageSize.height, pane.bar.top());
        pane.bar.paint(canvas);
    };
    handlers.press = [&pane](const MouseInput& mouse) {
        if (mouse.button == MouseButton::left && pane.bar.place().contains(mouse.position)) {
            pane.bar.press(mouse.position);
        }
    };
    handlers.move = [&pane](const MouseInput& mouse) { pane.bar.move(mouse.position); };
    handlers.release = [&pane](const MouseInput&) {
        pane.bar.letGo();
        pane.window.releaseCapture();
    };
    handlers.captureLost = [&pane] { pane.bar.letGo(); };
    handlers.timer = [&pane](int number) { pane.bar.timer(number); };
    handlers.wheel = [&pane](int notches) {
        pane.bar.scrollBy(-notches * ScrollBar::wheelLines);
        return true;
    };
    handlers.key = [&pane](const KeyEvent& event) {
        if (!event.down || event.modifiers != Modifiers{}) {
            return false;
        }
        switch (event.key) {
        case Key::up: pane.bar.scrollBy(-1); return true;
        case Key::down: pane.bar.scrollBy(1); return true;
        case Key::pageUp: pane.bar.scrollBy(-pane.rows()); return true;
        case Key::pageDown: pane.bar.scrollBy(pane.rows()); return true;
        case Key::home: pane.bar.scrollTo(0); return true;
        case Key::end: pane.bar.scrollTo(pane.bar.lastTop()); return true;
        default: return false;
        }
    };
    return handlers;
}

void openPane(ReportPane& pane, Dialog& dialog) {
    pane.window = dialog.desktop().create({.parent = dialog.inside(),
                                           .bounds = Rect::at({pageMargin, pageMargin}, reportPageSize),
                                           .handlers = handlersOf(pane)});
    const Rect area = reportFlightArea(pane.fonts, reportPageSize.height);
    pane.bar.lie(pane.window, {area.right + 2, area.top, area.right + 2 + ScrollBar::width, area.bottom});
    pane.bar.setLines(static_cast<int>(pane.facts.story.flights.size()), pane.rows());
    // Once the dialog has given the keyboard to its first button: the keys that scroll are the page's.
    dialog.frame().post([&pane] { pane.window.focus(); });
}

/// A name that no file in the folder has yet, from the shift's date.
fs::path freshName(const fs::path& folder, const ReportFacts& facts) {
    std::string date = facts.date.substr(0, facts.date.find(' '));
    std::error_code fault;
    fs::path file;
    for (int number = 1;; ++number) {
        file = folder / (FormatText("shift-%s-%d.png", {date, long{number}}));
        if (!fs::exists(file, fault)) {
            return file;
        }
    }
}

void savePicture(Shell& shell, const ReportPane& pane) {
    if (shell.playerFolder.empty()) {
        shell.report("There is no folder to save the picture in.", MessageIcon::stop);
        return;
    }
    Bitmap picture({reportPageSize.width, reportHeightForAll(pane.fonts, pane.facts)});
    Canvas canvas(picture);
    paintReport(canvas, pane.fonts, pane.facts, picture.height(), 0);
    const fs::path file = freshName(shell.playerFolder, pane.facts);
    const auto written = replaceFile(file, encodePng(picture));
    if (written) {
        shell.report(FormatText("The report is saved as\n%s", {pathText(file)}), MessageIcon::information);
    } else {
        shell.report(written.error());
    }
}

} // namespace

bool canReportShift(const Shell& shell) {
    return shell.log.story().exists();
}

bool canReportFinishedShift(const Shell& shell) {
    return canReportShift(shell) && shell.log.story().end != ShiftEnd::running;
}

void runReportDialog(Shell& shell) {
    if (!canReportShift(shell)) {
        return;
    }
    ReportPane pane{reportFontsOf(shell.fonts), factsOf(shell)};
    const auto onCommand = [&](Dialog& dialog, const CommandInput& input) {
        if (input.id == shift_report::save) {
            savePicture(shell, pane);
        } else {
            dialog.end(okId);
        }
    };
    const auto open = [&pane](Dialog& dialog) { openPane(pane, dialog); };
    runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, shift_report::shape,
              {.init = open, .command = onCommand});
}

} // namespace ventrel
