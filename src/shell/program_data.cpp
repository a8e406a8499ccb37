#include "shell/program_data.h"

#include "shell/pictures.h"

namespace ventrel {

ProgramData openProgramData(const std::filesystem::path& programFolder) {
    std::vector<std::string> troubles;
    FontSet fonts(programFolder / "fonts");
    for (const Failure& failure : fonts.failures()) {
        troubles.push_back(failure.text);
    }
    auto icon = loadIcon(programFolder);
    if (!icon) {
        troubles.push_back(std::move(icon.error().text));
    }
    return {std::move(fonts), icon ? std::optional(std::move(*icon)) : std::nullopt, std::move(troubles)};
}

} // namespace ventrel
