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
    header.kind = shell.shiftKind == ShiftKind::practice ? ReplayKind::practice : ReplayKind::scored;
    header.airspaceFile = game.airportFile.filename().string();
    makeRoomForReplay(folder);
    shell.replayWriter.onFailure = [&shell](const Failure& failure) { tellOnce(shell, failure); };
    if (const auto begun = shell.replayWriter.begin(freshReplayFile(folder, header.begun), header); !begun) {
        tellOnce(shell, begun.error());
    }
}

} // namespace ventrel
