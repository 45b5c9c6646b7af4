#include "render/pdf_pictures.h"

#include <QImage>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "render/decoded_pictures.h"

namespace terravane::pdf {

namespace {

std::string ImageDictionary(int width, int height, std::string_view colours, std::string_view rest)
{
    return "/Type /XObject /Subtype /Image /Width " + std::to_string(width) + " /Height " + std::to_string(height) +
           " /BitsPerComponent 8 /ColorSpace /" + std::string(colours) + " " + std::string(rest);
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

int AddPixels(Objects& objects, const QImage& image)
{
    std::string rest = "/Filter /FlateDecode";
    if (image.hasAlphaChannel()) {
        const QImage mask = image.convertToFormat(QImage::Format_Alpha8);
        const int object = objects.AddStream(ImageDictionary(mask.width(), mask.height(), "DeviceGray", rest),
                                             Deflated(RowsOf(mask, 1), Packing::Small));
        rest += " /SMask " + Reference(object);
    }
    const QImage colours = image.convertToFormat(QImage::Format_RGB888);
    return objects.AddStream(ImageDictionary(colours.width(), colours.height(), "DeviceRGB", rest),
                             Deflated(RowsOf(colours, 3), Packing::Small));
}

}  // namespace

int AddPicture(Objects& objects, const std::shared_ptr<const Picture>& picture)
{
    const QImage image = Decoded(picture);
    const std::string_view colours = ColourNameOf(*picture);
    const bool isWhole = image.size() == QSize(picture->width, picture->height);  // not reduced
    if (picture->format != PictureFormat::Jpeg || colours.empty() || !isWhole) return AddPixels(objects, image);
    const std::string_view bytes(reinterpret_cast<const char*>(picture->bytes.data()), picture->bytes.size());
    return objects.AddStream(ImageDictionary(image.width(), image.height(), colours, "/Filter /DCTDecode"), bytes);
}

}  // namespace terravane::pdf
