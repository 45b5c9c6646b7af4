// Plots on a printer with one ink, 300 dots to the inch: curves and guides come out without a break, in the weights and
// colours of the sheets, by two readers that make dots of colours each in its own way.
#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "drawing/drawing_surface.h"
#include "drawing/scopes.h"
#include "render/gui_application.h"
#include "render/pdf.h"
#include "sheets/pattern/plot.h"

namespace terravane::one_ink_test {
namespace {

/// A picture of black and white: "P4" width height, then rows of eight dots a byte, 1 for ink.
class Dots {
  public:
    explicit Dots(const std::string& path)
    {
        std::ifstream file(path, std::ios::binary);
        std::string kind;
        file >> kind >> width_ >> height_;
        file.get();
        bytes_.assign(std::istreambuf_iterator<char>(file), {});
    }

    bool AreThere() const
    {
        return height_ > 0 && bytes_.size() >= static_cast<std::size_t>((width_ + 7) / 8 * height_);
    }

    /// Whether there is ink at a place of the page or beside it, in twips.
    bool HasInkAt(double x, double y) const
    {
        constexpr double kDotsPerTwip = 300.0 / 1440;
        const int column = static_cast<int>(x * kDotsPerTwip), row = static_cast<int>(y * kDotsPerTwip);
        for (int down = -2; down <= 2; ++down)
            for (int across = -2; across <= 2; ++across)
                if (IsInk(column + across, row + down)) return true;
        return false;
    }

  private:
    bool IsInk(int column, int row) const
    {
        const auto at = static_cast<std::size_t>(row * ((width_ + 7) / 8) + column / 8);
        return (static_cast<unsigned char>(bytes_.at(at)) >> (7 - column % 8) & 1) != 0;
    }

    int width_ = 0, height_ = 0;
    std::string bytes_;
};

struct PlottedLine {
    const char* name;
    int width;
    Colour colour;
    bool isDots;
};
constexpr std::array kLines{
    PlottedLine{"blue curve", plot_pen::kCurve, kBlue, false},
    PlottedLine{"red curve", plot_pen::kCurve, kRed, false},
    PlottedLine{"red guide", plot_pen::kAxis, kRed, false},
    PlottedLine{"blue guide", plot_pen::kAxis, kBlue, false},
    PlottedLine{"frame", plot_pen::kAxis, kBlack, false},
    PlottedLine{"air voids", plot_pen::kDots, kMagenta, true},
};
constexpr double kLength = 6000;                          // twips across
constexpr std::array kRises{0.0, 900.0, 3000.0, 6000.0};  // of a line over its length

double TopOf(std::size_t line, std::size_t rise)
{
    return 800 + 150.0 * static_cast<double>(line) + 1800.0 * static_cast<double>(rise);
}

DisplayList AllLines()
{
    DrawingSurface page(11906, 16838);
    for (std::size_t rise = 0; rise < kRises.size(); ++rise)
        for (std::size_t line = 0; line < kLines.size(); ++line) {
            const Stroke stroke(page, kLines[line].width);
            const double top = TopOf(line, rise);
            if (!kLines[line].isDots) page.Line(500, top, 500 + kLength, top + kRises[rise], kLines[line].colour);
            for (int k = 0; kLines[line].isDots && k <= 1000; ++k)
                page.PSet(500 + kLength * k / 1000, top + kRises[rise] * k / 1000, kLines[line].colour);
        }
    return *page.Image();
}

/// The longest way along a line without ink, in dots of the printer.
int LongestGap(const Dots& dots, double top, double rise)
{
    int gap = 0, longest = 0;
    const int steps = static_cast<int>(std::hypot(kLength, rise) * 300 / 1440);
    for (int k = 5; k + 5 <= steps; ++k) {
        gap = dots.HasInkAt(500 + kLength * k / steps, top + rise * k / steps) ? 0 : gap + 1;
        longest = std::max(longest, gap);
    }
    return longest;
}

TEST(OneInk, BreaksNoCurveAndNoGuide)
{
    EnsureGuiApplication();
    const auto folder = std::filesystem::temp_directory_path() / ("terravane_ink_" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    const std::string path = folder.string();
    DiskFileSystem files;
    WritePdf(files, path + "/plot.pdf", std::vector{AllLines()}, {"Plot", MakeMoment(2026, 11, 21), {}});
    for (const std::string& reader : {"pdftoppm -singlefile -mono -r 300 " + path + "/plot.pdf " + path + "/dots",
                                      "mutool draw -q -c mono -r 300 -o " + path + "/dots.pbm " + path + "/plot.pdf"}) {
        ASSERT_EQ(std::system((reader + " 2>/dev/null").c_str()), 0) << reader;
        const Dots dots(path + "/dots.pbm");
        ASSERT_TRUE(dots.AreThere()) << reader;
        EXPECT_FALSE(dots.HasInkAt(250, 400)) << "The page is white.";
        for (std::size_t rise = 0; rise < kRises.size(); ++rise)
            for (std::size_t line = 0; line < kLines.size(); ++line)
                EXPECT_LE(LongestGap(dots, TopOf(line, rise), kRises[rise]), 1)
                    << kLines[line].name << " rising by " << kRises[rise] << ", " << reader;
    }
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace terravane::one_ink_test
