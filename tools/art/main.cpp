// ventrel-art: writes the program's drawings as SVG, and makes its pictures from what was rendered of them.

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/whole_file.h"
#include "base/windows1252.h"
#include "tools/art/commands.h"

namespace {

using namespace ventrel;

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;
constexpr std::size_t largestMaterials = std::size_t{1} << 20;

int complain(std::string_view text, int status) {
    std::fprintf(stderr, "ventrel-art: %s\n", toTerminal(text).c_str());
    return status;
}

int list() {
    for (const std::string& name : art::drawingNames()) {
        std::puts(name.c_str());
    }
    return success;
}

/// A drawing that has not changed keeps its date, so that nothing is rendered anew.
bool stands(const std::filesystem::path& file, std::span<const std::byte> content) {
    const auto there = readWholeFile(file, content.size());
    return there && std::ranges::equal(*there, content);
}

int draw(const std::string& name, const std::string& materials, const std::string& target) {
    const auto content = readWholeFile(materials, largestMaterials);
    if (!content) {
        return complain(content.error().text, failure);
    }
    const std::string text =
        art::drawing(name, {reinterpret_cast<const char*>(content->data()), content->size()});
    if (text.empty()) {
        return complain("there is no drawing '" + fromUtf8(name) + '\'', wrongUsage);
    }
    const auto bytes = std::as_bytes(std::span(text));
    if (stands(target, bytes)) {
        return success;
    }
    const auto written = replaceFile(target, bytes);
    return written ? success : complain(written.error().text, failure);
}

int statusOf(bool succeeded) {
    return succeeded ? success : failure;
}

using Words = std::vector<std::string>;

/// A command, its operands by name, and what it does with their values.
struct Command {
    const char* name;
    const char* meaning;
    std::vector<const char*> operands;
    int (*run)(const Words& values);
};

std::vector<Command> allCommands() {
    return {
        {"list", "Prints the names of all drawings", {}, [](const Words&) { return list(); }},
        {"draw",
         "Writes one of them as a drawing",
         {"NAME", "MATERIALS", "OUT.svg"},
         [](const Words& words) { return draw(words[0], words[1], words[2]); }},
        {"convert",
         "Writes a rendered picture as the program reads it",
         {"IN.png", "OUT"},
         [](const Words& words) {
             return statusOf(art::convertPicture(words[0], words[1], PngPacking::small));
         }},
        {"store",
         "The same unpacked: large, but read in no time",
         {"IN.png", "OUT"},
         [](const Words& words) {
             return statusOf(art::convertPicture(words[0], words[1], PngPacking::none));
         }},
        {"jpeg",
         "The same as a JPEG picture",
         {"IN.png", "OUT"},
         [](const Words& words) { return statusOf(art::convertToJpeg(words[0], words[1])); }},
        {"frame",
         "Cuts the radar's frame out of a rendered console",
         {"CONSOLE.png", "OUT"},
         [](const Words& words) { return statusOf(art::cutRadarFrame(words[0], words[1])); }},
        {"film",
         "Makes the film of its rendered sheets, film0.png and so on",
         {"FOLDER", "OUT.avi"},
         [](const Words& words) { return statusOf(art::assembleFilm(words[0], words[1])); }},
        {"key",
         "Makes a picture with clear parts of two renderings",
         {"ONBLACK.png", "ONWHITE.png", "OUT"},
         [](const Words& words) {
             return statusOf(art::keyPicture(words[0], words[1], words[2], art::Edge::crisp));
         }},
        {"dither",
         "The same with a soft edge",
         {"ONBLACK.png", "ONWHITE.png", "OUT"},
         [](const Words& words) {
             return statusOf(art::keyPicture(words[0], words[1], words[2], art::Edge::dithered));
         }},
    };
}

int runTool(int argc, char** argv) {
    CLI::App app("Draws the pictures of Ventrel.", "ventrel-art");
    app.footer("\nExit status: 0 done; 1 a file cannot be read or written; 2 wrong usage.");
    app.require_subcommand(0, 1);
    int status = wrongUsage;
    const std::vector<Command> commands = allCommands();
    std::vector<Words> values;
    values.reserve(commands.size());
    for (const Command& command : commands) {
        values.emplace_back(command.operands.size());
    }
    for (std::size_t i = 0; i < commands.size(); ++i) {
        CLI::App* command = app.add_subcommand(commands[i].name, commands[i].meaning);
        for (std::size_t k = 0; k < values[i].size(); ++k) {
            command->add_option(commands[i].operands[k], values[i][k])->required();
        }
        command->callback([&, i] { status = commands[i].run(values[i]); });
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::fputs(app.help().c_str(), stdout);
        return success;
    } catch (const CLI::ParseError& error) {
        return complain(std::string(error.what()) + "\nventrel-art --help tells more.", wrongUsage);
    }
    return app.get_subcommands().empty()
               ? complain("A command is required\nventrel-art --help tells more.", wrongUsage)
               : status;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return runTool(argc, argv);
    } catch (const std::exception& error) { // such as memory that ran out
        std::fprintf(stderr, "ventrel-art: %s\n", toTerminal(error.what()).c_str());
        return failure;
    }
}
