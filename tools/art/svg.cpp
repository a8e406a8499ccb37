#include "tools/art/svg.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace ventrel::art {

namespace {

constexpr std::string_view labelFace = "Liberation Sans Narrow";

std::string attribute(std::string_view name, double value) {
    return ' ' + std::string(name) + "=\"" + number(value) + '"';
}

} // namespace

Spot around(Spot centre, double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {centre.x + radius * std::sin(angle), centre.y - radius * std::cos(angle)};
}

std::string number(double value) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.2f", value);
    return text.data();
}

std::string fineNumber(double value) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.5f", value);
    return text.data();
}

std::string moved(Spot from, Spot to) {
    return 'M' + number(from.x) + ',' + number(from.y) + " L" + number(to.x) + ',' + number(to.y);
}

Svg::Svg(Size size) : size_(size) {}

void Svg::define(std::string_view definitions) {
    body_ += "<defs>\n";
    body_ += definitions;
    body_ += "</defs>\n";
}

void Svg::rect(const Box& box, double radius, std::string_view look) {
    body_ += "<rect" + attribute("x", box.x) + attribute("y", box.y) + attribute("width", box.width) +
             attribute("height", box.height) + attribute("rx", radius) + ' ' + std::string(look) + "/>\n";
}

void Svg::circle(Spot centre, double radius, std::string_view look) {
    body_ += "<circle" + attribute("cx", centre.x) + attribute("cy", centre.y) + attribute("r", radius) +
             ' ' + std::string(look) + "/>\n";
}

void Svg::ellipse(const Box& box, std::string_view look) {
    const auto [x, y] = box.middle();
    body_ += "<ellipse" + attribute("cx", x) + attribute("cy", y) + attribute("rx", box.width / 2) +
             attribute("ry", box.height / 2) + ' ' + std::string(look) + "/>\n";
}

void Svg::line(Spot from, Spot to, std::string_view look) {
    body_ += "<line" + attribute("x1", from.x) + attribute("y1", from.y) + attribute("x2", to.x) +
             attribute("y2", to.y) + ' ' + std::string(look) + "/>\n";
}

void Svg::path(std::string_view data, std::string_view look) {
    body_ += "<path d=\"" + std::string(data) + "\" " + std::string(look) + "/>\n";
}

void Svg::use(std::string_view symbol, Spot at, double degrees) {
    body_ += "<use xlink:href=\"#" + std::string(symbol) + "\" transform=\"translate(" + number(at.x) + ' ' +
             number(at.y) + ") rotate(" + number(degrees) + ")\"/>\n";
}

void Svg::text(Spot middle, std::string_view words, double size, double spacing, std::string_view look) {
    body_ += "<text font-family=\"" + std::string(labelFace) +
             "\" font-weight=\"bold\" text-anchor=\"middle\"" + attribute("font-size", size) +
             attribute("letter-spacing", spacing) + attribute("x", middle.x + spacing / 2) +
             attribute("y", std::round(middle.y)) + ' ' + std::string(look) + '>' + std::string(words) +
             "</text>\n";
}

void Svg::words(Spot at, std::string_view words, std::string_view look) {
    body_ += "<text" + attribute("x", at.x) + attribute("y", at.y) + ' ' + std::string(look) + '>' +
             std::string(words) + "</text>\n";
}

void Svg::open(std::string_view look) {
    body_ += "<g " + std::string(look) + ">\n";
}

void Svg::close() {
    body_ += "</g>\n";
}

void Svg::openPicture(Point corner, Size size) {
    body_ += "<svg" + attribute("x", corner.x) + attribute("y", corner.y) + attribute("width", size.width) +
             attribute("height", size.height) + " overflow=\"hidden\">\n";
}

void Svg::closePicture() {
    body_ += "</svg>\n";
}

void Svg::picture(std::string_view file, const Box& area) {
    body_ += "<image xlink:href=\"" + std::string(file) + '"' + attribute("x", area.x) +
             attribute("y", area.y) + attribute("width", area.width) + attribute("height", area.height) +
             " preserveAspectRatio=\"none\"/>\n";
}

std::string Svg::text() const {
    const std::string width = std::to_string(size_.width);
    const std::string height = std::to_string(size_.height);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"" +
           width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + ' ' + height + "\">\n" + body_ +
           "</svg>\n";
}

} // namespace ventrel::art
