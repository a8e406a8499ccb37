#include "sim/airspace.h"

#include "base/file_buffer.h"
#include "sim/airport_file.h"

namespace ventrel {

Result<AirspacePtr> loadAirport(const std::filesystem::path& file) {
    FileBuffer buffer;
    if (const auto read = buffer.load(file, false, std::nullopt); !read) {
        return tl::unexpected(read.error());
    }
    return loadAirport(buffer.data, file);
}

Result<AirspacePtr> loadAirport(std::span<const std::byte> bytes, const std::filesystem::path& name) {
    auto file = readAirportFile(bytes, name);
    if (!file) {
        return tl::unexpected(file.error());
    }
    const auto picture = embeddedPicture(bytes, file->header);
    return std::make_shared<const Airspace>(
        Airspace{.name = std::move(file->header.name),
                 .layoutWidth = file->header.layoutWidth,
                 .routeColour = file->header.routeColour,
                 .selectedFlightColour = file->header.selectedFlightColour,
                 .flightColour = file->header.flightColour,
                 .points = std::move(file->vors),
                 .picture = {picture.begin(), picture.end()}});
}

} // namespace ventrel
