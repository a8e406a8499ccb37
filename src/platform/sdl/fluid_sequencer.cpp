#include "platform/sdl/fluid_sequencer.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "platform/sdl/piece_renderer.h"

namespace ventrel {

namespace {

using namespace std::chrono_literals;

/// The instruments take a core for a tenth of a second at the start: the first picture goes before.
constexpr auto pauseBeforeLoading = 80ms;
constexpr auto renderPause = 60ms; // well within what the stream stores
constexpr int tailSeconds = 4;     // that a piece may ring on after its end
/// A standard MIDI file begins so. See https://midi.org/standard-midi-files.
constexpr std::array fileMark{std::byte{'M'}, std::byte{'T'}, std::byte{'h'}, std::byte{'d'}};

bool isMidiFile(std::span<const std::byte> file) {
    return file.size() > fileMark.size() && std::ranges::equal(file.first(fileMark.size()), fileMark);
}

} // namespace

FluidSequencer::FluidSequencer(Mixer& mixer, int rate, std::vector<std::filesystem::path> soundfonts,
                               std::function<void()> wake)
    : mixer_(mixer), rate_(rate), soundfonts_(std::move(soundfonts)), wake_(std::move(wake)) {}

FluidSequencer::~FluidSequencer() {
    stop();
    if (thread_.joinable()) {
        {
            const std::lock_guard lock(mutex_);
            isQuitting_ = true;
        }
        changed_.notify_one();
        thread_.join();
    }
}

bool FluidSequencer::play(std::span<const std::byte> midi, bool repeat) {
    if (!isMidiFile(midi)) {
        stop();
        return false;
    }
    ++lastPiece_;
    {
        const std::lock_guard lock(mutex_);
        order_ = {lastPiece_, {midi.begin(), midi.end()}, repeat};
        mixer_.music().want(lastPiece_);
    }
    if (thread_.joinable()) {
        changed_.notify_one();
    } else {
        thread_ = std::thread([this] { run(); });
    }
    wake_();
    return true;
}

void FluidSequencer::stop() {
    const std::lock_guard lock(mutex_);
    order_ = {};
    mixer_.music().want(MusicStream::silence);
}

bool FluidSequencer::isPlaying() const {
    const MusicStream& music = mixer_.music();
    const MusicStream::Piece piece = music.wanted();
    return piece != MusicStream::silence && !music.hasEnded(piece) && failed_ != piece;
}

bool FluidSequencer::isWanted(MusicStream::Piece piece) const {
    return mixer_.music().wanted() == piece;
}

FluidSequencer::Order FluidSequencer::waitForOrder() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return isQuitting_ || order_.piece != MusicStream::silence; });
    return isQuitting_ ? Order{} : std::exchange(order_, {});
}

/// Whether the sequencer has not ended meanwhile.
bool FluidSequencer::waitBeforeLoading() {
    std::unique_lock lock(mutex_);
    return !changed_.wait_for(lock, pauseBeforeLoading, [this] { return isQuitting_; });
}

void FluidSequencer::run() {
    if (!waitBeforeLoading()) {
        return;
    }
    PieceRenderer renderer(rate_);
    const bool hasInstruments = renderer.loadInstruments(soundfonts_);
    for (;;) {
        const Order order = waitForOrder();
        if (order.piece == MusicStream::silence) {
            return;
        }
        renderer.silence();
        if (hasInstruments && renderer.begin(order.midi)) {
            mixer_.music().begin(order.piece);
            renderPiece(renderer, order);
        } else {
            failed_ = order.piece;
        }
    }
}

/// Until the piece has rung out or another is wanted.
void FluidSequencer::renderPiece(PieceRenderer& renderer, const Order& order) {
    MusicStream& music = mixer_.music();
    std::array<float, 2 * PieceRenderer::grain> grain;
    int tail = tailSeconds * rate_;
    bool isEnding = false;
    bool hasNotes = false; // a damaged piece ends as it begins, and would be begun for ever
    while (isWanted(order.piece) && tail > 0) {
        if (music.room() < PieceRenderer::grain) {
            std::this_thread::sleep_for(renderPause);
            continue;
        }
        renderer.render(grain);
        music.write(grain);
        if (isEnding) {
            tail -= static_cast<int>(PieceRenderer::grain);
        } else if (renderer.isAtEnd()) {
            isEnding = !order.repeat || !hasNotes || !renderer.begin(order.midi);
            if (isEnding) {
                music.markEnd();
            }
        } else {
            hasNotes = true;
        }
    }
}

} // namespace ventrel
