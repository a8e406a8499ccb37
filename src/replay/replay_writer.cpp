#include "replay/replay_writer.h"

#include "base/windows1252.h"
#include "replay/replay_text.h"

namespace ventrel {

Result<> ReplayWriter::begin(const std::filesystem::path& file, const ReplayHeader& header) {
    growing_.reset();
    auto made = GrowingFile::make(file);
    if (!made) {
        return tl::unexpected(std::move(made.error()));
    }
    const std::string text = replayHeaderText(header);
    if (auto written = made->append(text); !written) {
        std::error_code ignored;
        std::filesystem::remove(file, ignored); // nobody could watch it
        return written;
    }
    growing_ = std::move(*made);
    size_ = text.size();
    path_ = file;
    header_ = header;
    calls_ = 0;
    isDrawn_ = false;
    return {};
}

Result<> ReplayWriter::resume(const std::filesystem::path& file, const Replay& past, int calls) {
    if (auto begun = begin(file, past.header); !begun) {
        return begun;
    }
    for (const ReplayEvent& event : past.events) {
        write(replayLine(event));
    }
    for (const NoiseChange& change : past.noise) {
        write(replayLine(game_.clock, change));
        isDrawn_ = change.isDrawn;
    }
    calls_ = calls;
    return {};
}

void ReplayWriter::callMade(bool isDrawn) {
    if (isDrawn != isDrawn_) {
        isDrawn_ = isDrawn;
        write(replayLine(game_.clock, NoiseChange{calls_, isDrawn}));
    }
    ++calls_;
}

void ReplayWriter::becomePractice() {
    if (header_.kind != ReplayKind::practice) {
        header_.kind = ReplayKind::practice;
        write(practiceLine(game_.clock));
    }
}

void ReplayWriter::giveUp() {
    end(ReplayOutcome::givenUp);
}

void ReplayWriter::stepBegun() {
    add(ReplayedStep{game_.random.state, game_.score});
}

void ReplayWriter::lampChanged(LampLevel lit) {
    add(ReplayedLamp{lit});
}

void ReplayWriter::orderSent(FlightIndex flight, const PanelOrder& order) {
    add(replayedOrder(flight, order, game_.vorCount()));
}

void ReplayWriter::shiftEnded(ShiftResult result) {
    end(result == ShiftResult::collision ? ReplayOutcome::collision : ReplayOutcome::handled);
}

void ReplayWriter::add(const decltype(ReplayEvent::what)& what) {
    write(replayLine({.clock = game_.clock, .what = what}));
}

void ReplayWriter::end(ReplayOutcome outcome) {
    write(replayLine(ReplayEnd{game_.clock, outcome, game_.score}));
    growing_.reset();
}

void ReplayWriter::write(const std::string& line) {
    if (!growing_) {
        return;
    }
    size_ += line.size();
    const auto written = size_ <= largestReplay
                             ? growing_->append(line)
                             : Result<>{failed("The replay " + pathText(path_) + " is too long to go on.")};
    if (!written) {
        growing_.reset();
        if (onFailure) {
            onFailure(written.error());
        }
    }
}

} // namespace ventrel
