#include "shell/replay_keeping.h"

#include "replay/replay_folder.h"

namespace ventrel {

namespace {

void tellOnce(Shell& shell, const Failure& failure) {
    if (!shell.isReplayTroubleTold) {
        shell.isReplayTroubleTold = true;
        shell.mainWindow.post([&shell, failure] { shell.report(failure); });
    }
}

/// Begins to write into a new file of the folder.
void begin(Shell& shell, const std::filesystem::path& folder, UtcMoment begun,
           const std::function<Result<>(const std::filesystem::path&)>& write) {
    makeRoomForReplay(folder);
    shell.replayWriter.onFailure = [&shell](const Failure& failure) { tellOnce(shell, failure); };
    if (const auto written = write(freshReplayFile(folder, begun)); !written) {
        tellOnce(shell, written.error());
    }
}

} // namespace

std::filesystem::path replayFolder(const Shell& shell) {
    return shell.playerFolder.empty() ? shell.playerFolder : shell.playerFolder / replayFolderName;
}

void keepReplay(Shell& shell, const GameSetup& game, const ShiftSetup& setup, std::uint32_t seed) {
    const std::filesystem::path folder = replayFolder(shell);
    if (folder.empty()) {
        return;
    }
    ReplayHeader header = replayHeader(shell.game, setup, seed);
    header.begun = shell.utcNow();
    if (shell.shiftKind == ShiftKind::practice) {
        header.kind = ReplayKind::practice;
    } else {
        header.kind = game.day ? ReplayKind::day : ReplayKind::scored;
    }
    header.airspaceFile = game.airportFile.filename().string();
    begin(shell, folder, header.begun,
          [&](const std::filesystem::path& file) { return shell.replayWriter.begin(file, header); });
}

void resumeReplay(Shell& shell, Replay past, int calls) {
    const std::filesystem::path folder = replayFolder(shell);
    if (folder.empty()) {
        return;
    }
    past.header.begun = shell.utcNow();
    past.header.kind = ReplayKind::practice;
    begin(shell, folder, past.header.begun,
          [&](const std::filesystem::path& file) { return shell.replayWriter.resume(file, past, calls); });
}

} // namespace ventrel
