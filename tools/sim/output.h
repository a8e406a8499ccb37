// Text on its way out: gathered in large pieces, Windows-1252 turned into UTF-8.

#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace ventrel {

class Output {
public:
    /// Writes to an open file, which stays the caller's; without one the text is kept (see text).
    explicit Output(std::FILE* file = nullptr);

    Output& operator<<(std::string_view plain);
    Output& operator<<(char plain);
    Output& operator<<(int number);
    /// Windows-1252 as a JSON string: quotes around it, double quote and backslash escaped.
    Output& quoted(std::string_view text);

    /// Marks the end of a line; writes the text out now and then.
    void endLine();

    /// Writes out the rest. False when something could not be written.
    bool finish();

    const std::string& text() const { return text_; }

private:
    void appendEncoded(std::string_view text);
    void writeOut();

    std::FILE* file_;
    std::string text_;
    bool failed_ = false;
};

} // namespace ventrel
