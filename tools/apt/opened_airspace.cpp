#include "tools/apt/opened_airspace.h"

#include "base/whole_file.h"
#include "base/windows1252.h"
#include "platform/images/jpeg_writer.h"
#include "tools/apt/airspace_checks.h"
#include "tools/apt/airspace_writer.h"
#include "tools/apt/files.h"
#include "tools/chart/chart_painter.h"

namespace ventrel::apt {

namespace fs = std::filesystem;

std::string located(const fs::path& file, int line, const std::string& text) {
    return pathText(file) + (line > 0 ? ':' + std::to_string(line) : "") + ": " + text;
}

Result<OpenedAirport> openAirport(const fs::path& file) {
    auto bytes = readWholeFile(file, largestAirport);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    auto airport = readAirportFile(*bytes, file);
    if (!airport) {
        return tl::unexpected(airport.error());
    }
    return OpenedAirport{std::move(*bytes), std::move(*airport)};
}

std::string OpenedSource::faultLines() const {
    std::string lines;
    for (const Fault& fault : reading.faults) {
        lines += located(file, fault.line, fault.text) + '\n';
    }
    return lines;
}

namespace {

Result<std::vector<std::byte>> drawn(const fs::path& file, const ChartSource& source, int width) {
    constexpr int quality = 85; // of JPEG: no artefacts beside fine lines, about 50 KB
    const auto path = fileBeside(file, source.outline);
    const auto text = path ? readWholeFile(*path, largestSource) : tl::unexpected(path.error());
    if (!text) {
        return tl::unexpected(text.error());
    }
    auto outline =
        chart::parseOutline({reinterpret_cast<const char*>(text->data()), text->size()}, pathText(*path));
    if (!outline) {
        return tl::unexpected(outline.error());
    }
    chart::Chart chart = source.chart;
    chart.outline = std::move(*outline);
    return encodeJpeg(chart::paintedChart(chart, radarLayoutFor(width)), quality);
}

} // namespace

Result<std::vector<std::byte>> OpenedSource::picture(int width) const {
    if (reading.airspace.chart) {
        return drawn(file, *reading.airspace.chart, width);
    }
    const auto& pictures = reading.airspace.pictures;
    const auto found = pictures.find(width);
    if (found == pictures.end()) {
        return std::vector<std::byte>{};
    }
    const auto path = fileBeside(file, found->second);
    return path ? readWholeFile(*path, largestPicture) : tl::unexpected(path.error());
}

std::vector<fs::path> OpenedSource::inputs() const {
    std::vector<fs::path> files{file};
    for (const auto& [width, name] : reading.airspace.pictures) {
        files.push_back(file.parent_path() / name);
    }
    if (reading.airspace.chart) {
        files.push_back(file.parent_path() / reading.airspace.chart->outline);
    }
    return files;
}

Result<OpenedSource> openSource(const fs::path& file) {
    const auto text = readWholeFile(file, largestSource);
    if (!text) {
        return tl::unexpected(text.error());
    }
    return OpenedSource{file, parseAirspace({reinterpret_cast<const char*>(text->data()), text->size()})};
}

Result<OpenedAirport> compile(const OpenedSource& source, int width) {
    const AirspaceSource& airspace = source.reading.airspace;
    if (std::string faults = source.faultLines(); !faults.empty()) {
        faults.pop_back();
        return failed(faults);
    }
    if (!airspace.serves(width)) {
        return failed(located(source.file, airspace.lines.of("layout"),
                              "is for the layout of " + std::to_string(airspace.layoutWidth.value_or(width)) +
                                  " pixels only"));
    }
    const int line = airspace.pictureLines.of(std::to_string(width), "outline");
    const auto picture = source.picture(width);
    if (!picture) {
        return failed(located(source.file, line, picture.error().text));
    }
    if (const std::string problem = pictureProblem(*picture, width); !problem.empty()) {
        return failed(located(source.file, line, airspace.pictures.at(width) + ": " + problem));
    }
    AirportFile airport = airportOf(airspace, radarLayoutFor(width));
    auto bytes = airportFileBytes(airport, *picture);
    airport.header = readAirportHeader(bytes).value_or(AirportHeader{});
    return OpenedAirport{std::move(bytes), std::move(airport)};
}

bool isSource(const fs::path& file) {
    return file.extension() == ".toml";
}

} // namespace ventrel::apt
