#include "shell/pictures.h"

#include <string>

#include "base/data_path.h"
#include "base/format.h"
#include "base/string_table.h"
#include "base/windows1252.h"
#include "console/window_size.h"
#include "platform/canvas/image.h"
#include "radar/clouds.h"
#include "radar/radar_window.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

struct ConsoleNames {
    std::string_view console;
    std::string_view radarFrame;
};
constexpr ConsoleNames smallNames{"grf\\bkgnd8.grf", "grf\\r8frame.grf"};
constexpr ConsoleNames largeNames{"grf\\bkgnd10.grf", "grf\\r10frame.grf"};

constexpr std::array<std::string_view, 3> darkLamps{"grf\\lamp_green_dark.grf", "grf\\lamp_yellow_dark.grf",
                                                    "grf\\lamp_red_dark.grf"};
constexpr std::array<std::string_view, 3> brightLamps{
    "grf\\lamp_green_bright.grf", "grf\\lamp_yellow_bright.grf", "grf\\lamp_red_bright.grf"};

constexpr Point handHotSpot{6, 0};
constexpr Point arrowHotSpot{7, 9};

/// Loads pictures until one fails; from then on it does nothing more.
class PictureLoader {
public:
    PictureLoader(const fs::path& folder, const FailureReporter& report) : folder_(folder), report_(report) {}

    bool hasFailed() const { return hasFailed_; }

    Bitmap load(std::string_view name) {
        Bitmap bitmap;
        if (hasFailed_) {
            return bitmap;
        }
        const fs::path file = DataPath(folder_, name);
        Image image;
        if (ImageLoadFile(image, file, ImageFormat::png) != ImageError::none ||
            ImageToBitmap(image, bitmap) != ImageError::none) {
            hasFailed_ = true;
            report_(FormatStringId(TextId::cannotOpenFile, {pathText(file)}), MessageIcon::stop);
        }
        return bitmap;
    }

private:
    const fs::path& folder_;
    const FailureReporter& report_;
    bool hasFailed_ = false;
};

/// A picture with clear parts, split into what is drawn and where.
CursorImage pointer(Bitmap picture, Point hotSpot) {
    Bitmap mask(picture.size());
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const bool isDrawn = toColour(picture.at(x, y)) != cloudTransparent;
            mask.at(x, y) = isDrawn ? whitePixel : Pixel{0};
        }
    }
    return {std::move(picture), std::move(mask), hotSpot};
}

} // namespace

std::optional<Pictures> loadPictures(const fs::path& programFolder, int windowWidth,
                                     const FailureReporter& report) {
    const ConsoleNames& names = windowWidth == largeWindow.width ? largeNames : smallNames;
    PictureLoader loader(programFolder, report);
    Pictures pictures;
    pictures.console = loader.load(names.console);
    pictures.radarFrame = loader.load(names.radarFrame);
    for (std::size_t i = 0; i < darkLamps.size(); ++i) {
        pictures.lamps.dark[i] = loader.load(darkLamps[i]);
        pictures.lamps.bright[i] = loader.load(brightLamps[i]);
    }
    for (int i = 0; i < cloudPictureCount; ++i) {
        pictures.clouds.push_back(loader.load(FormatText("grf\\cloud%d.grf", {long{i}})));
    }
    pictures.stripButtonUp = loader.load("grf\\strip_button_up.grf");
    pictures.stripButtonDown = loader.load("grf\\strip_button_down.grf");
    pictures.hand = pointer(loader.load("grf\\pointer_hand.grf"), handHotSpot);
    pictures.arrow = pointer(loader.load("grf\\pointer_arrow.grf"), arrowHotSpot);
    return loader.hasFailed() ? std::nullopt : std::optional(std::move(pictures));
}

std::optional<CursorImage> loadIcon(const fs::path& programFolder) {
    PictureLoader loader(programFolder, [](std::string_view, MessageIcon) {});
    Bitmap icon = loader.load("grf\\icon.grf");
    return loader.hasFailed() ? std::nullopt : std::optional(pointer(std::move(icon), {}));
}

} // namespace ventrel
