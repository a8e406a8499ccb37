// Writes a drawing as SVG text. Numbers are written with two decimals, so that the same drawing is the same
// text.

#pragma once

#include <string>
#include <string_view>

#include "base/geometry.h"

namespace ventrel::art {

struct Spot {
    double x = 0;
    double y = 0;
};

/// An area of the drawing; its sides need not lie on whole pixels.
struct Box {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    Box() = default;
    constexpr Box(double left, double top, double w, double h) : x(left), y(top), width(w), height(h) {}
    explicit constexpr Box(const Rect& rect) : Box(rect.left, rect.top, rect.width(), rect.height()) {}

    constexpr Box grownBy(double amount) const {
        return {x - amount, y - amount, width + 2 * amount, height + 2 * amount};
    }
    constexpr double right() const { return x + width; }
    constexpr double bottom() const { return y + height; }
    constexpr Spot middle() const { return {x + width / 2, y + height / 2}; }
};

/// Upwards is 0 degrees; they go on clockwise.
Spot around(Spot centre, double radius, double degrees);

/// A number as it is written into a drawing.
std::string number(double value);

/// The same with five decimals, for scales and the grain of noise.
std::string fineNumber(double value);

/// A straight line as a part of a path.
std::string moved(Spot from, Spot to);

class Svg {
public:
    explicit Svg(Size size);

    /// Everything that `definitions` holds (gradients, filters, symbols) can be named from here on.
    void define(std::string_view definitions);

    /// `look` is any further attributes, such as fill="#fff" opacity=".5".
    void rect(const Box& box, double radius, std::string_view look);
    void circle(Spot centre, double radius, std::string_view look);
    void ellipse(const Box& box, std::string_view look);
    void line(Spot from, Spot to, std::string_view look);
    void path(std::string_view data, std::string_view look);
    /// A symbol defined before, moved to `at` and turned by `degrees`.
    void use(std::string_view symbol, Spot at, double degrees = 0);

    /// Text centred on `middle` across and standing on it, in the console's narrow bold face. It stands on a
    /// whole pixel, so that the feet and heads of its letters stay sharp.
    void text(Spot middle, std::string_view words, double size, double spacing, std::string_view look);

    /// Text in another face, which `look` names with its size and where `at` is in it.
    void words(Spot at, std::string_view words, std::string_view look);

    void open(std::string_view look); ///< a group
    void close();

    /// A picture within the picture, cut at its edges; what is drawn until it is closed is measured from its
    /// corner.
    void openPicture(Point corner, Size size);
    void closePicture();
    /// Another picture file, which lies beside this drawing, stretched over an area.
    void picture(std::string_view file, const Box& area);

    /// The finished drawing.
    std::string text() const;

private:
    Size size_;
    std::string body_;
};

} // namespace ventrel::art
