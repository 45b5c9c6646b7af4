#include "reports/sieve_chart.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "drawing/scopes.h"
#include "laboratory/masks.h"
#include "reports/report_page.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/pattern/plot.h"
#include "sheets/sieve/frmSieve.h"

namespace terravane {

namespace {

constexpr double kChartSize = 14;  // points
constexpr int kDecades = 4;
constexpr int kTens = 10;

constexpr int kFinePen = 1;  // draw widths
constexpr int kGridPen = 2;
constexpr int kCurvePen = 6;
constexpr int kHeavyPen = 10;

constexpr double kTickLength = 240;
constexpr double kMarkRadius = 40;
constexpr Colour kMarkColour{255, 128, 0};

/// The chart's own sizes in mm by the trimmed label of a row; they stay whatever opening the row tells.
struct Mark {
    std::string_view label;
    double millimetre;
    bool previewOnly = false;
};
constexpr std::array kMarks{
    Mark{"2 in", 50},   Mark{"1 in", 25},    Mark{"3/4 in", 19},  Mark{"1/2 in", 12.5},    Mark{"3/8 in", 9.51},
    Mark{"#4", 4.75},   Mark{"#8", 2.6},     Mark{"#10", 2},      Mark{"#16", 1.19, true}, Mark{"#20", 0.85},
    Mark{"#30", 0.59},  Mark{"#40", 0.425},  Mark{"#50", 0.3},    Mark{"#60", 0.25},       Mark{"#80", 0.18},
    Mark{"#100", 0.15}, Mark{"#140", 0.106}, Mark{"#200", 0.075},
};

/// A text and the place in mm that it belongs to.
struct SizeLabel {
    std::string_view text;
    double millimetre;
};
constexpr std::array kSieveLabels{
    SizeLabel{"3''", 75},     SizeLabel{"1''", 25},   SizeLabel{"3/4''", 19},  SizeLabel{"1/2''", 12.5},
    SizeLabel{"3/8''", 9.51}, SizeLabel{"#4", 4.75},  SizeLabel{"#10", 2},     SizeLabel{"#20", 0.85},
    SizeLabel{"#40", 0.425},  SizeLabel{"#60", 0.25}, SizeLabel{"#100", 0.15}, SizeLabel{"#140", 0.106},
    SizeLabel{"#200", 0.075},
};
constexpr std::array kBoundaries{
    SizeLabel{"75", 75}, SizeLabel{"19", 19},       SizeLabel{"4.75", 4.75},
    SizeLabel{"2", 2},   SizeLabel{"0.425", 0.425}, SizeLabel{"0.075", 0.075},
};

/// A band between two sizes in mm; the finest ends at the chart's right edge.
struct Band {
    std::string_view name;
    double from, to;
};
constexpr double kToTheEdge = 0;
constexpr std::array kMainBands{
    Band{"Gravel", 75, 4.75},
    Band{"Sand", 4.75, 0.075},
    Band{"Silt or Clay", 0.075, kToTheEdge},
};
constexpr std::array kSubBands{
    Band{"Coarse", 75, 19},   Band{"Fine", 19, 4.75},     Band{"Coarse", 4.75, 2},
    Band{"Medium", 2, 0.425}, Band{"Fine", 0.425, 0.075}, Band{"", 0.075, kToTheEdge},
};

// Tops of the lines over the plot, in text heights above it.
constexpr double kMainBandLine = 4;
constexpr double kSubBandLine = 3;
constexpr double kBoundaryLine = 2;
constexpr double kSieveLine = 1;

/// Edges of the plot and how size and percent map to it, in twips of the page on its side.
struct ChartPage : Printing {
    double left, right, top, bottom;
    double decade;
    double tenPercent;

    explicit ChartPage(const Printing& printing)
        : Printing(printing),
          left(page.Width * 1.5 / 11),
          right(page.Width * 10 / 11),
          top(page.Height * 4.5 / 16),
          bottom(page.Height * 13 / 16),
          decade(std::trunc(std::nearbyint(right - left) / kDecades)),
          tenPercent((bottom - top) / kTens)
    {}

    double X(double millimetre) const { return left + 2 * decade - DecimalLogarithm(millimetre) * decade; }
    double Y(double percent) const { return bottom - percent * tenPercent / 10; }
    double RightOf(const Band& band) const { return band.to == kToTheEdge ? right : X(band.to); }
    /// A line over the plot.
    double Above(double lines) const { return top - lines * page.TextHeight("1"); }

    void PrintOver(double x, double y, std::string_view text) const
    {
        page.CurrentY = y;
        PrintCentred(page, x, 0, text);
    }
    void PrintUpTo(double x, double y, std::string_view text) const
    {
        page.CurrentY = y;
        PrintFrom(page, x - page.TextWidth(text), text);
    }
};

void PrintFooter(const ChartPage& of)
{
    const AsFurniture furniture(of.page);
    const TextSize size(of.page, kFooterSize);
    of.page.CurrentY = of.page.Height - 1000;
    PrintFrom(of.page, 1000, of.sheet.stbDes.Panel(1));
    of.PrintUpTo(of.right, of.page.CurrentY, "Page 2 ");
}

/// The label of a decade stands a hair left of its line.
void DrawSizeGrid(const ChartPage& of)
{
    double size = 0.01;
    of.PrintOver(of.right, of.bottom + 200, "0.01");
    for (int decade = 0; decade < kDecades; ++decade) {
        for (int part = 10; part >= 1; --part) {
            const double x = of.right - decade * of.decade - DecimalLogarithm(part) * of.decade;
            const Stroke stroke(of.page, part == 10 ? kHeavyPen : kGridPen);
            of.page.Line(x, of.top, x, of.bottom);
            if (part == 10) of.PrintOver(x - 10, of.bottom + 200, Format(size *= 10, kTwoDecimals));
        }
    }
}

void DrawPercentGrid(const ChartPage& of)
{
    const Stroke stroke(of.page, kGridPen);
    const double middle = of.page.TextHeight("1") / 2;
    for (int ten = 0; ten <= kTens; ++ten) {
        const double y = of.bottom - ten * of.tenPercent;
        of.page.Line(of.left, y, of.right, y);
        of.page.CurrentY = y - middle;
        PrintFrom(of.page, of.left - 600, NumberText(ten * 10.0));
    }
}

void DrawFrame(const ChartPage& of)
{
    const Stroke stroke(of.page, kHeavyPen);
    of.page.Box(of.left, of.top, of.right, of.bottom);
}

void DrawSieveTicks(const ChartPage& of)
{
    const Stroke stroke(of.page, kFinePen, kDotted);
    for (const SizeLabel& label : kSieveLabels) {
        const double x = of.X(label.millimetre);
        of.page.Line(x, of.top, x, of.top + kTickLength);
        of.PrintOver(x, of.Above(kSieveLine), label.text);
    }
    of.PrintUpTo(of.right, of.Above(kSieveLine), "U.S. Standard Sieve Size");
}

void DrawBoundaries(const ChartPage& of)
{
    const Stroke stroke(of.page, kGridPen);
    for (const double y : {of.top, of.bottom}) of.page.Line(of.left, y, of.right, y);
    for (const SizeLabel& boundary : kBoundaries) {
        const double x = of.X(boundary.millimetre);
        of.page.Line(x, of.top, x, of.bottom);
        of.PrintOver(x, of.Above(kBoundaryLine), boundary.text);
    }
    of.PrintUpTo(of.right, of.Above(kBoundaryLine), "Unified and USBR");
}

void DrawBand(const ChartPage& of, const Band& band, double line)
{
    const double from = of.X(band.from), to = of.RightOf(band);
    of.page.Box(from, of.Above(line), to, of.Above(line - 1));
    of.PrintOver((from + to) / 2, of.Above(line), band.name);
}

/// Over the plot, where neither grid nor curve runs through it.
void DrawLegend(const ChartPage& of)
{
    const Stroke stroke(of.page, kGridPen);
    for (const Band& band : kMainBands) DrawBand(of, band, kMainBandLine);
    for (const Band& band : kSubBands) DrawBand(of, band, kSubBandLine);
}

void PrintTitles(const ChartPage& of)
{
    const double middle = (of.left + of.right) / 2;
    const Bold bold(of.page);
    of.PrintOver(middle, of.bottom + 2 * LineHeight(of.page), "Grain Size(mm)");
    const AsTitle title(of.page);
    of.PrintOver(middle, 700, "PATICLE SIZE DISTRIBUTION CURVE");
}

/// The sheet has the caption of the percents, which reads upwards, as a picture.
void CopyPercentCaption(const ChartPage& of)
{
    const auto& caption = of.sheet.Get<PictureBox>("Image3");
    of.page.PaintPicture(caption.Name(), caption.Image(), 700, 5600, 550, 1800);
}

/// A label without a size of its own is marked where the last one was, such as the pan below the finest sieve.
void DrawMarks(const ChartPage& of)
{
    const auto& stack = of.sheet.Get<TextGrid>("MSHSieve");
    std::optional<double> x;
    const Stroke stroke(of.page, kGridPen);
    const Filled filled(of.page, kMarkColour);
    for (int row = 1; row <= kMostSieves; ++row) {
        const auto label = Trim(stack(row, sieve::Number));
        for (const Mark& mark : kMarks) {
            if (mark.label == label && (of.medium == Medium::Preview || !mark.previewOnly)) x = of.X(mark.millimetre);
        }
        if (x && !label.empty()) of.page.Circle(*x, of.Y(Val(stack(row, sieve::Passing))), kMarkRadius);
    }
}

/// The curve that stands on the sheet: drawn from other points, it would not be the one that was looked at.
void DrawCurve(const ChartPage& of)
{
    const TextGrid* points = of.SheetAs<frmSieve>().ShownCurve;
    std::vector<DrawnPoint> curve;
    for (int row = 1; points && row < points->Rows() && points->Rows() > 2; ++row)
        curve.push_back({of.X(Val((*points)(row, 0))), of.Y(Val((*points)(row, 1)))});
    const Stroke stroke(of.page, kCurvePen);
    of.page.Polyline(curve, kBlue);
}

/// What of the curve was read; a fine soil has no D10.
std::string CurveShown(const ChartPage& of)
{
    std::string read;
    const auto add = [&](std::string_view label, std::string_view control, std::string_view unit) {
        const std::string text = TextOf(of.sheet, control);
        const std::string_view value = Trim(BehindEquals(text));
        if (value.empty()) return;
        read += (read.empty() ? "" : ", ") + std::string(label) + std::string(value) + std::string(unit);
    };
    add("passing #4 ", "txtP4", " %");
    add("passing #200 ", "txtP200", " %");
    add("D10 ", "txtD10", " mm");
    add("D30 ", "txtD30", " mm");
    add("D60 ", "txtD60", " mm");
    return Shows("Particle size distribution", read, read);
}

}  // namespace

void DrawSieveChart(const Printing& printing)
{
    const ChartPage of(printing);
    SetReportFont(of.page);
    PrintFooter(of);
    const AsFigure figure(of.page, CurveShown(of));
    const TextSize size(of.page, kChartSize);
    DrawSizeGrid(of);
    DrawPercentGrid(of);
    DrawFrame(of);
    DrawSieveTicks(of);
    DrawBoundaries(of);
    DrawLegend(of);
    PrintTitles(of);
    CopyPercentCaption(of);
    DrawMarks(of);
    DrawCurve(of);
}

}  // namespace terravane
