// Picture and PDF files as others read them: Qt's image reader, and poppler's pdfinfo, pdffonts and
// pdftotext.
#include <QImage>
#include <QPdfWriter>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>

#include <gtest/gtest.h>
#include <unistd.h>

#include "drawing/drawing_surface.h"
#include "render/gui_application.h"
#include "render/pdf.h"
#include "render/png.h"
#include "runtime/runtime_error.h"

namespace terravane {
namespace {

/// A folder of the test's own, gone with it.
class RenderedFile : public testing::Test {
  protected:
    RenderedFile() : folder_(std::filesystem::temp_directory_path() / ("terravane_render_" + std::to_string(getpid())))
    {
        std::filesystem::create_directories(folder_);
    }
    ~RenderedFile() override { std::filesystem::remove_all(folder_); }

    std::string PathOf(const char* name) const { return (folder_ / name).string(); }

    /// What a program prints about a file.
    static std::string Said(const std::string& command)
    {
        const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen((command + " 2>&1").c_str(), "r"), pclose);
        std::string text;
        std::array<char, 4096> part;
        while (std::fgets(part.data(), static_cast<int>(part.size()), pipe.get())) text += part.data();
        return text;
    }

    DiskFileSystem files_;

  private:
    std::filesystem::path folder_;
};

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

DisplayList Page(double width, double height, const std::string& text)
{
    DrawingSurface page(width, height);
    page.FontName = "DilleniaUPC";
    page.FontSize = 16;
    page.CurrentX = page.CurrentY = 1000;
    page.Print(text);
    page.FontBold = true;
    page.Print("การทดสอบ " + text);
    page.FontName = "Times New Roman";
    page.Print("Water Content");
    page.Circle(3000, 4000, 500);
    return *page.Image();
}

std::vector<DisplayList> Report()
{
    return {Page(11906, 16838, "Compaction"), Page(16838, 11906, "Sieve")};
}

using WrittenPdf = RenderedFile;

TEST_F(WrittenPdf, HasPagesOfTheirListsSizes)
{
    WritePdf(files_, PathOf("report.pdf"), Report(), "Test of Soil");
    const std::string info = Said("pdfinfo -f 1 -l 2 " + PathOf("report.pdf"));
    EXPECT_TRUE(Contains(info, "Pages:           2")) << info;
    EXPECT_TRUE(Contains(info, "Page    1 size:  595.276 x 841.89 pts (A4)")) << info;
    EXPECT_TRUE(Contains(info, "Page    2 size:  841.89 x 595.276 pts (A4)")) << info;
    EXPECT_TRUE(Contains(info, "Title:           Test of Soil")) << info;
    EXPECT_TRUE(Contains(info, "Creator:         Terravane")) << info;
}

TEST_F(WrittenPdf, HasItsFontsInIt)
{
    WritePdf(files_, PathOf("report.pdf"), Report(), "Test");
    const std::string fonts = Said("pdffonts " + PathOf("report.pdf"));
    for (const char* font : {"Loma ", "Loma-Bold ", "LiberationSerif-Bold "}) {
        const std::size_t at = fonts.find(std::string("+") + font);  // behind the mark of a part of a font
        ASSERT_NE(at, std::string::npos) << fonts;
        EXPECT_TRUE(Contains(fonts.substr(at, fonts.find('\n', at + 1) - at), "Identity-H       yes yes yes")) << fonts;
    }
    EXPECT_FALSE(Contains(fonts, "DejaVu")) << fonts;
}

TEST_F(WrittenPdf, HasLettersAsLettersInTheRightPlace)
{
    WritePdf(files_, PathOf("report.pdf"), Report(), "Test");
    EXPECT_TRUE(Contains(Said("pdftotext -f 1 -l 1 " + PathOf("report.pdf") + " -"), "Compaction"));
    EXPECT_TRUE(Contains(Said("pdftotext -f 2 -l 2 " + PathOf("report.pdf") + " -"), "Sieve"));
}

// 1000 twips are 50 points, on the upright page as on the broad one.
TEST_F(WrittenPdf, StartsTextWhereThePositionIsOnEveryPage)
{
    WritePdf(files_, PathOf("report.pdf"), Report(), "Test");
    for (const auto& [page, word] : {std::pair("1", ">Compaction<"), {"2", ">Sieve<"}}) {
        const std::string boxes =
            Said(std::string("pdftotext -bbox -f ") + page + " -l " + page + " " + PathOf("report.pdf") + " -");
        const std::string line = boxes.substr(0, boxes.find(word));
        EXPECT_TRUE(Contains(line.substr(line.rfind("<word")), "xMin=\"50.0")) << boxes;
    }
}

TEST_F(WrittenPdf, HasNoPixelsForLinesAndLetters)
{
    WritePdf(files_, PathOf("report.pdf"), Report(), "Test");
    EXPECT_FALSE(Contains(Said("pdfimages -list " + PathOf("report.pdf")), " image "));
}

TEST_F(WrittenPdf, NeedsAPage)
{
    try {
        WritePdf(files_, PathOf("report.pdf"), {}, "Test");
        FAIL() << "a report without pages was written";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 482);
    }
    EXPECT_FALSE(files_.Exists(PathOf("report.pdf")));
}

TEST_F(WrittenPdf, NamesTheFolderThatIsNotThere)
{
    try {
        WritePdf(files_, PathOf("nowhere/report.pdf"), Report(), "Test");
        FAIL() << "a report was written into no folder";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 76);
        EXPECT_TRUE(Contains(error.Description(), "nowhere")) << error.Description();
    }
}

/// A disk that is full when the file is to reach it.
class FullDisk : public DiskFileSystem {
  protected:
    void SyncFile(const std::string& path) override { throw RuntimeError(error::kDiskFull, "Disk full: " + path); }
};

TEST_F(WrittenPdf, KeepsTheOldFileOnAFullDisk)
{
    WritePdf(files_, PathOf("report.pdf"), Report(), "First");
    const Bytes before = files_.Read(PathOf("report.pdf"));
    FullDisk full;
    EXPECT_THROW(WritePdf(full, PathOf("report.pdf"), Report(), "Second"), RuntimeError);
    EXPECT_EQ(files_.Read(PathOf("report.pdf")), before);
    EXPECT_EQ(files_.Names(FolderOf(PathOf("report.pdf"))).size(), 1u);  // no half file beside it
}

using WrittenPng = RenderedFile;

// 1500 by 900 twips are 100 by 60 pixels at 96 dots an inch.
/// A printer is a paged device of Qt's, and so is Qt's own writer of PDF files, whose pages can be looked at.
class PrintedPages : public RenderedFile {
  protected:
    void Print(const std::vector<DisplayList>& pages)
    {
        EnsureGuiApplication();
        QPdfWriter printer(QString::fromStdString(PathOf("printed.pdf")));
        PrintPages(printer, pages);
    }
};

TEST_F(PrintedPages, StandUprightAndLieOnTheirSideAsTheirListsDo)
{
    Print({Page(11906, 16838, "Compaction"), Page(16838, 11906, "Sieve"), Page(11906, 16838, "Again")});
    const std::string info = Said("pdfinfo -f 1 -l 3 " + PathOf("printed.pdf"));
    EXPECT_TRUE(Contains(info, "Pages:           3")) << info;
    EXPECT_TRUE(Contains(info, "Page    1 size:  595 x 842 pts")) << info;
    EXPECT_TRUE(Contains(info, "Page    2 size:  842 x 595 pts")) << info;
    EXPECT_TRUE(Contains(info, "Page    3 size:  595 x 842 pts")) << info;
}

// 1000 twips are 50 points: the printer takes the whole paper, without margins of its own.
TEST_F(PrintedPages, StartTextWhereThePositionIs)
{
    Print(Report());
    for (const auto& [page, word] : {std::pair("1", ">Compaction<"), {"2", ">Sieve<"}}) {
        const std::string boxes =
            Said(std::string("pdftotext -bbox -f ") + page + " -l " + page + " " + PathOf("printed.pdf") + " -");
        const std::string line = boxes.substr(0, boxes.find(word));
        EXPECT_TRUE(Contains(line.substr(line.rfind("<word")), "xMin=\"50.0")) << boxes;
    }
}

TEST_F(PrintedPages, NeedAPage)
{
    try {
        Print({});
        FAIL() << "a job without pages was printed";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), error::kPrinter);
    }
}

TEST_F(WrittenPng, IsAsLargeAsItsPercentage)
{
    const DisplayList list{1500, 900, {FillItem{0, 0, 750, 900, kRed}}};
    for (const auto& [percent, width, height] : {std::tuple(100.0, 100, 60), {50.0, 50, 30}, {200.0, 200, 120}}) {
        WritePng(files_, PathOf("page.png"), list, percent);
        const QImage image(QString::fromStdString(PathOf("page.png")));
        EXPECT_EQ(image.size(), QSize(width, height));
        EXPECT_EQ(image.pixelColor(width / 4, height / 2), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(width * 3 / 4, height / 2), QColor(Qt::white));
    }
}

TEST_F(WrittenPng, CountsAPixelThatIsBegun)
{
    EXPECT_EQ(PaintImage({1501, 900, {}}, 100).size(), QSize(101, 60));
    EXPECT_EQ(PaintImage({11906, 16838, {}}, 100).size(), QSize(794, 1123));
}

TEST_F(WrittenPng, RefusesAPercentageWithoutAPicture)
{
    const DisplayList page{11906, 16838, {}};
    for (const double percent : {0.0, -100.0, 1e9, 5000.0}) try {
            WritePng(files_, PathOf("page.png"), page, percent);
            ADD_FAILURE() << percent << " percent was drawn";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), 5);
        }
    EXPECT_FALSE(files_.Exists(PathOf("page.png")));
}

}  // namespace
}  // namespace terravane
