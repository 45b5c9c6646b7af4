#include "render/png.h"

#include <QBuffer>
#include <QPainter>
#include <cmath>

#include "render/fonts.h"
#include "render/gui_application.h"
#include "render/memory_file.h"
#include "render/painter.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

constexpr double kTwipsPerPixel = 15;
constexpr double kMostPixels = 200e6;
constexpr double kLongestPngSide = 32767;  // what Qt's painter reaches on an image

QSize PixelsOf(const DisplayList& list, double scale)
{
    const double width = std::ceil(list.width * scale);
    const double height = std::ceil(list.height * scale);
    const bool fits = width >= 1 && height >= 1 && width <= kLongestPngSide && height <= kLongestPngSide &&
                      width * height <= kMostPixels;
    if (!fits) throw RuntimeError(error::kInvalidProcedureCall);
    return {static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace

QImage PaintImage(const DisplayList& list, double percent)
{
    EnsureGuiApplication();
    RequireFonts();
    const double scale = percent / 100 / kTwipsPerPixel;
    QImage image(PixelsOf(list, scale), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    PaintList(painter, list);
    return image;
}

void WritePng(FileSystem& files, const std::string& path, const DisplayList& list, double percent)
{
    const QImage image = PaintImage(list, percent);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) throw RuntimeError(error::kInvalidPicture);
    files.ReplaceWhole(path, ContentOf(buffer));
}

}  // namespace terravane
