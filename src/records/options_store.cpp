#include "records/options_store.h"

#include <utility>

namespace ventrel {

namespace {

constexpr std::string_view cannotRead = "The options are not as you left them, and none will be kept today. ";
constexpr std::string_view cannotSave = "The options cannot be saved. ";
constexpr std::string_view nowhere = "No folder of yours is known (is HOME set?).";

} // namespace

OptionsStore::OptionsStore(std::filesystem::path file)
    : file_(std::move(file)), atStart_(ProfileFile::fromText(file_, "")) {
    auto profile = ProfileFile::read(file_);
    if (profile) {
        atStart_ = std::move(*profile);
        std::error_code fault;
        isFirstStart_ = !file_.empty() && !std::filesystem::exists(file_, fault) && !fault;
    } else {
        mayWrite_ = false;
        note(cannotRead, profile.error());
    }
}

ProfileFile OptionsStore::now() const {
    return ProfileFile::read(file_).value_or(ProfileFile::fromText(file_, ""));
}

void OptionsStore::update(const std::function<void(ProfileFile&)>& change) {
    if (!mayWrite_) {
        return;
    }
    if (file_.empty()) {
        note(cannotSave, {std::string(nowhere)});
        return;
    }
    auto profile = ProfileFile::read(file_);
    if (!profile) {
        note(cannotSave, profile.error());
        return;
    }
    change(*profile);
    if (const auto saved = profile->save(); !saved) {
        note(cannotSave, saved.error());
    }
}

std::optional<Failure> OptionsStore::takeFailure() {
    wasTold_ = wasTold_ || failure_;
    return std::exchange(failure_, std::nullopt);
}

void OptionsStore::note(std::string_view what, const Failure& reason) {
    if (!wasTold_) {
        failure_ = Failure{std::string(what) + reason.text, MessageIcon::exclamation};
    }
}

} // namespace ventrel
