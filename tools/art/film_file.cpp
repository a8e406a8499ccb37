#include "tools/art/film_file.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/random.h"

namespace ventrel::art {

namespace {

using Picture = std::vector<std::byte>;

// Content is put together as text, piece by piece.

void addNumber(std::string& content, std::size_t number, int size = 4) {
    for (int i = 0; i < size; ++i) {
        content += static_cast<char>(number >> (8 * i) & 0xFF);
    }
}

void addChunk(std::string& content, std::string_view tag, std::string_view inside) {
    content += tag;
    addNumber(content, inside.size());
    content += inside;
    content.append(inside.size() % 2, '\0');
}

void addList(std::string& content, std::string_view kind, const std::string& chunks) {
    addChunk(content, "LIST", std::string(kind) + chunks);
}

std::string_view textOf(const Picture& picture) {
    return {reinterpret_cast<const char*>(picture.data()), picture.size()};
}

/// What the headers say of the film.
struct Measures {
    FilmForm form;
    std::size_t pictures;
    std::size_t largest; ///< picture, in bytes

    std::size_t width() const { return static_cast<std::size_t>(form.size.width); }
    std::size_t height() const { return static_cast<std::size_t>(form.size.height); }
    std::size_t rate() const { return static_cast<std::size_t>(form.rate); }
};

std::string mainHeader(const Measures& film) {
    constexpr std::size_t hasIndex = 0x10;
    constexpr std::size_t microsecondsASecond = 1000000;
    std::string header;
    addNumber(header, microsecondsASecond / film.rate());
    addNumber(header, film.largest * film.rate());
    addNumber(header, 0); // no padding
    addNumber(header, hasIndex);
    addNumber(header, film.pictures);
    addNumber(header, 0); // no pictures ahead of the sound
    addNumber(header, 1); // stream
    addNumber(header, film.largest);
    addNumber(header, film.width());
    addNumber(header, film.height());
    addNumber(header, 0, 16); // reserved
    return header;
}

std::string streamHeader(const Measures& film) {
    constexpr std::size_t anyQuality = 0xFFFFFFFF;
    std::string header = "vidsMJPG";
    addNumber(header, 0); // flags
    addNumber(header, 0); // priority and language
    addNumber(header, 0); // pictures ahead
    addNumber(header, 1);
    addNumber(header, film.rate());
    addNumber(header, 0); // start
    addNumber(header, film.pictures);
    addNumber(header, film.largest);
    addNumber(header, anyQuality);
    addNumber(header, 0); // size of a sample: each its own
    addNumber(header, 0); // the picture's place
    addNumber(header, film.width(), 2);
    addNumber(header, film.height(), 2);
    return header;
}

std::string streamFormat(const Measures& film) {
    constexpr std::size_t size = 40;
    constexpr std::size_t bitsPerPixel = 24;
    std::string format;
    addNumber(format, size);
    addNumber(format, film.width());
    addNumber(format, film.height());
    addNumber(format, 1, 2); // plane
    addNumber(format, bitsPerPixel, 2);
    format += "MJPG";
    addNumber(format, film.width() * film.height() * bitsPerPixel / 8);
    addNumber(format, 0, 16); // no resolution, no colour table
    return format;
}

std::string headers(const Measures& film) {
    std::string stream;
    addChunk(stream, "strh", streamHeader(film));
    addChunk(stream, "strf", streamFormat(film));
    std::string all;
    addChunk(all, "avih", mainHeader(film));
    addList(all, "strl", stream);
    return all;
}

constexpr std::string_view pictureTag = "00dc";

std::string indexOf(std::span<const Picture> pictures) {
    constexpr std::size_t canStartHere = 0x10;
    constexpr std::size_t kindSize = 4;
    constexpr std::size_t chunkHeaderSize = 8;
    std::string index;
    std::size_t offset = kindSize; // from the list's kind
    for (const Picture& picture : pictures) {
        index += pictureTag;
        addNumber(index, canStartHere);
        addNumber(index, offset);
        addNumber(index, picture.size());
        offset += chunkHeaderSize + picture.size() + picture.size() % 2;
    }
    return index;
}

} // namespace

std::vector<std::byte> filmFile(const FilmForm& form, std::span<const Picture> pictures) {
    const std::size_t largest = std::ranges::max(pictures, {}, &Picture::size).size();
    std::string frames;
    for (const Picture& picture : pictures) {
        addChunk(frames, pictureTag, textOf(picture));
    }
    std::string content = "AVI ";
    addList(content, "hdrl", headers({form, pictures.size(), largest}));
    addList(content, "movi", frames);
    addChunk(content, "idx1", indexOf(pictures));
    std::string file;
    addChunk(file, "RIFF", content);
    const auto bytes = std::as_bytes(std::span(file));
    return {bytes.begin(), bytes.end()};
}

void addGrain(Bitmap& picture, int number) {
    constexpr int strength = 1;
    RandomGenerator random{static_cast<std::uint32_t>(number) + 1};
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Colour colour = toColour(picture.at(x, y));
            const int grain = Random(random, -strength, strength);
            const auto channel = [grain](int value) {
                return static_cast<unsigned>(std::clamp(value + grain, 0, 255));
            };
            picture.at(x, y) =
                toPixel(Colour::rgb(channel(colour.red()), channel(colour.green()), channel(colour.blue())));
        }
    }
}

} // namespace ventrel::art
