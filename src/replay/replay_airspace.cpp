#include "replay/replay_airspace.h"

#include "base/windows1252.h"
#include "replay/airspace_checksum.h"

namespace ventrel {

namespace fs = std::filesystem;

Result<AirspacePtr> findReplayAirspace(const ReplayHeader& header, std::span<const fs::path> folders) {
    const std::string name = pathText(header.airspaceFile);
    Failure failure{"The airspace " + header.airspaceName + " of this replay, " + name + ", is not there."};
    for (const fs::path& folder : folders) {
        std::error_code ignored;
        const fs::path file = folder / header.airspaceFile;
        if (folder.empty() || !fs::exists(file, ignored)) {
            continue;
        }
        auto airspace = loadAirport(file);
        if (!airspace) {
            failure = std::move(airspace.error());
        } else if (airspaceChecksum(**airspace) == header.airspaceChecksum) {
            return std::move(*airspace);
        } else {
            failure = {"The airspace " + pathText(file) + " is not as it was when this replay was made."};
        }
    }
    return tl::unexpected(std::move(failure));
}

} // namespace ventrel
