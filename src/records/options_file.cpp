#include "records/options_file.h"

#include <string>

#include "resources/option_rows.h"
#include "sim/custom_skill.h"

namespace ventrel {

namespace {

constexpr std::string_view optionsSection = "Options";

} // namespace

Options ReadOptions(const ProfileFile& profile) {
    Options options;
    const auto read = [&](std::string_view key, int missing) {
        return profile.integer(optionsSection, key, missing);
    };
    for (const OptionRow& row : optionRows) {
        options.*row.value = read(row.key, options.*row.value);
    }
    options.customBonus =
        read("CustomBonus", bonusFor(options.customPlanes, ClockSeconds{options.customSched}));
    return options;
}

void WriteOptions(const Options& options, ProfileFile& profile) {
    for (const OptionRow& row : optionRows) {
        if (row.isWritten) {
            profile.set(optionsSection, row.key, std::to_string(options.*row.value));
        }
    }
}

} // namespace ventrel
