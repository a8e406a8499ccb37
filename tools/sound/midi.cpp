#include "tools/sound/midi.h"

#include <algorithm>
#include <ranges>
#include <stdexcept>

namespace ventrel::sound {

namespace {

constexpr unsigned meta = 0xFF;
constexpr unsigned endOfTrack = 0x2F;
constexpr unsigned tempo = 0x51;
constexpr unsigned exclusive = 0xF0;
constexpr unsigned escape = 0xF7;
constexpr unsigned statusBit = 0x80;
constexpr std::size_t chunkHeader = 8;

/// Reads on from a place; past the end it throws std::out_of_range.
class Reader {
public:
    Reader(const std::string& bytes, std::size_t at) : bytes_(&bytes), at_(at) {}

    std::size_t at() const { return at_; }
    void skip(std::size_t count) { at_ += count; }
    unsigned peek() const { return static_cast<unsigned char>(bytes_->at(at_)); }
    unsigned byte() { return static_cast<unsigned char>(bytes_->at(at_++)); }
    unsigned number(int size) {
        unsigned value = 0;
        while (size-- > 0) {
            value = value << 8U | byte();
        }
        return value;
    }
    /// A number in groups of seven bits.
    unsigned grouped() {
        unsigned value = 0;
        for (;;) {
            const unsigned next = byte();
            value = value << 7U | (next & 0x7FU);
            if (next < statusBit) {
                return value;
            }
        }
    }

private:
    const std::string* bytes_;
    std::size_t at_;
};

/// How many data bytes follow that status.
std::size_t dataOf(unsigned status) {
    const unsigned kind = status & 0xF0U;
    return kind == 0xC0U || kind == 0xD0U ? 1 : 2;
}

MidiTrack readTrack(const std::string& bytes, std::size_t header, double& secondsPerBeat) {
    constexpr double microseconds = 1e-6;
    MidiTrack track;
    track.header = header;
    Reader reader(bytes, header + chunkHeader);
    unsigned status = 0;
    for (;;) {
        track.waitBegin = reader.at();
        track.end = track.lastEvent + reader.grouped();
        track.waitEnd = reader.at();
        if (reader.peek() >= statusBit) {
            status = reader.byte();
        }
        if (status == meta) {
            const unsigned type = reader.byte();
            const unsigned length = reader.grouped();
            if (type == endOfTrack) {
                return track;
            }
            if (type == tempo && secondsPerBeat == 0) {
                secondsPerBeat = Reader(bytes, reader.at()).number(3) * microseconds;
            }
            reader.skip(length);
        } else if (status == exclusive || status == escape) {
            reader.skip(reader.grouped());
        } else {
            const bool isNoteOn = (status & 0xF0U) == 0x90U && Reader(bytes, reader.at() + 1).peek() > 0;
            track.notes += isNoteOn ? 1 : 0;
            reader.skip(dataOf(status));
        }
        track.lastEvent = track.end;
    }
}

std::string grouped(unsigned value) {
    std::string text(1, static_cast<char>(value & 0x7FU));
    while ((value >>= 7U) != 0) {
        text.insert(text.begin(), static_cast<char>((value & 0x7FU) | statusBit));
    }
    return text;
}

std::string bigEndian(std::size_t value) {
    std::string text;
    for (unsigned shift = 32; shift > 0; shift -= 8) {
        text += static_cast<char>((value >> (shift - 8)) & 0xFFU);
    }
    return text;
}

} // namespace

Result<MidiPiece> readMidi(const std::string& bytes) {
    if (!bytes.starts_with("MThd")) {
        return failed("no MIDI file");
    }
    try {
        MidiPiece piece;
        Reader reader(bytes, chunkHeader + 2);
        const unsigned count = reader.number(2);
        piece.ticksPerBeat = reader.number(2);
        std::size_t at = reader.at();
        while (piece.tracks.size() < count) {
            piece.tracks.push_back(readTrack(bytes, at, piece.secondsPerBeat));
            at += chunkHeader + Reader(bytes, at + 4).number(4);
        }
        return piece;
    } catch (const std::out_of_range&) {
        return failed("a MIDI file that is cut short");
    }
}

Result<std::string> endOnBeat(const std::string& bytes) {
    const auto piece = readMidi(bytes);
    if (!piece) {
        return tl::unexpected(piece.error());
    }
    unsigned end = 0;
    for (const MidiTrack& track : piece->tracks) {
        end = std::max(end, track.end / piece->ticksPerBeat * piece->ticksPerBeat);
    }
    std::string result = bytes;
    // From the last track to the first: places before a change stay where they are.
    for (const MidiTrack& track : std::views::reverse(piece->tracks)) {
        if (track.lastEvent > end) {
            return failed("a note sounds beyond the last beat");
        }
        const std::string wait = grouped(end - track.lastEvent);
        const std::size_t oldWait = track.waitEnd - track.waitBegin;
        const std::size_t length = Reader(bytes, track.header + 4).number(4) + wait.size() - oldWait;
        result.replace(track.waitBegin, oldWait, wait);
        result.replace(track.header + 4, 4, bigEndian(length));
    }
    return result;
}

} // namespace ventrel::sound
