// The surface of the grain-size curve: log grid, percentages, sieve ticks, marks and the curve itself.
#include <array>
#include <cmath>

#include "drawing/placed_text.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/pattern/plot.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/sieve/sieve_table.h"

namespace terravane {

namespace {

constexpr int kDecades = 4;
constexpr int kTens = 10;
constexpr double kTitleLeft = 130;  // of the turned title
constexpr double kPercentRoom = 60;
constexpr std::string_view kSizeTitle = "Grain Size , mm";
constexpr std::string_view kPassingTitle = "Percent Passing (%)";

constexpr std::string_view kSieveFont = "Cordia New";
constexpr double kSieveSize = 10;  // points: the labels of 1/2'' and 3/8'' just stand side by side
constexpr double kSieveTick = 90;
constexpr Colour kSieveGrey{128, 128, 128};

constexpr double kPointRadius = 35;
constexpr Colour kPointColour{255, 128, 0};

/// The decades' bounds from the left.
constexpr std::array<std::string_view, kDecades + 1> kSizeLabels{"100", "10", "1", "0.1", "0.01"};

/// The sieves that stand over the plot.
struct SieveTick {
    std::string_view label, sieve;
};
constexpr std::array kSieveTicks{
    SieveTick{"1''", "1 in"}, SieveTick{"3/4''", "3/4 in"}, SieveTick{"1/2''", "1/2 in"}, SieveTick{"3/8''", "3/8 in"},
    SieveTick{"#4", "#4"},    SieveTick{"#10", "#10"},      SieveTick{"#20", "#20"},      SieveTick{"#40", "#40"},
    SieveTick{"#60", "#60"},  SieveTick{"#100", "#100"},    SieveTick{"#140", "#140"},    SieveTick{"#200", "#200"},
};

/// A whole number of twips, as an integer division gives it.
double WholePart(double length, int parts)
{
    return std::trunc(Int(length) / parts);
}

}  // namespace

double GrainSizeScale::X(double millimetre) const
{
    return 2 * decade - decade * DecimalLogarithm(millimetre);
}

GrainSizeScale frmSieve::Scale() const
{
    return {WholePart(picGraph.ScaleWidth, kDecades), WholePart(picGraph.ScaleHeight, kTens), picGraph.ScaleHeight};
}

void frmSieve::DrawGrainSizeGrid()
{
    picGraph.Cls();
    picgraph1.Cls();
    ShownCurve = nullptr;
    picGraph.Axes.reset();
    PrintAxisTitles(picgraph1, picGraph, {kSizeTitle, kPassingTitle, kAxisSize, kTitleLeft});
    DrawOutline(picgraph1, picGraph);
    const GrainSizeScale scale = Scale();
    DrawSizeLines(scale);
    DrawPercentLines(scale);
    DrawSieveTicks(scale);
}

void frmSieve::DrawSizeLines(const GrainSizeScale& scale)
{
    for (int decade = 0; decade < kDecades; ++decade) {
        for (int part = 1; part < 10; ++part) {
            const double x = scale.decade * (decade + 1 - DecimalLogarithm(part));
            picGraph.Line(x, 0, x, scale.height, kGridGrey);
        }
    }
    for (int bound = 0; bound <= kDecades; ++bound)
        PrintBelow(picgraph1, picGraph, bound * scale.decade, scale.height,
                   kSizeLabels[static_cast<std::size_t>(bound)]);
}

void frmSieve::DrawPercentLines(const GrainSizeScale& scale)
{
    for (int percent = 0; percent <= 100; percent += 10) {
        const double y = scale.Y(percent);
        picGraph.Line(0, y, picGraph.Width, y, kGridGrey);
        PrintLeftOf(picgraph1, picGraph, y, NumberText(static_cast<double>(percent)), kPercentRoom);
    }
}

void frmSieve::DrawSieveTicks(const GrainSizeScale& scale)
{
    const auto [left, top] = InsetOf(picGraph, picgraph1);
    SetFont(picgraph1, kSieveFont, kSieveSize);
    for (const SieveTick& tick : kSieveTicks) {
        const double x = left + scale.X(FindSieve(tick.sieve)->millimetre);
        picgraph1.Line(x, top - kSieveTick, x, top, kSieveGrey);
        PrintAt(picgraph1, x - picgraph1.TextWidth(tick.label) / 2, top - kSieveTick - picgraph1.TextHeight(tick.label),
                tick.label);
    }
    SetFont(picgraph1, kTickFont, kTickSize);
}

/// A mark's size comes from the sieve's name, its percentage from the row. The pan has no size and ends the stack.
void frmSieve::MarkPoints()
{
    const GrainSizeScale scale = Scale();
    picGraph.ForeColor = kBlue;
    TellAxes(picGraph, scale, {kSizeTitle, kPassingTitle}, {1, 10, true}, {0, 100});
    picGraph.FillSolid = true;
    picGraph.FillColor = kPointColour;
    for (int row = 1; row <= kMostSieves; ++row) {
        const auto name = Trim(MSHSieve(row, sieve::Number));
        if (name == kPan) break;
        const Sieve* found = FindSieve(name);
        if (found)
            picGraph.Circle(scale.X(found->millimetre), scale.Y(Val(MSHSieve(row, sieve::Passing))), kPointRadius);
    }
    picGraph.FillSolid = false;
    picGraph.ForeColor = kBlack;
}

void frmSieve::DrawCurve(const TextGrid& table)
{
    const GrainSizeScale scale = Scale();
    std::vector<DrawnPoint> curve;
    for (int row = 1; row < table.Rows() && table.Rows() > 2; ++row)
        curve.push_back({scale.X(Val(table(row, 0))), scale.Y(Val(table(row, 1)))});
    picGraph.Polyline(curve, kBlue);
    ShownCurve = &table;
}

/// The vertical caption of the printed curve, kept as a drawing: the page paints it as it stands here.
void frmSieve::DrawAxisCaption()
{
    Image3.Cls();
    SetFont(Image3, kReportFont, 15);
    Image3.FontBold = true;
    Image3.PrintTurned(kPassingTitle, (Image3.Width - Image3.TextHeight(kPassingTitle)) / 2,
                       (Image3.Height + Image3.TextWidth(kPassingTitle)) / 2);
}

}  // namespace terravane
