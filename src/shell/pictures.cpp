#include "shell/pictures.h"

#include "base/data_path.h"
#include "base/format.h"
#include "base/string_table.h"
#include "base/windows1252.h"
#include "console/console_layout.h"
#include "console/window_size.h"
#include "radar/clouds.h"
#include "radar/radar_window.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view consoleNames[] = {"grf\\bkgnd8.grf", "grf\\bkgnd10.grf"};
constexpr std::string_view radarFrameNames[] = {"grf\\r8frame.grf", "grf\\r10frame.grf"};
constexpr std::array<std::string_view, 3> darkLamps{"grf\\lamp_green_dark.grf", "grf\\lamp_yellow_dark.grf",
                                                    "grf\\lamp_red_dark.grf"};
constexpr std::array<std::string_view, 3> brightLamps{
    "grf\\lamp_green_bright.grf", "grf\\lamp_yellow_bright.grf", "grf\\lamp_red_bright.grf"};

constexpr Size pointerSize{32, 32};
constexpr Size largestIcon{256, 256};
constexpr Point handHotSpot{6, 0};
constexpr Point arrowHotSpot{7, 9};

std::string pixelsText(Size size) {
    return FormatText("%d x %d", {long{size.width}, long{size.height}});
}

tl::unexpected<Failure> wrongSize(const fs::path& file, Size size, std::string_view wanted) {
    return failed(FormatText("The picture %s has %s pixels in place of %s. Please re-install.",
                             {pathText(file), pixelsText(size), std::string(wanted)}));
}

Result<Bitmap> decodePicture(const fs::path& file, ImageFormat format = ImageFormat::png) {
    Image image;
    Bitmap bitmap;
    if (ImageLoadFile(image, file, format) != ImageError::none ||
        ImageToBitmap(image, bitmap) != ImageError::none) {
        return failed(FormatStringId(TextId::cannotOpenFile, {pathText(file)}));
    }
    return bitmap;
}

/// Loads pictures of a certain size until one fails; from then on it does nothing more.
class PictureLoader {
public:
    explicit PictureLoader(fs::path folder) : folder_(std::move(folder)) {}

    const std::optional<Failure>& failure() const { return failure_; }

    Bitmap load(std::string_view name, Size size) {
        if (failure_) {
            return {};
        }
        Result<Bitmap> picture = loadPictureOfSize(folder_, name, size);
        if (!picture) {
            failure_ = std::move(picture.error());
            return {};
        }
        return std::move(*picture);
    }

private:
    fs::path folder_;
    std::optional<Failure> failure_;
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

Bitmap clearCloud() {
    Bitmap cloud({1, 1});
    cloud.at(0, 0) = toPixel(cloudTransparent);
    return cloud;
}

/// Every number of a cloud has its picture, so that a shift draws the same chances whatever is missing.
void loadClouds(LoadedPictures& loaded, const fs::path& programFolder, Size scope) {
    for (int i = 0; i < cloudPictureCount; ++i) {
        auto cloud = loadPicture(programFolder, FormatText("grf\\cloud%d.grf", {long{i}}), scope);
        if (!cloud) {
            loaded.troubles.push_back(std::move(cloud.error().text));
        }
        loaded.pictures.clouds.push_back(cloud ? std::move(*cloud) : clearCloud());
    }
}

} // namespace

Result<LoadedPictures> loadPictures(const fs::path& programFolder, int windowWidth) {
    const bool large = windowWidth == largeWindow.width;
    const ConsoleLayout& console = consoleLayoutFor(windowWidth);
    const Size scope{console.radar.scopeSize, console.radar.scopeSize};
    PictureLoader loader(programFolder);
    LoadedPictures loaded;
    Pictures& pictures = loaded.pictures;
    pictures.console = loader.load(consoleNames[large ? 1 : 0], console.size);
    pictures.radarFrame = loader.load(radarFrameNames[large ? 1 : 0], scope);
    for (std::size_t i = 0; i < darkLamps.size(); ++i) {
        pictures.lamps.dark[i] = loader.load(darkLamps[i], console.topBar.lamps[i].size());
        pictures.lamps.bright[i] = loader.load(brightLamps[i], console.topBar.lamps[i].size());
    }
    pictures.stripButtonUp = loader.load("grf\\strip_button_up.grf", console.strips.firstButton.size());
    pictures.stripButtonDown = loader.load("grf\\strip_button_down.grf", console.strips.firstButton.size());
    pictures.hand = pointer(loader.load("grf\\pointer_hand.grf", pointerSize), handHotSpot);
    pictures.arrow = pointer(loader.load("grf\\pointer_arrow.grf", pointerSize), arrowHotSpot);
    if (const auto& failure = loader.failure()) {
        return tl::unexpected(*failure);
    }
    loadClouds(loaded, programFolder, scope);
    return loaded;
}

Result<CursorImage> loadIcon(const fs::path& programFolder) {
    auto icon = loadPicture(programFolder, "grf\\icon.grf", largestIcon);
    if (!icon) {
        return tl::unexpected(std::move(icon.error()));
    }
    return pointer(std::move(*icon), {});
}

Result<Bitmap> loadPictureOfSize(const fs::path& programFolder, std::string_view name, Size size,
                                 ImageFormat format) {
    const fs::path file = DataPath(programFolder, name);
    Result<Bitmap> picture = decodePicture(file, format);
    if (picture && picture->size() != size) {
        return wrongSize(file, picture->size(), pixelsText(size));
    }
    return picture;
}

Result<Bitmap> loadPicture(const fs::path& programFolder, std::string_view name, Size most) {
    const fs::path file = DataPath(programFolder, name);
    Result<Bitmap> picture = decodePicture(file);
    if (picture && (picture->width() > most.width || picture->height() > most.height)) {
        return wrongSize(file, picture->size(), "at most " + pixelsText(most));
    }
    return picture;
}

} // namespace ventrel
