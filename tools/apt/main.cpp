// ventrel-apt: compiles airspaces from text, checks them, draws them, and prints them as text again.

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <functional>
#include <string>
#include <system_error>
#include <vector>

#include "base/windows1252.h"
#include "sim/grid.h"
#include "tools/apt/commands.h"
#include "tools/apt/files.h"

namespace {

using namespace ventrel;
namespace fs = std::filesystem;

constexpr int wrongUsage = 2;
constexpr const char* footer =
    "\nExit status: 0 all is well; 1 a file has problems or cannot be read or written; 2 wrong usage.\n"
    "The source format and what check looks at are described in docs/formats.md.";

/// The words of the command line, for whichever command they are.
struct Arguments {
    std::vector<std::string> files;
    std::string file;
    std::string output;
    std::string picture;
    std::optional<int> width;
    bool grid = false;
    bool blank = false;
};

CLI::Validator oneOfTheLayouts() {
    return CLI::IsMember({smallLayout.windowWidth, largeLayout.windowWidth});
}

void addBuild(CLI::App& app, Arguments& a, std::function<int()>& run) {
    CLI::App* command = app.add_subcommand("build", "Compiles a text source for one screen layout");
    command->add_option("SOURCE.toml", a.file, "The text source")->required();
    command->add_option("-o", a.output, "The airport file to write")->required()->type_name("FILE.apt");
    command->add_option("--width", a.width, "The layout, by the width of its window")
        ->required()
        ->check(oneOfTheLayouts());
    command->callback([&] { run = [&] { return apt::build(a.file, a.output, *a.width); }; });
}

void addCheck(CLI::App& app, Arguments& a, std::function<int()>& run) {
    CLI::App* command = app.add_subcommand("check", "Names every problem that a player would meet in airport "
                                                    "files or sources; silent when there is none");
    command->add_option("FILE", a.files, "Airport files and sources, by their ends .apt and .toml")
        ->required();
    command->callback([&] { run = [&] { return apt::check({a.files.begin(), a.files.end()}); }; });
}

void addShow(CLI::App& app, Arguments& a, std::function<int()>& run) {
    CLI::App* command = app.add_subcommand("show", "Prints an airport file as a source");
    command->add_option("FILE.apt", a.file, "The airport file")->required();
    command->add_option("--picture", a.picture, "Where its picture goes")->type_name("OUT.jpg");
    command->callback([&] { run = [&] { return apt::show(a.file, a.picture); }; });
}

void addDraw(CLI::App& app, Arguments& a, std::function<int()>& run, const fs::path& fonts) {
    CLI::App* command = app.add_subcommand("draw", "Draws the map of an airport file or a source");
    CLI::Option* file = command->add_option("FILE", a.file, "The airport file or the source");
    command->add_option("-o", a.output, "The picture to write")->required()->type_name("PICTURE.png");
    command->add_option("--width", a.width, "The layout; without it the file's own, or 800")
        ->check(oneOfTheLayouts());
    CLI::Option* grid = command->add_flag("--grid", a.grid, "With the dots of the grid");
    command->add_flag("--blank", a.blank, "No file, but the empty grid with cell numbers, to paint over")
        ->excludes(file)
        ->excludes(grid);
    command->callback([&, fonts] {
        if (a.file.empty() && !a.blank) {
            throw CLI::RequiredError("FILE or --blank");
        }
        run = [&, fonts] {
            return apt::draw({.file = a.file,
                              .target = a.output,
                              .width = a.width,
                              .dots = a.grid ? apt::GridDots::shown : apt::GridDots::hidden,
                              .fonts = fonts});
        };
    });
}

fs::path programFolder(const char* startedAs) {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    return (error ? fs::path(startedAs) : program).parent_path();
}

int runTool(int argc, char** argv) {
    CLI::App app("Makes airspaces for Ventrel.", "ventrel-apt");
    app.require_subcommand(0, 1);
    app.footer(footer);
    Arguments arguments;
    std::function<int()> run;
    addBuild(app, arguments, run);
    addCheck(app, arguments, run);
    addShow(app, arguments, run);
    addDraw(app, arguments, run, programFolder(argv[0]) / "fonts");
    try {
        app.parse(argc, argv);
        if (!run) {
            throw CLI::RequiredError("A command");
        }
    } catch (const CLI::CallForHelp&) {
        return apt::print(app.help()) ? apt::success : apt::faulty;
    } catch (const CLI::ParseError& error) {
        apt::complain(std::string(error.what()) + "\nventrel-apt --help tells more.");
        return wrongUsage;
    }
    return run();
}

} // namespace

int main(int argc, char** argv) {
    try {
        return runTool(argc, argv);
    } catch (const std::exception& error) { // such as memory that ran out
        std::fprintf(stderr, "ventrel-apt: %s\n", toTerminal(error.what()).c_str());
        return apt::faulty;
    }
}
