// What is wrong with an airspace: its source's faults, which leave nothing to build, and its problems, which
// a player would meet. All texts are Windows-1252.

#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ventrel::apt {

/// Why a source cannot be built, such as "point 3: 'name' is missing".
struct Fault {
    int line = 0; ///< of the source, from 1
    std::string text;
};
using Faults = std::vector<Fault>;

/// Where the keys of one table of a source stand. Lines count from 1; 0: there is no source.
struct KeyLines {
    int table = 0;
    std::map<std::string, int, std::less<>> keys;

    /// Of the first of these keys that is there, else of the table.
    template <typename... Keys>
    int of(const Keys&... wanted) const {
        int line = table;
        const auto look = [&](std::string_view key) {
            const auto found = keys.find(key);
            line = found != keys.end() ? found->second : line;
            return found != keys.end();
        };
        static_cast<void>((look(wanted) || ...));
        return line;
    }
};

/// What of an airspace, or of one of its points, a problem is about.
enum class Subject {
    name,
    layout,
    points,
    picture,
    flightColour,
    selectedColour,
    routeColour,
    ident,
    place,
    kind, ///< exit or airport
    runway,
    reverseChance,
    label,
    labelColour,
    symbolColour,
    runwayColour,
};

/// What a player would run into in an airspace that can be built.
struct Problem {
    std::optional<std::size_t> point; ///< its number in the table, from 0; none: the airspace
    Subject subject = Subject::name;
    std::string text; ///< names the point and tells how far off it is

    friend bool operator==(const Problem&, const Problem&) = default;
};
using Problems = std::vector<Problem>;

/// "1 cell", "3 cells".
inline std::string counted(int count, const std::string& thing) {
    return std::to_string(count) + ' ' + thing + (count == 1 ? "" : "s");
}

} // namespace ventrel::apt
