// Pictures in PDF files: no more of them than their places show, upright, in their colours; and nothing beside the
// paper.
#include <QBuffer>
#include <QImage>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>

#include <gtest/gtest.h>
#include <unistd.h>

#include "drawing/drawing_surface.h"
#include "render/gui_application.h"
#include "render/pdf.h"
#include "runtime/runtime_error.h"

namespace terravane::pdf_pictures_test {
namespace {

constexpr double kLogo = 1250;  // twips: 521 dots at 600 to the inch

class PicturesInPdf : public testing::Test {
  protected:
    PicturesInPdf() : path_(std::filesystem::temp_directory_path() / ("terravane_pictures_" + std::to_string(getpid())))
    {
        EnsureGuiApplication();
    }
    ~PicturesInPdf() override { std::filesystem::remove(path_); }

    Bytes Made(const DisplayList& page) { return MakePdf(std::vector{page}, {"Report", MakeMoment(2026, 11, 21), {}}); }

    /// What poppler lists of the pictures of a page.
    std::string Listed(const DisplayList& page)
    {
        DiskFileSystem files;
        WritePdf(files, path_.string(), std::vector{page}, {"Report", MakeMoment(2026, 11, 21), {}});
        const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(("pdfimages -list " + path_.string()).c_str(), "r"),
                                                         pclose);
        std::string text;
        std::array<char, 4096> part;
        while (std::fgets(part.data(), static_cast<int>(part.size()), pipe.get())) text += part.data();
        return text;
    }

    /// The page as poppler draws it.
    QImage Shown(const DisplayList& page, int dotsPerInch)
    {
        Listed(page);
        const std::string picture = path_.string() + "_page";
        const std::string command =
            "pdftoppm -png -singlefile -r " + std::to_string(dotsPerInch) + " " + path_.string() + " " + picture;
        EXPECT_EQ(std::system(command.c_str()), 0);
        const QImage shown(QString::fromStdString(picture + ".png"));
        std::filesystem::remove(picture + ".png");
        return shown;
    }

  private:
    std::filesystem::path path_;
};

bool Lists(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

Bytes FileOf(const QImage& image, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, 95)) << format;
    return Bytes(buffer.data().begin(), buffer.data().end());
}

/// Noise, which no packing makes small.
QImage Noise(int width, int height)
{
    std::mt19937 random(1);
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) image.setPixel(x, y, 0xFF000000U | static_cast<unsigned>(random() & 0xFFFFFFU));
    return image;
}

DisplayList PageWith(Bytes file, double width = kLogo, double height = kLogo)
{
    DrawingSurface page(11906, 16838);
    page.PaintPicture(ReadPicture("logo", std::move(file)), 500, 500, width, height);
    return *page.Image();
}

TEST_F(PicturesInPdf, HaveNoMoreDotsThanTheirPlaceShows)
{
    const DisplayList page = PageWith(FileOf(Noise(3000, 2000), "png"));
    const std::string listed = Listed(page);
    EXPECT_TRUE(Lists(listed, "  521   521  rgb")) << listed;
    EXPECT_LT(Made(page).size(), 1'000'000U) << "521 · 521 · 3 bytes, and some";
}

TEST_F(PicturesInPdf, OfPhotographsStayPhotographs)
{
    const DisplayList page = PageWith(FileOf(Noise(2400, 2400), "jpeg"));
    const std::string listed = Listed(page);
    EXPECT_TRUE(Lists(listed, "  521   521  rgb     3   8  jpeg")) << listed;
    EXPECT_LT(Made(page).size(), 400'000U);
}

TEST_F(PicturesInPdf, ThatFitGoInAsTheyAre)
{
    const Bytes file = FileOf(Noise(300, 200), "jpeg");
    const Bytes made = Made(PageWith(file));
    EXPECT_NE(std::search(made.begin(), made.end(), file.begin(), file.end()), made.end());
}

TEST_F(PicturesInPdf, HaveTheDotsOfTheLargestOfTheirPlaces)
{
    const auto logo = ReadPicture("logo", FileOf(Noise(2000, 2000), "png"));
    DrawingSurface page(11906, 16838);
    page.PaintPicture(logo, 500, 500, 500, 500);
    page.PaintPicture(logo, 500, 5000, kLogo, kLogo);
    const std::string listed = Listed(*page.Image());
    EXPECT_TRUE(Lists(listed, "  521   521  rgb")) << listed;
    EXPECT_FALSE(Lists(listed, "  209   209  rgb")) << "It stands in the file once.";
}

/// A JPEG file with a mark of how the camera was held, in the place of its first segment.
Bytes Marked(Bytes file, std::uint8_t orientation)
{
    const Bytes mark{0xFF, 0xE1, 0, 34, 'E', 'x', 'i', 'f', 0, 0, 'M', 'M',         0, 42, 0, 0, 0, 8,
                     0,    1,    1, 18, 0,   3,   0,   0,   0, 1, 0,   orientation, 0, 0,  0, 0, 0, 0};
    file.insert(file.begin() + 2, mark.begin(), mark.end());
    return file;
}

// Held with its right side up (6), a picture of 60 by 30 is 30 wide and 60 high, its left side at the top.
TEST_F(PicturesInPdf, StandUprightHoweverTheCameraWasHeld)
{
    QImage image(60, 30, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 20; ++x) image.setPixelColor(x, y, Qt::black);
    const Bytes file = Marked(FileOf(image, "jpeg"), 6);
    const auto picture = ReadPicture("logo", file);
    EXPECT_EQ(picture->width, 30);
    EXPECT_EQ(picture->height, 60);
    EXPECT_FALSE(picture->isUpright);
    const std::string listed = Listed(PageWith(file));
    EXPECT_TRUE(Lists(listed, "   30    60  rgb     3   8  jpeg")) << listed;
    EXPECT_TRUE(ReadPicture("logo", Marked(FileOf(image, "jpeg"), 1))->isUpright);
}

// A mark that is cut off, or names a place behind its end, says nothing; no byte behind the file is read.
TEST_F(PicturesInPdf, WithABrokenMarkAreTakenAsUpright)
{
    Bytes file = Marked(FileOf(Noise(20, 10), "jpeg"), 6);
    for (const std::size_t at : {std::size_t{17}, std::size_t{19}, std::size_t{10}}) {
        Bytes broken = file;
        broken[at] = 0xEE;
        const auto picture = ReadPicture("logo", broken);
        EXPECT_TRUE(picture->width == 20 || picture->width == 10) << at;
    }
    file.resize(30);
    EXPECT_THROW(ReadPicture("logo", file), RuntimeError);
}

/// 16 by 16 dots in four inks, as programs for print write them, with 255 for no ink: on the left 0.9 cyan, 0.1 magenta
/// and 0.1 yellow, on the right 0.9 magenta, 0.9 yellow and 0.1 black.
constexpr std::string_view kFourInks =
    "ffd8ffee000e41646f626500640000000000ffdb004300140e0f120f0d14121012171514181e32211e1c1c1e3d2c2e243249404c4b4740"
    "4645505a736250556d5645466488656d777b8182814e608d978c7d96737e817cffc000140800100010044311004d11005911004b1100ff"
    "c4001f0000010501010101010100000000000000000102030405060708090a0bffc400b5100002010303020403050504040000017d0102"
    "0300041105122131410613516107227114328191a1082342b1c11552d1f02433627282090a161718191a25262728292a3435363738393a"
    "434445464748494a535455565758595a636465666768696a737475767778797a838485868788898a92939495969798999aa2a3a4a5a6a7"
    "a8a9aab2b3b4b5b6b7b8b9bac2c3c4c5c6c7c8c9cad2d3d4d5d6d7d8d9dae1e2e3e4e5e6e7e8e9eaf1f2f3f4f5f6f7f8f9faffda000e04"
    "43004d0059004b00003f00e5aba9aea6bb3af5caf2daf2daab5e475ea55ea556abd72bcb6bcb6aad7fffd9";

// No ink of cyan 0.1 leaves 0.9 of the light: 0.1, 0.9 and 0.9 of 255 on the left; 0.9, 0.1 · 0.9 and 0.1 · 0.9 on the
// right. An archive's pages know three colours.
TEST_F(PicturesInPdf, OfFourInksHaveTheirColours)
{
    const QByteArray file = QByteArray::fromHex(QByteArray(kFourInks.data(), kFourInks.size()));
    const DisplayList page = PageWith(Bytes(file.begin(), file.end()));
    EXPECT_TRUE(Lists(Listed(page), "   16    16  rgb     3   8  jpeg")) << Listed(page);
    const QImage shown = Shown(page, 72);
    const QColor left = shown.pixelColor(25 + 15, 25 + 31), right = shown.pixelColor(25 + 47, 25 + 31);
    EXPECT_NEAR(left.red(), 26, 12);
    EXPECT_NEAR(left.green(), 230, 12);
    EXPECT_NEAR(left.blue(), 230, 12);
    EXPECT_NEAR(right.red(), 230, 12);
    EXPECT_NEAR(right.green(), 23, 12);
    EXPECT_NEAR(right.blue(), 23, 12);
}

TEST_F(PicturesInPdf, ThatAreReadForEveryPageStandInMemoryOnce)
{
    const Bytes file = FileOf(Noise(40, 30), "jpeg");
    const auto logo = ReadPicture("logo", file);
    EXPECT_EQ(ReadPicture("logo", file), logo);
    EXPECT_NE(ReadPicture("other", file), logo) << "Answers tell its name.";
    EXPECT_NE(ReadPicture("logo", FileOf(Noise(41, 30), "jpeg")), logo);
}

TEST_F(PicturesInPdf, ADrawingsDotsBesideItAreNotWritten)
{
    const auto sizeWith = [&](double left) {
        DrawingSurface plot(4000, 3000), page(11906, 16838);
        plot.Box(0, 0, 4000, 3000);
        for (int k = 0; k < 20000; ++k) plot.PSet(left + k % 100, 10.0 * k, kMagenta);
        for (int k = 0; k < 20000; ++k) plot.Circle(left, -1000.0 - k, 30);
        page.PaintPicture("plot", plot.Image(), 500, 500, 4000, 3000);
        return Made(*page.Image()).size();
    };
    EXPECT_LT(sizeWith(-900), sizeWith(-900000) + 100);
    EXPECT_LT(sizeWith(100), sizeWith(-900) + 20'000) << "Three hundred dots of twenty thousand.";
}

// The way between two points beside the plot may lead over it.
TEST_F(PicturesInPdf, ACurveIsWrittenWhereItCrossesThePlot)
{
    const auto sizeWith = [&](const std::vector<DrawnPoint>& curve) {
        DrawingSurface plot(4000, 3000), page(11906, 16838);
        plot.Polyline(curve, kBlue);
        page.PaintPicture("plot", plot.Image(), 500, 500, 4000, 3000);
        return Made(*page.Image()).size();
    };
    const std::size_t empty = sizeWith({{-10, -10}, {-20, -20}});
    EXPECT_GT(sizeWith({{-1000, 1500}, {5000, 1500}}), empty);
    EXPECT_EQ(sizeWith({{-1000, -1500}, {5000, -900}}), empty);
}

}  // namespace
}  // namespace terravane::pdf_pictures_test
