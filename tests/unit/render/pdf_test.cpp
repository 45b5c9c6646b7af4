// PDF files: the same bytes for the same pages, bookmarks, pictures and letters, and the same look as on the screen.
// Read back by qpdf and poppler's tools.
#include "render/pdf.h"

#include <QBuffer>
#include <QImage>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <thread>

#include <gtest/gtest.h>
#include <unistd.h>

#include "drawing/drawing_surface.h"
#include "render/gui_application.h"
#include "render/png.h"
#include "runtime/runtime_error.h"

namespace terravane {
namespace {

const Moment kDay = MakeMoment(2026, 11, 21, 12);

class MadePdf : public testing::Test {
  protected:
    MadePdf() : folder_(std::filesystem::temp_directory_path() / ("terravane_pdf_" + std::to_string(getpid())))
    {
        EnsureGuiApplication();
        std::filesystem::create_directories(folder_);
    }
    ~MadePdf() override { std::filesystem::remove_all(folder_); }

    std::string PathOf(const std::string& name) const { return (folder_ / name).string(); }

    /// What a program prints, and its complaints.
    static std::string Said(const std::string& command)
    {
        const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen((command + " 2>&1").c_str(), "r"), pclose);
        std::string text;
        std::array<char, 4096> part;
        while (std::fgets(part.data(), static_cast<int>(part.size()), pipe.get())) text += part.data();
        return text;
    }

    /// The same of a program and the pages as a file.
    std::string Of(const std::vector<DisplayList>& pages, const std::string& program, const std::string& behind = "")
    {
        WritePdf(files_, PathOf("report.pdf"), pages, {"Report", kDay, {}});
        return Said(program + " " + PathOf("report.pdf") + behind);
    }

    /// The first page as poppler draws it.
    QImage Printed(const DisplayList& page, int dotsPerInch)
    {
        Of({page}, "pdftoppm -png -singlefile -r " + std::to_string(dotsPerInch), " " + PathOf("page"));
        return QImage(QString::fromStdString(PathOf("page.png"))).convertToFormat(QImage::Format_RGB32);
    }

    DiskFileSystem files_;

  private:
    std::filesystem::path folder_;
};

bool Holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

std::shared_ptr<const Picture> PictureOf(const QImage& image, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, 90)) << format;
    return ReadPicture("logo", Bytes(buffer.data().begin(), buffer.data().end()));
}

/// Of a size at which a JPEG file keeps the two colours apart.
QImage TwoColours()
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(QColor(0, 128, 64));
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 32; ++x) image.setPixelColor(x, y, QColor(200, 30, 30));
    return image;
}

/// A part of everything that can be drawn, as sheets draw it.
DisplayList PageOfEverything()
{
    DrawingSurface plot(4000, 3000);
    std::vector<DrawnPoint> curve;
    for (int x = 0; x <= 4000; x += 4) curve.push_back({1.0 * x, 2800 - 0.0006 * (x - 2000) * (x - 2000)});
    plot.DrawWidth = 3;
    plot.Polyline(curve, kBlue);
    plot.DrawWidth = 1;
    plot.DrawStyle = 1;
    plot.Line(0, 1500, 4000, 1500, kGridGrey);
    plot.DrawStyle = 2;
    plot.Line(2000, 0, 2000, 3000, kRed);
    plot.DrawStyle = 0;
    plot.Box(0, 0, 3999, 2999);
    plot.Circle(1000, 1000, 200);
    plot.FillSolid = true;
    plot.FillColor = kMagenta;
    plot.Circle(3000, 1000, 150);
    plot.PrintTurned("Dry Density (g/cc)", 100, 2700);

    DrawingSurface page(11906, 16838);
    page.FontName = "DilleniaUPC";
    page.FontSize = 16;
    page.CurrentX = page.CurrentY = 1000;
    page.FontBold = true;
    page.Print("การทดสอบหาค่า ซี.บี.อาร์.  ผู้ตรวจ");
    page.FontBold = false;
    page.FontItalic = true;
    page.Print("Institute of Roads, 12.50 %");
    page.FontItalic = false;
    page.FontName = "Times New Roman";
    page.Print("Classification of a field, 35 µm ± 2 °C");
    page.FontName = "MS Sans Serif";
    page.Print("Soil and ดิน ≥ 2");
    page.FilledBox(1000, 4000, 5000, 4500, kGridGrey);
    for (int x = 0; x < 60; ++x) page.PSet(6000 + 40 * x, 4200 + x * x, kBlack);
    page.PaintPicture("picGraph", plot.Image(), 1000, 6000, 8000, 6000);
    page.PaintPicture(PictureOf(TwoColours(), "png"), 1000, 13000, 2000, 2000);
    return *page.Image();
}

/// A report of several pages, each with texts of its own.
std::vector<DisplayList> SeveralPages()
{
    std::vector<DisplayList> pages;
    for (const char* text : {"Atterberg", "Sieve", "การบดอัด"}) {
        DrawingSurface page(11906, 16838);
        page.CurrentX = page.CurrentY = 1000;
        page.Print(text);
        pages.push_back(*page.Image());
        pages.push_back(PageOfEverything());
    }
    return pages;
}

const PdfDocument kDocument{"Road 7", kDay, {{"Atterberg", 0}, {"Sieve (soil)", 2}, {"การบดอัด", 4}}};

TEST_F(MadePdf, IsTheSameBytesForTheSamePages)
{
    EXPECT_EQ(MakePdf(SeveralPages(), kDocument), MakePdf(SeveralPages(), kDocument));
}

TEST_F(MadePdf, DiffersByTitleDateAndPages)
{
    const Bytes bytes = MakePdf(SeveralPages(), kDocument);
    EXPECT_NE(bytes, MakePdf(SeveralPages(), {"Road 8", kDay, kDocument.sections}));
    EXPECT_NE(bytes, MakePdf(SeveralPages(), {"Road 7", kDay + std::chrono::hours(24), kDocument.sections}));
    EXPECT_NE(bytes, MakePdf(std::vector<DisplayList>(6, PageOfEverything()), kDocument));
}

// Some of the threads make other documents in between: what they draw must not show in this one.
TEST_F(MadePdf, IsTheSameBytesInManyThreadsAtOnce)
{
    const Bytes alone = MakePdf(SeveralPages(), kDocument);
    std::array<Bytes, 8> made;
    {
        std::vector<std::jthread> threads;
        for (Bytes& bytes : made)
            threads.emplace_back([&bytes] {
                for (int round = 0; round < 5; ++round) {
                    MakePdf(std::vector<DisplayList>{PageOfEverything()}, {"Another", kDay, {}});
                    bytes = MakePdf(SeveralPages(), kDocument);
                }
            });
    }
    for (const Bytes& bytes : made) EXPECT_EQ(bytes, alone);
}

// A face forgets the texts that it has drawn when there are too many.
TEST_F(MadePdf, IsTheSameBytesBehindThousandsOfOtherTexts)
{
    const Bytes before = MakePdf(SeveralPages(), kDocument);
    DrawingSurface figures(11906, 16838);
    figures.FontName = "DilleniaUPC";
    for (int number = 0; number < 5000; ++number) figures.Print(std::to_string(number) + " ฟ");
    MakePdf(std::vector<DisplayList>{*figures.Image()}, {"Figures", kDay, {}});
    EXPECT_EQ(MakePdf(SeveralPages(), kDocument), before);
}

// The test program runs itself: the one that is started finds a path and writes the file.
TEST_F(MadePdf, IsTheSameBytesInEveryProcess)
{
    constexpr auto kVariable = "TERRAVANE_TEST_PDF";
    if (const char* path = std::getenv(kVariable)) {
        WritePdf(files_, path, SeveralPages(), kDocument);
        return;
    }
    const Bytes here = MakePdf(SeveralPages(), kDocument);
    for (const std::string locale : {"C", "C.UTF-8"}) {
        const std::string path = PathOf(locale + ".pdf");
        const std::string said = Said("TZ=Asia/Bangkok LC_ALL=" + locale + " " + kVariable + "=" + path + " " +
                                      std::filesystem::read_symlink("/proc/self/exe").string() +
                                      " --gtest_filter=MadePdf.IsTheSameBytesInEveryProcess");
        ASSERT_TRUE(files_.Exists(path)) << said;
        EXPECT_EQ(files_.Read(path), here) << locale;
    }
}

TEST_F(MadePdf, HasNoFaultThatAReaderFinds)
{
    WritePdf(files_, PathOf("report.pdf"), SeveralPages(), kDocument);
    const std::string said = Said("qpdf --check " + PathOf("report.pdf"));
    EXPECT_TRUE(Holds(said, "No syntax or stream encoding errors found")) << said;
    EXPECT_EQ(Said("pdftotext " + PathOf("report.pdf") + " /dev/null"), "");
}

TEST_F(MadePdf, SaysItsTitleAndItsDate)
{
    WritePdf(files_, PathOf("report.pdf"), SeveralPages(), {"Test of Soil ดิน", kDay, {}});
    const std::string info = Said("TZ=UTC pdfinfo -isodates " + PathOf("report.pdf"));
    EXPECT_TRUE(Holds(info, "Title:           Test of Soil ดิน")) << info;
    EXPECT_TRUE(Holds(info, "CreationDate:    2026-11-21T12:00:00")) << info;
}

TEST_F(MadePdf, HasABookmarkForEachSection)
{
    WritePdf(files_, PathOf("report.pdf"), SeveralPages(), kDocument);
    const std::string outline = Said("qpdf --json=1 --json-key=outlines " + PathOf("report.pdf"));
    std::size_t from = 0;
    for (const auto& [page, title] : {std::pair("1", "Atterberg"), {"3", "Sieve (soil)"}, {"5", "การบดอัด"}}) {
        const std::size_t at = outline.find(std::string("\"destpageposfrom1\": ") + page + ",", from);
        ASSERT_NE(at, std::string::npos) << title << " in " << outline;
        const std::size_t end = outline.find("\"title\": ", at);
        EXPECT_EQ(outline.find(std::string("\"title\": \"") + title + "\"", at), end) << outline;
        from = end;
    }
    EXPECT_EQ(outline.find("\"destpageposfrom1\"", from), std::string::npos) << "more bookmarks than sections";
}

TEST_F(MadePdf, HasNoBookmarksWithoutSections)
{
    EXPECT_TRUE(Holds(Of(SeveralPages(), "qpdf --json=1 --json-key=outlines"), "\"outlines\": []"));
}

TEST_F(MadePdf, RefusesASectionBehindTheLastPage)
{
    try {
        MakePdf(SeveralPages(), {"Road 7", kDay, {{"Summary", 6}}});
        FAIL() << "a bookmark leads to no page";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 5);
    }
}

// Tone marks are drawn with other glyphs than their own, in any order; "fi" with one for both letters.
TEST_F(MadePdf, HasItsTextsToBeCopiedOut)
{
    const std::string text = Of({PageOfEverything()}, "pdftotext", " -");
    for (const char* part : {"การทดสอบหาค่า ซี.บี.อาร์.", "ผู้ตรวจ", "Institute of Roads, 12.50 %",
                             "Classification of a field, 35 µm ± 2 °C", "Soil and ดิน ≥ 2", "Dry Density (g/cc)"})
        EXPECT_TRUE(Holds(text, part)) << part << " is not in\n" << text;
}

TEST_F(MadePdf, HasCharactersThatReportsHardlyUse)
{
    DrawingSurface page(6000, 3000);
    page.FontSize = 20;
    page.Print("Łódź");
    const std::string text = Of({*page.Image()}, "pdftotext", " -");
    EXPECT_TRUE(Holds(text, "Łódź")) << text;
}

TEST_F(MadePdf, HasAJpegFileAsItIs)
{
    const auto logo = PictureOf(TwoColours(), "jpeg");
    DrawingSurface page(6000, 6000);
    page.PaintPicture(logo, 1000, 1000, 3000, 3000);
    Of({*page.Image()}, "pdfimages -j", " " + PathOf("image"));
    EXPECT_EQ(files_.Read(PathOf("image-000.jpg")), logo->bytes);
}

TEST_F(MadePdf, HasAPictureOfManyPagesOnce)
{
    std::vector<DisplayList> pages;
    for (int copy = 0; copy < 3; ++copy) {  // a picture read anew for each page
        DrawingSurface page(6000, 6000);
        page.PaintPicture(PictureOf(TwoColours(), "jpeg"), 1000, 1000, 3000, 3000);
        pages.push_back(*page.Image());
    }
    const std::string json = Of(pages, "qpdf --json=1 --json-key=objects");
    const std::string mark = "\"/Subtype\": \"/Image\"";
    const std::size_t first = json.find(mark);
    ASSERT_NE(first, std::string::npos) << json;
    EXPECT_EQ(json.find(mark, first + 1), std::string::npos) << json;
}

TEST_F(MadePdf, ShowsThroughWhereAPictureIsClear)
{
    QImage clear(32, 32, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 16; ++x) clear.setPixelColor(x, y, QColor(0, 128, 64));
    DrawingSurface page(2880, 2880);
    page.FilledBox(0, 0, 2880, 2880, Colour{255, 255, 0});
    page.PaintPicture(PictureOf(clear, "png"), 0, 0, 2880, 2880);
    const QImage image = Printed(*page.Image(), 72);
    EXPECT_EQ(image.pixelColor(30, 72), QColor(0, 128, 64));
    EXPECT_EQ(image.pixelColor(110, 72), QColor(255, 255, 0));
}

TEST_F(MadePdf, ShowsTheGroundInAnOpenCircle)
{
    DrawingSurface page(2880, 2880);
    page.FilledBox(0, 0, 2880, 2880, Colour{255, 255, 0});
    page.FilledBox(0, 0, 200, 200, Colour{0, 128, 64});
    page.Circle(1440, 1440, 700);
    EXPECT_EQ(Printed(*page.Image(), 72).pixelColor(72, 72), QColor(255, 255, 0));
}

// Marks over letters have their places in a word of Thai letters, whatever stands before it in the same text.
TEST_F(MadePdf, SetsThaiWordsBehindLatinOnesAsByThemselves)
{
    const auto printed = [this](const std::vector<const char*>& texts) {
        DrawingSurface page(5760, 1440);
        page.FontName = "DilleniaUPC";
        page.FontSize = 40;
        page.CurrentX = page.CurrentY = 100;
        for (const char* text : texts) page.PrintOn(text);
        return Printed(*page.Image(), 96);
    };
    const QImage whole = printed({"A ที่ป้ำ"}), parts = printed({"A ", "ที่ป้ำ"});
    int worst = 0;
    for (int y = 0; y < whole.height(); ++y)
        for (int x = 0; x < whole.width(); ++x)
            worst = std::max(worst, std::abs(qGray(whole.pixel(x, y)) - qGray(parts.pixel(x, y))));
    EXPECT_LT(worst, 40);
}

TEST_F(MadePdf, HasACrossedBoxForADamagedPicture)
{
    const auto whole = PictureOf(TwoColours(), "png");
    const auto damaged = ReadPicture("logo.png", Bytes(whole->bytes.begin(), whole->bytes.begin() + 26));
    DrawingSurface page(2880, 2880);
    page.PaintPicture(damaged, 720, 720, 1440, 1440);
    const QImage image = Printed(*page.Image(), 72);
    EXPECT_LT(image.pixelColor(72, 72).green(), 250);  // where the diagonals meet
    EXPECT_EQ(image.pixelColor(72, 54), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::white));
}

/// The grey of a square of 12 pixels: two renderers smooth edges in their own ways, but leave the same ink.
int GreyOf(const QImage& image, int left, int top)
{
    int sum = 0;
    for (int y = top; y < top + 12; ++y)
        for (int x = left; x < left + 12; ++x) sum += qGray(image.pixel(x, y));
    return sum / 144;
}

// The one page drawn by Qt for the screen, the other by poppler from the file. A word or line that fails or stands
// elsewhere changes a square by 30 and more.
TEST_F(MadePdf, LooksAsThePageOnTheScreen)
{
    const DisplayList page = PageOfEverything();
    const QImage screen = PaintImage(page, 200);
    const QImage paper = Printed(page, 192);
    ASSERT_NEAR(screen.width(), paper.width(), 2);
    ASSERT_NEAR(screen.height(), paper.height(), 2);
    int worst = 0;
    for (int top = 0; top + 14 < screen.height(); top += 12)
        for (int left = 0; left + 14 < screen.width(); left += 12) {
            const int off = std::abs(GreyOf(screen, left, top) - GreyOf(paper, left, top));
            worst = std::max(worst, off);
            EXPECT_LT(off, 30) << "at " << left << ", " << top;
        }
    EXPECT_GT(worst, 0) << "one program drew both";
}

}  // namespace
}  // namespace terravane
