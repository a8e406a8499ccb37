// ventrel-lesson: tells whether lessons can be read, and played in their airspaces at both sizes of the
// window.

#include <CLI/CLI.hpp>

#include <array>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "base/windows1252.h"
#include "lessons/lesson_file.h"
#include "lessons/lesson_shift.h"

namespace {

using namespace ventrel;
namespace fs = std::filesystem;

constexpr int fault = 1;
constexpr int wrongUsage = 2;
constexpr std::array airportFileEnds{"8.apt", "10.apt"};

void complain(std::string_view text) {
    std::fprintf(stderr, "ventrel-lesson: %s\n", toTerminal(text).c_str());
}

Result<> checkIn(const Lesson& lesson, const fs::path& airportFile) {
    const auto airspace = loadAirport(airportFile);
    if (!airspace) {
        return tl::unexpected(airspace.error());
    }
    return checkLesson(lesson, **airspace);
}

/// Tells what is wrong with a lesson; whether all is well.
bool check(const fs::path& file, const fs::path& airports) {
    const auto lesson = loadLesson(file);
    if (!lesson) {
        complain(lesson.error().text);
        return false;
    }
    for (const char* end : airportFileEnds) {
        if (const auto checked = checkIn(*lesson, airports / (lesson->airspace + end)); !checked) {
            complain(pathText(file) + ": " + checked.error().text);
            return false;
        }
    }
    return true;
}

int run(int argc, char** argv) {
    CLI::App app("Checks lessons: every word is known, and so is every flight and point.", "ventrel-lesson");
    app.footer("\nExit status: 0 all is well; 1 something is wrong with a lesson; 2 wrong usage.");
    std::vector<std::string> files;
    std::string airports;
    app.add_option("lessons", files, "The files, NAME.lesson")->required();
    app.add_option("--airports", airports, "The folder of their airspaces, NAME8.apt and NAME10.apt")
        ->required();
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::fputs(app.help().c_str(), stdout);
        return 0;
    } catch (const CLI::ParseError& error) {
        complain(std::string(error.what()) + "\nventrel-lesson --help tells more.");
        return wrongUsage;
    }
    bool isWell = true;
    for (const std::string& file : files) {
        isWell = check(file, airports) && isWell;
    }
    return isWell ? 0 : fault;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        complain(error.what());
        return fault;
    }
}
