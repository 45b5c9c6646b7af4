// Known items and the pixels they come out as; 100 percent is 15 twips a pixel.
#include "render/painter.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <memory>

#include <gtest/gtest.h>

#include "drawing/drawing_surface.h"
#include "render/png.h"

namespace terravane {
namespace {

constexpr double kPixel = 15;  // twips

/// A surface of whole pixels, drawn on in pixels.
DrawingSurface Canvas(int width, int height)
{
    return {width * kPixel, height * kPixel};
}

QImage Paint(const DrawingSurface& surface, double percent = 100)
{
    return PaintImage(*surface.Image(), percent);
}

std::string ColourAt(const QImage& image, int x, int y)
{
    return image.pixelColor(x, y).name().toUpper().toStdString();
}

/// How many pixels are not white.
int InkOf(const QImage& image, const QRect& place)
{
    int ink = 0;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x) ink += image.pixelColor(x, y) != Qt::white ? 1 : 0;
    return ink;
}

int InkOf(const QImage& image)
{
    return InkOf(image, image.rect());
}

TEST(PaintedLine, IsNeverThinnerThanAPixelAndDoesNotBlur)
{
    DrawingSurface surface = Canvas(20, 20);
    surface.Line(2 * kPixel, 5.4 * kPixel, 12 * kPixel, 5.4 * kPixel);  // 5 twips are a third of a pixel
    const QImage image = Paint(surface);
    for (int x = 3; x < 12; ++x) EXPECT_EQ(ColourAt(image, x, 5), "#000000") << x;
    EXPECT_EQ(InkOf(image, {0, 0, 20, 5}), 0);
    EXPECT_EQ(InkOf(image, {0, 6, 20, 14}), 0);
}

// Draw width 6 is 30 twips: two pixels, from 9 to 11.
TEST(PaintedLine, IsAsWideAsItsDrawWidth)
{
    DrawingSurface surface = Canvas(20, 20);
    surface.DrawWidth = 6;
    surface.Line(0, 10 * kPixel, 20 * kPixel, 10 * kPixel, kBlue);
    const QImage image = Paint(surface);
    EXPECT_EQ(ColourAt(image, 10, 8), "#FFFFFF");
    EXPECT_EQ(ColourAt(image, 10, 9), "#0000FF");
    EXPECT_EQ(ColourAt(image, 10, 10), "#0000FF");
    EXPECT_EQ(ColourAt(image, 10, 11), "#FFFFFF");
}

TEST(PaintedLine, EndsFlatAtItsEnd)
{
    DrawingSurface surface = Canvas(20, 20);
    surface.DrawWidth = 12;  // four pixels
    surface.Line(5 * kPixel, 10 * kPixel, 15 * kPixel, 10 * kPixel);
    const QImage image = Paint(surface);
    EXPECT_EQ(ColourAt(image, 4, 10), "#FFFFFF");
    EXPECT_EQ(ColourAt(image, 5, 10), "#000000");
    EXPECT_EQ(ColourAt(image, 14, 10), "#000000");
    EXPECT_EQ(ColourAt(image, 15, 10), "#FFFFFF");
}

// Dashes are 120 twips of ink and 60 of gap: eight pixels and four.
TEST(PaintedLine, IsDashedInTwips)
{
    DrawingSurface surface = Canvas(40, 10);
    surface.DrawWidth = 6;
    surface.DrawStyle = 1;
    surface.Line(0, 5 * kPixel, 40 * kPixel, 5 * kPixel);
    const QImage image = Paint(surface);
    for (const int inked : {1, 6, 13, 18}) EXPECT_EQ(ColourAt(image, inked, 5), "#000000") << inked;
    for (const int bare : {9, 10, 21, 22}) EXPECT_EQ(ColourAt(image, bare, 5), "#FFFFFF") << bare;
}

TEST(PaintedBox, HasSquareCornersAndAnEmptyInside)
{
    DrawingSurface surface = Canvas(20, 20);
    surface.DrawWidth = 6;
    surface.Box(15 * kPixel, 15 * kPixel, 5 * kPixel, 5 * kPixel);  // corners in any order
    const QImage image = Paint(surface);
    EXPECT_EQ(ColourAt(image, 4, 4), "#000000");
    EXPECT_EQ(ColourAt(image, 15, 15), "#000000");
    EXPECT_EQ(ColourAt(image, 10, 10), "#FFFFFF");
    EXPECT_EQ(ColourAt(image, 3, 4), "#FFFFFF");
}

TEST(PaintedFill, CoversItsRectangleWithoutAnOutline)
{
    DrawingSurface surface = Canvas(20, 20);
    surface.FilledBox(5 * kPixel, 5 * kPixel, 15 * kPixel, 10 * kPixel, {255, 128, 0});
    const QImage image = Paint(surface);
    EXPECT_EQ(ColourAt(image, 5, 5), "#FF8000");
    EXPECT_EQ(ColourAt(image, 14, 9), "#FF8000");
    EXPECT_EQ(InkOf(image), 10 * 5);
}

TEST(PaintedCircle, IsFilledUnderItsOutline)
{
    DrawingSurface surface = Canvas(40, 40);
    surface.FilledBox(0, 0, 40 * kPixel, 40 * kPixel, kGridGrey);
    surface.DrawWidth = 6;
    surface.FillSolid = true;
    surface.FillColor = kWhite;
    surface.Circle(20 * kPixel, 20 * kPixel, 10 * kPixel);
    const QImage image = Paint(surface);
    EXPECT_EQ(ColourAt(image, 20, 20), "#FFFFFF");
    EXPECT_EQ(ColourAt(image, 20, 10), "#000000");
    EXPECT_EQ(ColourAt(image, 29, 20), "#000000");
    EXPECT_EQ(ColourAt(image, 20, 5), "#C0C0C0");
}

TEST(PaintedCircle, ShowsTheGroundWhereItIsNotFilled)
{
    DrawingSurface surface = Canvas(40, 40);
    surface.FilledBox(0, 0, 40 * kPixel, 40 * kPixel, kGridGrey);
    surface.Circle(20 * kPixel, 20 * kPixel, 10 * kPixel);
    EXPECT_EQ(ColourAt(Paint(surface), 20, 20), "#C0C0C0");
}

TEST(PaintedPoint, IsOneFullPixelAtLeast)
{
    DrawingSurface surface = Canvas(10, 10);
    surface.PSet(4.5 * kPixel, 6.5 * kPixel, kMagenta);
    const QImage image = Paint(surface);
    EXPECT_EQ(ColourAt(image, 4, 6), "#FF00FF");
    EXPECT_EQ(InkOf(image), 1);
}

// Draw width 36 is 180 twips, twelve pixels across.
TEST(PaintedPoint, IsARoundDotAsWideAsItsDrawWidth)
{
    DrawingSurface surface = Canvas(20, 20);
    surface.DrawWidth = 36;
    surface.PSet(10 * kPixel, 10 * kPixel, kMagenta);
    const QImage image = Paint(surface);
    EXPECT_EQ(ColourAt(image, 10, 10), "#FF00FF");
    EXPECT_EQ(ColourAt(image, 5, 10), "#FF00FF");
    EXPECT_EQ(ColourAt(image, 3, 10), "#FFFFFF");
    EXPECT_EQ(ColourAt(image, 16, 10), "#FFFFFF");
    EXPECT_EQ(ColourAt(image, 4, 4), "#FFFFFF");  // the corner that a square would have
}

TEST(PaintedCurve, JoinsItsPoints)
{
    DrawingSurface surface = Canvas(20, 20);
    surface.DrawWidth = 6;
    const DrawnPoint points[]{{0, 10 * kPixel}, {10 * kPixel, 10 * kPixel}, {10 * kPixel, 20 * kPixel}};
    surface.Polyline(points, kBlue);
    const QImage image = Paint(surface);
    EXPECT_EQ(ColourAt(image, 5, 10), "#0000FF");
    EXPECT_EQ(ColourAt(image, 10, 15), "#0000FF");
    EXPECT_EQ(ColourAt(image, 15, 10), "#FFFFFF");
}

/// The rectangle of a text's ink.
QRect InkBounds(const QImage& image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128) bounds |= QRect(x, y, 1, 1);
    return bounds;
}

// At 20 points of the Thai face the baseline is 354 twips (23.6 pixels) under the top, and capitals are 0.425
// em of 400 twips high (11.3 pixels). "H" has no curves: its ink ends on the baseline.
TEST(PaintedText, StandsOnItsBaseline)
{
    DrawingSurface surface = Canvas(200, 60);
    surface.FontName = "DilleniaUPC";
    surface.FontSize = 20;
    surface.CurrentX = 10 * kPixel;
    surface.CurrentY = 10 * kPixel;
    surface.Print("HHH");
    const QRect ink = InkBounds(Paint(surface));
    EXPECT_NEAR(ink.bottom() + 1, 10 + 23.6, 0.8);
    EXPECT_NEAR(ink.height(), 11.3, 1.2);
    EXPECT_NEAR(ink.left(), 10, 2);
}

// The bars of "|" at both ends of the text are no further apart than the measured width.
TEST(PaintedText, IsAsWideAsMeasured)
{
    for (const char* font : {"DilleniaUPC", "MS Sans Serif", "Times New Roman"}) {
        DrawingSurface surface = Canvas(600, 60);
        surface.FontName = font;
        surface.FontSize = 20;
        const double between = surface.TextWidth("|ที่ น้ำ AVATo") / kPixel;
        surface.PrintOn("|ที่ น้ำ AVATo|");
        const QRect ink = InkBounds(Paint(surface));
        EXPECT_NEAR(ink.right() - ink.left(), between, 2) << font;
    }
}

TEST(PaintedText, ReadsUpwardsWhereTurned)
{
    DrawingSurface surface = Canvas(60, 200);
    surface.FontSize = 14;
    surface.PrintTurned("Density", 20 * kPixel, 180 * kPixel);
    const QRect ink = InkBounds(Paint(surface));
    EXPECT_GT(ink.height(), 2 * ink.width());
    EXPECT_GE(ink.left(), 20);  // the top of the line is at the left
    EXPECT_NEAR(ink.bottom(), 180, 3);
    EXPECT_LT(ink.top(), 180 - 30);
}

TEST(PaintedText, HasTheColourOfItsItem)
{
    DrawingSurface surface = Canvas(60, 60);
    surface.FontSize = 40;
    surface.FontBold = true;
    surface.ForeColor = kBlue;
    surface.Print("I");
    const QImage image = Paint(surface);
    const QPoint centre = InkBounds(image).center();
    EXPECT_EQ(ColourAt(image, centre.x(), centre.y()), "#0000FF");
}

TEST(PaintedText, DiffersInEveryStyle)
{
    std::vector<QImage> images;
    for (const bool bold : {false, true})
        for (const bool italic : {false, true}) {
            DrawingSurface surface = Canvas(200, 40);
            surface.FontName = "DilleniaUPC";
            surface.FontSize = 20;
            surface.FontBold = bold;
            surface.FontItalic = italic;
            surface.Print("ทดสอบ H");
            images.push_back(Paint(surface));
        }
    for (std::size_t i = 0; i < images.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) EXPECT_NE(images[i], images[j]) << i << " and " << j;
}

/// A drawing of 10 by 10 pixels, framed, with a line that goes over its edges.
std::shared_ptr<const DisplayList> SmallDrawing()
{
    DrawingSurface drawing = Canvas(10, 10);
    drawing.DrawWidth = 6;
    drawing.Line(-20 * kPixel, 5 * kPixel, 40 * kPixel, 5 * kPixel, kRed);
    return drawing.Image();
}

TEST(PaintedDrawing, IsClippedAndStandsOnWhite)
{
    DrawingSurface surface = Canvas(40, 40);
    surface.FilledBox(0, 0, 40 * kPixel, 40 * kPixel, kGridGrey);
    surface.PaintPicture("picGraph", SmallDrawing(), 10 * kPixel, 10 * kPixel, 10 * kPixel, 10 * kPixel);
    const QImage image = Paint(surface);
    EXPECT_EQ(ColourAt(image, 15, 15), "#FF0000");
    EXPECT_EQ(ColourAt(image, 10, 10), "#FFFFFF");
    EXPECT_EQ(ColourAt(image, 9, 15), "#C0C0C0");
    EXPECT_EQ(ColourAt(image, 20, 15), "#C0C0C0");
}

// Stretched to 20 by 30 pixels: the line comes to 10 + 5 * 3 = 25.
TEST(PaintedDrawing, IsStretchedToItsPlace)
{
    DrawingSurface surface = Canvas(40, 60);
    surface.PaintPicture("picGraph", SmallDrawing(), 10 * kPixel, 10 * kPixel, 20 * kPixel, 30 * kPixel);
    const QImage image = Paint(surface);
    EXPECT_EQ(ColourAt(image, 29, 25), "#FF0000");
    EXPECT_EQ(ColourAt(image, 30, 25), "#FFFFFF");
    EXPECT_EQ(ColourAt(image, 20, 15), "#FFFFFF");
}

TEST(PaintedDrawing, KeepsTheFrameOnItsEdge)
{
    DrawingSurface box = Canvas(10, 10);
    box.Box(0, 0, 10 * kPixel - 1, 10 * kPixel - 1);
    DrawingSurface surface = Canvas(40, 40);
    surface.PaintPicture("picgraph1", box.Image(), 10.6 * kPixel, 10.6 * kPixel, 10 * kPixel, 10 * kPixel);
    const QImage image = Paint(surface);
    for (const int x : {11, 15, 19}) EXPECT_EQ(ColourAt(image, x, 10), "#000000") << x;
    for (const int y : {11, 15, 19}) EXPECT_EQ(ColourAt(image, 20, y), "#000000") << y;
    EXPECT_EQ(ColourAt(image, 10, 15), "#000000");
    EXPECT_EQ(ColourAt(image, 15, 20), "#000000");
}

std::shared_ptr<const Picture> PictureOf(const QColor& colour, const char* format)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(colour);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, 100)) << format;
    return ReadPicture("logo.jpg", Bytes(buffer.data().begin(), buffer.data().end()));
}

QImage PaintPicture(const std::shared_ptr<const Picture>& picture)
{
    DrawingSurface surface = Canvas(40, 40);
    surface.PaintPicture(picture, 10 * kPixel, 10 * kPixel, 20 * kPixel, 20 * kPixel);
    return Paint(surface);
}

TEST(PaintedPicture, IsDecodedByContentWhateverItsName)
{
    for (const char* format : {"png", "bmp", "ico"}) {
        const QImage image = PaintPicture(PictureOf(QColor(0, 128, 64), format));
        EXPECT_EQ(ColourAt(image, 20, 20), "#008040") << format;
        EXPECT_EQ(ColourAt(image, 5, 5), "#FFFFFF") << format;
    }
}

TEST(PaintedPicture, MayBeAJpeg)
{
    const QColor colour = PaintPicture(PictureOf(QColor(0, 128, 64), "jpeg")).pixelColor(20, 20);
    EXPECT_NEAR(colour.green(), 128, 3);  // the format keeps colours nearly
    EXPECT_NEAR(colour.red(), 0, 3);
}

// The smallest GIF: one red pixel.
TEST(PaintedPicture, MayBeAGif)
{
    const Bytes gif{'G', 'I',  'F', '8', '9', 'a', 1, 0, 1, 0, 0x80, 0, 0, 0xFF, 0, 0, 0,   0,
                    0,   0x2C, 0,   0,   0,   0,   1, 0, 1, 0, 0,    2, 2, 0x44, 1, 0, 0x3B};
    EXPECT_EQ(ColourAt(PaintPicture(ReadPicture("logo.jpg", gif)), 20, 20), "#FF0000");
}

TEST(PaintedPicture, IsACrossedBoxWhereItCannotBeDecoded)
{
    const auto whole = PictureOf(Qt::red, "png");
    const Bytes header(whole->bytes.begin(), whole->bytes.begin() + 26);  // signature and size, no pixels
    const QImage image = PaintPicture(ReadPicture("logo.jpg", header));
    EXPECT_NE(ColourAt(image, 20, 20), "#FFFFFF");  // where the diagonals meet
    EXPECT_EQ(ColourAt(image, 20, 14), "#FFFFFF");
    EXPECT_EQ(InkOf(image, {0, 0, 40, 9}), 0);
}

TEST(PaintedPicture, OfTheAnswersAloneIsACrossedBox)
{
    const DisplayList list{40 * kPixel, 40 * kPixel, {PictureItem{"x", 150, 150, 300, 300, nullptr, nullptr}}};
    EXPECT_NE(ColourAt(PaintImage(list, 100), 20, 20), "#FFFFFF");
}

}  // namespace
}  // namespace terravane
