#include "render/pdf_pictures.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageWriter>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "render/decoded_pictures.h"

namespace terravane::pdf {

namespace {

constexpr double kDotsPerTwip = 600.0 / 1440;
constexpr int kPhotographQuality = 50;  // of 100: at 600 dots to the inch no eye finds its marks
constexpr std::size_t kMostPacked = 8;  // pictures remembered: some laboratories' logos
constexpr std::string_view kDeflated = "/Filter /FlateDecode";
constexpr std::string_view kPhotograph = "/Filter /DCTDecode";

/// A picture as it stands in a file: its dictionary and content, and a mask where it is not opaque.
struct PackedPicture {
    std::string dictionary, content;
    std::string maskDictionary = {}, mask = {};
};

std::string ImageDictionary(const QSize& size, std::string_view colours, std::string_view filter)
{
    return "/Type /XObject /Subtype /Image /Width " + std::to_string(size.width()) + " /Height " +
           std::to_string(size.height()) + " /BitsPerComponent 8 /ColorSpace /" + std::string(colours) + " " +
           std::string(filter);
}

/// The colours of a pixel in a JPEG file: its frame header's sixth byte behind the length.
///
///     FF Cn  length:2  depth:1  height:2  width:2  colours:1
std::optional<int> ColoursOfJpeg(std::span<const std::uint8_t> bytes)
{
    constexpr std::size_t kColours = 9;  // from the marker
    std::size_t at = 2;                  // behind the file's own marker
    while (at + kColours < bytes.size() && bytes[at] == 0xFF) {
        const std::uint8_t marker = bytes[at + 1];
        const bool isFrame = marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (isFrame) return bytes[at + kColours];
        at += marker == 0xFF ? 1u : 2u + (unsigned{bytes[at + 2]} << 8U) + bytes[at + 3];
    }
    return std::nullopt;
}

/// The name of a JPEG file's colours; none for kinds that readers do not agree upon.
std::string_view ColourNameOf(const Picture& picture)
{
    const std::optional<int> colours = ColoursOfJpeg(picture.bytes);
    if (colours == 1) return "DeviceGray";
    if (colours == 3) return "DeviceRGB";
    return {};
}

/// The pixels' bytes without what Qt puts at the ends of lines.
std::string RowsOf(const QImage& image, int bytesPerPixel)
{
    const auto row = static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(bytesPerPixel);
    std::string rows;
    for (int y = 0; y < image.height(); ++y) rows.append(reinterpret_cast<const char*>(image.constScanLine(y)), row);
    return rows;
}

PackedPicture AsPixels(const QImage& image)
{
    const QImage colours = image.convertToFormat(QImage::Format_RGB888);
    PackedPicture packed{ImageDictionary(image.size(), "DeviceRGB", kDeflated),
                         Deflated(RowsOf(colours, 3), Packing::Small)};
    if (!image.hasAlphaChannel()) return packed;
    packed.maskDictionary = ImageDictionary(image.size(), "DeviceGray", kDeflated);
    packed.mask = Deflated(RowsOf(image.convertToFormat(QImage::Format_Alpha8), 1), Packing::Small);
    return packed;
}

PackedPicture AsPhotograph(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(kPhotographQuality);
    writer.setOptimizedWrite(true);
    writer.setProgressiveScanWrite(true);
    const bool isGrey = image.format() == QImage::Format_Grayscale8;
    writer.write(isGrey ? image : image.convertToFormat(QImage::Format_RGB888));
    return {ImageDictionary(image.size(), isGrey ? "DeviceGray" : "DeviceRGB", kPhotograph), bytes.toStdString()};
}

PackedPicture Pack(const std::shared_ptr<const Picture>& picture, PixelSize needed)
{
    const QImage image = Decoded(picture);
    const QSize size(std::min(picture->width, needed.width), std::min(picture->height, needed.height));
    const bool fits = size == QSize(picture->width, picture->height);
    const bool isPhotograph = picture->format == PictureFormat::Jpeg;
    const std::string_view colours = isPhotograph ? ColourNameOf(*picture) : "";
    if (fits && picture->isUpright && !colours.empty())
        return {ImageDictionary(size, colours, kPhotograph), {picture->bytes.begin(), picture->bytes.end()}};
    const QImage reduced =
        fits ? image : image.scaled(size.boundedTo(image.size()), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return isPhotograph ? AsPhotograph(reduced) : AsPixels(reduced);
}

/// The pictures packed last, the newest in front. The pages of a job bear the same few.
class PackedPictures {
  public:
    PackedPicture Find(const std::shared_ptr<const Picture>& picture, PixelSize needed)
    {
        const std::scoped_lock lock(mutex_);
        const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
            return entry.needed == needed && (entry.picture == picture || AreCopies(*entry.picture, *picture));
        });
        if (known == entries_.end())
            entries_.insert(entries_.begin(), {picture, needed, Pack(picture, needed)});
        else
            std::rotate(entries_.begin(), known, known + 1);
        if (entries_.size() > kMostPacked) entries_.pop_back();
        return entries_.front().packed;
    }

  private:
    struct Entry {
        std::shared_ptr<const Picture> picture;
        PixelSize needed;
        PackedPicture packed;
    };

    std::mutex mutex_;
    std::vector<Entry> entries_;
};

}  // namespace

PixelSize PixelsFor(double width, double height)
{
    const auto dots = [](double twips) {
        constexpr double kMost = 1e5;
        return std::max(1, static_cast<int>(std::ceil(std::clamp(twips * kDotsPerTwip, 0.0, kMost))));
    };
    return {dots(width), dots(height)};
}

int AddPicture(Objects& objects, const std::shared_ptr<const Picture>& picture, PixelSize needed)
{
    static PackedPictures pictures;
    PackedPicture packed = pictures.Find(picture, needed);
    if (!packed.mask.empty())
        packed.dictionary += " /SMask " + Reference(objects.AddStream(packed.maskDictionary, packed.mask));
    return objects.AddStream(packed.dictionary, packed.content);
}

}  // namespace terravane::pdf
