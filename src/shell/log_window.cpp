#include "shell/log_window.h"

#include <array>

#include "console/steering_bar_layout.h"
#include "console/window_size.h"
#include "platform/widgets/widget_place.h"
#include "resources/dialogs.h"
#include "shell/report_dialog.h"

namespace ventrel {

namespace {

/// What each of the buttons lets pass.
struct FilterRow {
    int control;
    LogFilter filter;
};
constexpr std::array filterRows{std::to_array<FilterRow>({
    {shift_log::all, LogFilter::all},
    {shift_log::flight, LogFilter::flight},
    {shift_log::points, LogFilter::points},
    {shift_log::calls, LogFilter::calls},
    {shift_log::orders, LogFilter::orders},
})};

constexpr int fromEdge = 2;   // of the picture and the steering bar, where it opens first
constexpr int viewMargin = 4; // around the lines

Size insideSize(const Shell& shell) {
    return isLarge(shell.windowSize()) ? shift_log::largeInside : shift_log::smallInside;
}

LogFilter chosenFilter(const Dialog& dialog) {
    for (const FilterRow& row : filterRows) {
        if (dialog.isChecked(row.control)) {
            return row.filter;
        }
    }
    return LogFilter::all;
}

std::optional<FlightIndex> flightOf(const LogWindow& log) {
    return log.clicked ? log.clicked : log.selected;
}

void applyFilter(LogWindow& log) {
    LogViewFilter(log.view, chosenFilter(*log.dialog), flightOf(log));
}

void copyLog(Shell& shell) {
    const LogWindow& log = shell.logWindow;
    shell.desktop.backend().setClipboard(
        logText(shell.log.story(), chosenFilter(*log.dialog), flightOf(log)));
}

void onLogCommand(Shell& shell, const CommandInput& input) {
    switch (input.id) {
    case cancelId: shell.logWindow.dialog->frame().hide(); break;
    case shift_log::copy: copyLog(shell); break;
    case shift_log::report: runReportDialog(shell); break;
    default: applyFilter(shell.logWindow); break;
    }
}

bool onHoverKey(Shell& shell, const KeyEvent& key) {
    LogWindow& log = shell.logWindow;
    constexpr Modifiers control{.control = true};
    if (!key.down) {
        return false;
    }
    if (key.key == Key::c && key.modifiers == control) {
        copyLog(shell);
        return true;
    }
    if (key.modifiers != Modifiers{}) {
        return false;
    }
    if (key.key == Key::escape) {
        log.dialog->frame().hide();
        return true;
    }
    return LogViewKey(log.view, key.key);
}

void createLogWindow(Shell& shell) {
    LogWindow& log = shell.logWindow;
    log.dialog = std::make_unique<Dialog>(
        shell.desktop, shell.widgetFonts, shell.mainWindow, shift_log::shape,
        DialogHandlers{
            .command = [&shell](Dialog&, const CommandInput& input) { onLogCommand(shell, input); },
            .hoverKey = [&shell](Dialog&, const KeyEvent& key) { return onHoverKey(shell, key); }});
    Dialog& dialog = *log.dialog;
    const Size inside = insideSize(shell);
    dialog.resizeInside(inside);
    const Size frame = dialog.frame().size();
    const int beside = steeringBarFor(shell.windowSize().width).whole.right; // by which one watches
    dialog.frame().setBounds(
        Rect::at({beside + fromEdge, shell.windowSize().height - frame.height - fromEdge}, frame));
    dialog.setChecked(shift_log::all, true);
    LogViewCreate(log.view, dialog.inside(),
                  {viewMargin, dialogUnitsDown(shift_log::viewTop), inside.width - viewMargin,
                   inside.height - viewMargin});
    log.view.chosen = [&log](FlightIndex flight) { log.clicked = flight; };
}

/// What is selected last counts, on the console or in the log.
void followSelection(LogWindow& log, std::optional<FlightIndex> selected) {
    if (log.selected != selected) {
        log.selected = selected;
        log.clicked = selected ? std::nullopt : log.clicked;
    }
    const auto flight = flightOf(log);
    if (log.view.filter == LogFilter::flight && log.view.flight != flight) {
        applyFilter(log);
    }
}

} // namespace

void LogWindowToggle(Shell& shell) {
    LogWindow& log = shell.logWindow;
    if (!log.dialog) {
        createLogWindow(shell);
    }
    log.dialog->frame().show(!log.isOpen());
}

void LogWindowTick(Shell& shell) {
    LogWindow& log = shell.logWindow;
    if (!log.isOpen()) {
        return;
    }
    if (log.view.edition != shell.log.edition()) {
        log.clicked.reset(); // a flight of the shift before
        log.dialog->enable(shift_log::report, canReportShift(shell));
    }
    followSelection(log, shell.panel.state.flight);
    LogViewRefresh(log.view);
}

} // namespace ventrel
