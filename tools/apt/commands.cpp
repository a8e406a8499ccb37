#include "tools/apt/commands.h"

#include <algorithm>

#include "base/windows1252.h"
#include "platform/images/png_writer.h"
#include "tools/apt/airspace_checks.h"
#include "tools/apt/airspace_text.h"
#include "tools/apt/airspace_writer.h"
#include "tools/apt/files.h"
#include "tools/apt/opened_airspace.h"

namespace ventrel::apt {

namespace fs = std::filesystem;

namespace {

int statusOf(const Result<>& result) {
    if (!result) {
        complain(result.error().text);
    }
    return result ? success : faulty;
}

/// A problem of a source, and the layouts in which it shows.
struct LayoutProblem {
    Problem problem;
    std::vector<int> widths;
};

void merge(std::vector<LayoutProblem>& all, Problems&& problems, int width) {
    for (Problem& problem : problems) {
        const auto found = std::ranges::find(all, problem, &LayoutProblem::problem);
        if (found == all.end()) {
            all.push_back({std::move(problem), {width}});
        } else if (found->widths.back() != width) {
            found->widths.push_back(width);
        }
    }
}

Problems problemsAt(const OpenedSource& source, int width) {
    const auto picture = source.picture(width);
    Problems problems = airspaceProblems(airportOf(source.reading.airspace, radarLayoutFor(width)),
                                         picture.value_or(std::vector<std::byte>{}));
    if (!picture) {
        problems.push_back({{}, Subject::picture, picture.error().text});
    }
    return problems;
}

/// Of a source with faults only the places and labels of its sound points are of interest: a name or a colour
/// may be missing because it was refused.
bool followsFromFault(const Problem& problem) {
    switch (problem.subject) {
    case Subject::place:
    case Subject::kind:
    case Subject::runway:
    case Subject::label: return false;
    default: return true;
    }
}

/// All faults and problems of a source, one a line. What only one of its layouts has says so.
std::string problemLines(const OpenedSource& source) {
    const AirspaceSource& airspace = source.reading.airspace;
    std::vector<LayoutProblem> problems;
    std::size_t layouts = 0;
    for (const ScopeLayout& layout : {smallLayout, largeLayout}) {
        if (airspace.serves(layout.windowWidth) && !airspace.points.empty()) {
            merge(problems, problemsAt(source, layout.windowWidth), layout.windowWidth);
            ++layouts;
        }
    }
    if (!source.reading.faults.empty()) {
        std::erase_if(problems, [](const LayoutProblem& p) { return followsFromFault(p.problem); });
    }
    std::ranges::stable_sort(
        problems, {}, [&](const LayoutProblem& p) { return lineOf(airspace, p.problem, p.widths.front()); });
    std::string lines = source.faultLines();
    for (const auto& [problem, widths] : problems) {
        const std::string where =
            widths.size() < layouts ? " (at " + std::to_string(widths.front()) + " pixels)" : "";
        lines += located(source.file, lineOf(airspace, problem, widths.front()), problem.text + where) + '\n';
    }
    return lines;
}

std::string problemLines(const OpenedAirport& opened, const fs::path& file) {
    std::string lines;
    for (const Problem& problem : airspaceProblems(opened.airport, opened.picture())) {
        lines += located(file, 0, problem.text) + '\n';
    }
    return lines;
}

std::string problemLines(const fs::path& file) {
    if (isSource(file)) {
        const auto source = openSource(file);
        return source ? problemLines(*source) : source.error().text + '\n';
    }
    const auto airport = openAirport(file);
    return airport ? problemLines(*airport, file) : airport.error().text + '\n';
}

/// How the source that is shown names the picture, which is written on the way.
Result<ShownPicture> extractPicture(const OpenedAirport& opened, const fs::path& file,
                                    const fs::path& target) {
    const auto picture = opened.picture();
    if (picture.empty()) {
        return ShownPicture{.name = {}, .remark = target.empty() ? "" : "The file holds no picture."};
    }
    if (target.empty()) {
        return ShownPicture{.name = {},
                            .remark = "The picture (" + std::to_string(picture.size()) +
                                      " bytes) is left out; --picture writes it."};
    }
    const std::string name = fromUtf8(target.filename().string());
    if (toUtf8(name) != target.filename().string() || std::ranges::any_of(name, isControlCharacter)) {
        return failed(pathText(target) + ": its name has a character that a source cannot hold");
    }
    if (auto written = writeFile(target, picture, std::array{file}); !written) {
        return tl::unexpected(written.error());
    }
    const std::string problem = pictureProblem(picture, opened.airport.header.layoutWidth);
    if (!problem.empty()) {
        return ShownPicture{.name = {},
                            .remark = "The picture is left out, as build refuses it: " + problem + '.'};
    }
    return ShownPicture{.name = name, .remark = {}};
}

Result<> showAirport(const fs::path& file, const fs::path& target) {
    const auto opened = openAirport(file);
    if (!opened) {
        return tl::unexpected(opened.error());
    }
    const auto text = airspaceText(opened->airport, opened->bytes, {});
    if (!text) {
        return failed(located(file, 0, text.error().text));
    }
    const auto picture = extractPicture(*opened, file, target);
    if (!picture) {
        return tl::unexpected(picture.error());
    }
    return print(*airspaceText(opened->airport, opened->bytes, *picture));
}

struct DrawnAirport {
    OpenedAirport opened;
    std::vector<fs::path> inputs;
};

Result<DrawnAirport> openToDraw(const Drawing& drawing) {
    if (!isSource(drawing.file)) {
        auto opened = openAirport(drawing.file);
        if (!opened) {
            return tl::unexpected(opened.error());
        }
        const int own = opened->airport.header.layoutWidth;
        if (drawing.width.value_or(own) != own) {
            return failed(
                located(drawing.file, 0, "is for the layout of " + std::to_string(own) + " pixels"));
        }
        return DrawnAirport{std::move(*opened), {drawing.file}};
    }
    const auto source = openSource(drawing.file);
    if (!source) {
        return tl::unexpected(source.error());
    }
    const int own = source->reading.airspace.layoutWidth.value_or(smallLayout.windowWidth);
    auto opened = compile(*source, drawing.width.value_or(own));
    if (!opened) {
        return tl::unexpected(opened.error());
    }
    return DrawnAirport{std::move(*opened), source->inputs()};
}

Result<> drawPicture(const Drawing& drawing) {
    FontSet fonts(drawing.fonts);
    for (const Failure& missing : fonts.failures()) {
        complain(missing.text);
    }
    if (!fonts.hasFaces()) {
        return failed(pathText(drawing.fonts) + ": no face to write with");
    }
    if (drawing.file.empty()) {
        const int width = drawing.width.value_or(smallLayout.windowWidth);
        return writeFile(drawing.target, encodePng(blankGrid(width, fonts)), {});
    }
    const auto drawn = openToDraw(drawing);
    if (!drawn) {
        return tl::unexpected(drawn.error());
    }
    const Bitmap map = mapPicture(drawn->opened.airport, drawn->opened.picture(), drawing.dots, fonts);
    return writeFile(drawing.target, encodePng(map), drawn->inputs);
}

Result<> buildFile(const fs::path& file, const fs::path& target, int width) {
    const auto source = openSource(file);
    if (!source) {
        return tl::unexpected(source.error());
    }
    const auto opened = compile(*source, width);
    if (!opened) {
        return tl::unexpected(opened.error());
    }
    return writeFile(target, opened->bytes, source->inputs());
}

} // namespace

int build(const fs::path& source, const fs::path& target, int width) {
    return statusOf(buildFile(source, target, width));
}

int check(const std::vector<fs::path>& files) {
    std::string lines;
    for (const fs::path& file : files) {
        lines += problemLines(file);
    }
    const int status = statusOf(print(lines));
    return lines.empty() ? status : faulty;
}

int show(const fs::path& file, const fs::path& picture) {
    return statusOf(showAirport(file, picture));
}

int draw(const Drawing& drawing) {
    return statusOf(drawPicture(drawing));
}

} // namespace ventrel::apt
