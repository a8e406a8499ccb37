#include "window_play.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <sstream>

namespace ventrel {

namespace {

constexpr Millis patience = 1000; // for what comes by itself, as submenus do

struct NamedKey {
    std::string_view name;
    Key key;
};
constexpr NamedKey namedKeys[]{{"Return", Key::enter}, {"Escape", Key::escape}, {"Tab", Key::tab},
                               {"space", Key::space},  {"Up", Key::up},         {"Down", Key::down},
                               {"Right", Key::right},  {"Home", Key::home},     {"Pause", Key::pause}};

class Play {
public:
    explicit Play(const PlayedProgram& program) : program_(program), script_(program.backend) {}

    void step(const std::string& verb, const std::string& rest, const std::string& where) {
        std::istringstream words(rest);
        const auto point = [&words] {
            Point p;
            words >> p.x >> p.y;
            return p;
        };
        if (verb == "key") {
            key(rest, where);
        } else if (verb == "type") {
            script_.type(rest);
        } else if (verb == "move") {
            script_.moveTo(point());
        } else if (verb == "click") {
            const Point at = point();
            std::string button;
            words >> button;
            script_.click(at, button == "right" ? MouseButton::right : MouseButton::left);
        } else if (verb == "doubleclick") {
            script_.doubleClick(point());
        } else if (verb == "wheel") {
            const Point at = point();
            int notches = 0;
            words >> notches;
            script_.wheel(at, notches);
        } else if (verb == "close") {
            script_.window(WindowEvent::closeRequested);
        } else {
            look(verb, rest, where);
        }
    }

private:
    void key(std::string name, const std::string& where) {
        Modifiers modifiers;
        for (std::size_t plus = name.find('+'); plus != std::string::npos; plus = name.find('+')) {
            const std::string modifier = name.substr(0, plus);
            modifiers.alt = modifiers.alt || modifier == "alt";
            modifiers.control = modifiers.control || modifier == "ctrl";
            modifiers.shift = modifiers.shift || modifier == "shift";
            name.erase(0, plus + 1);
        }
        const auto* const named = std::ranges::find(namedKeys, name, &NamedKey::name);
        if (named != std::end(namedKeys)) {
            script_.key(named->key, modifiers);
        } else if (name.size() != 1) {
            ADD_FAILURE() << where << "no such key: " << name;
        } else if (modifiers == Modifiers{}) {
            script_.type(name);
        } else {
            script_.key(static_cast<Key>(static_cast<int>(Key::a) + (name.front() - 'a')), modifiers);
        }
    }

    void look(const std::string& verb, const std::string& rest, const std::string& where) {
        const PlayedProgram program = program_;
        if (verb == "says") {
            script_.then([program, found = found_, rest, where] {
                std::size_t line = *found;
                while (line < program.said.size() && program.said[line] != rest) {
                    ++line;
                }
                EXPECT_LT(line, program.said.size()) << where << rest;
                *found = line + 1;
            });
        } else if (verb == "sees") {
            script_.wait(patience).then([program, rest, where] {
                std::istringstream words(rest);
                Point at;
                Pixel colour = 0;
                words >> at.x >> at.y >> std::hex >> colour;
                EXPECT_EQ(program.backend.screen().at(at.x, at.y), colour) << where << rest;
            });
        } else if (verb == "titled") {
            script_.then([program, rest, where] { EXPECT_EQ(program.backend.title(), rest) << where; });
        } else {
            EXPECT_EQ(verb, "ends") << where << "no such step";
        }
    }

    PlayedProgram program_;
    Script script_;
    std::shared_ptr<std::size_t> found_ =
        std::make_shared<std::size_t>(0); // lines of the program that were found
};

} // namespace

int addWindowPlay(const PlayedProgram& program, const std::filesystem::path& play) {
    std::ifstream file(play);
    EXPECT_TRUE(file.is_open()) << play;
    Play steps(program);
    std::string line;
    int count = 0;
    for (int number = 1; std::getline(file, line); ++number) {
        const std::size_t space = line.find(' ');
        const std::string verb = line.substr(0, space);
        if (verb.empty() || verb.front() == '#') {
            continue;
        }
        const std::string rest = space == std::string::npos ? "" : line.substr(space + 1);
        steps.step(verb, rest, play.filename().string() + ":" + std::to_string(number) + ": ");
        ++count;
    }
    return count;
}

} // namespace ventrel
