#include "sim/options.h"

#include <array>
#include <string>

#include "sim/custom_skill.h"

namespace ventrel {

namespace {

constexpr std::string_view section = "Options";
constexpr std::string_view customBonusKey = "CustomBonus";

struct OptionKey {
    std::string_view name;
    int Options::*value;
};

// In the order in which a new file lists them.
constexpr std::array<OptionKey, 17> writtenKeys{{
    {"AutoSelect", &Options::autoSelect},
    {"ShowGrid", &Options::showGrid},
    {"Music", &Options::music},
    {"Effects", &Options::effects},
    {"Voice", &Options::voice},
    {"Resolution", &Options::resolution},
    {"CustomSkill", &Options::customSkill},
    {"CustomPlanes", &Options::customPlanes},
    {"CustomSched", &Options::customSched},
    {customBonusKey, &Options::customBonus},
    {"ShowRoutes", &Options::showRoutes},
    {"MapDetails", &Options::mapDetails},
    {"StormTrak", &Options::stormTrak},
    {"RadarSweep", &Options::radarSweep},
    {"Windowed", &Options::windowed},
    {"AirportSelect", &Options::airportSelect},
    {"DirectEntry", &Options::directEntry},
}};

} // namespace

Options ReadOptions(const ProfileFile& profile) {
    Options options;
    for (const OptionKey& key : writtenKeys) {
        options.*key.value = profile.integer(section, key.name, options.*key.value);
    }
    options.singleSound = profile.integer(section, "SingleSound", options.singleSound);
    options.customBonus = profile.integer(section, customBonusKey,
                                          bonusFor(options.customPlanes, ClockSeconds{options.customSched}));
    return options;
}

void WriteOptions(const Options& options, ProfileFile& profile) {
    for (const OptionKey& key : writtenKeys) {
        profile.set(section, key.name, std::to_string(options.*key.value));
    }
}

} // namespace ventrel
