// Classify: both systems, the plasticity chart with the sample's mark, and the posting.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/pattern/plot.h"
#include "sheets/pattern/plot_labels.h"
#include "sheets/sieve/aashto.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/sieve/uscs.h"

namespace terravane {

namespace {

constexpr double kChartTitleLeft = 80;  // of the turned title
constexpr double kSampleRadius = 40;
constexpr double kOverLetters = 40;   // white above the letters of a line
constexpr int kColumns = 10;          // of 10 percent liquid limit
constexpr int kRows = 7;              // of 10 percent plasticity index
constexpr double kTopOfALine = 58.4;  // plasticity index on the A-line at a liquid limit of 100

/// How liquid limit and plasticity index map to the chart, both in percent.
struct ChartScale {
    double columnWidth, rowHeight, height;

    double X(double liquidLimit) const { return liquidLimit / 10 * columnWidth; }
    double Y(double plasticityIndex) const { return height - plasticityIndex / 10 * rowHeight; }
};

ChartScale ScaleOf(const PictureBox& chart)
{
    return {chart.ScaleWidth / kColumns, chart.ScaleHeight / kRows, chart.Height};
}

/// The liquid limit at which the A-line has this plasticity index.
double LiquidLimitOnALine(double plasticityIndex)
{
    return 20 + plasticityIndex * 80 / kTopOfALine;
}

/// A zone's text, centred on a spot of the chart; `hangs` puts the top of its letters
/// there instead of its middle.
struct Zone {
    std::string_view text;
    double liquidLimit, plasticityIndex;
    bool hangs = false;
};
constexpr std::array kZones{
    Zone{"CH or OH", 75, 55}, Zone{"MH or OH", 75, 15},      Zone{"CL or OL", 25, 25},
    Zone{"ML or OL", 40, 5},  Zone{"CL - ML", 15, 10, true},
};

}  // namespace

void frmSieve::cmdClass_Click()
{
    if (Trim(txtLL.Text()).empty() || Trim(txtPL.Text()).empty()) {
        program.Ask().Show(
            {"Please input liquid limit and plastic limit before.", "Soil Classification", MessageStyle::Information});
        return;
    }
    const ShownAtEnd frameShown{picChart1}, chartShown{picChart};
    P4 = Val(txtP4.Text());
    P10 = Val(txtP10.Text());
    P40 = Val(txtP40.Text());
    P200 = Val(txtP200.Text());
    DrawPlasticityChart();
    ClassifyUSCS();
    ClassifyAASHTO();
    Gravel = RoundedToPlaces(100 - P4, 2);
    Sand = RoundedToPlaces(P4 - P200, 2);
    PostClasses();
}

Limits frmSieve::LimitsNow() const
{
    return {Val(txtLL.Text()), Val(txtPL.Text())};
}

void frmSieve::ClassifyUSCS()
{
    const Limits limits = LimitsNow();
    const UscsSample sample{P4, P200, limits, Val(D60), Val(D30), Val(D10)};
    const std::string symbol = UscsSymbol(sample);
    txtSuscs.SetText(symbol);
    txtNuscs.SetText(UscsName(symbol, sample));
    if (limits.PlasticityIndex() == 0) return;  // a non-plastic sample has no place on the chart
    DrawPlasticityChart(limits);
}

/// A group without a typical name leaves the last one standing.
void frmSieve::ClassifyAASHTO()
{
    const AashtoSample sample{P10, P40, P200, LimitsNow()};
    const std::string_view group = AashtoGroup(sample);
    txtSaash.SetText(std::string(group) + "(" + NumberText(GroupIndex(group, sample)) + ")");
    if (const auto name = TypicalName(group); !name.empty()) txtMtype.SetText(name);
}

void frmSieve::PostClasses()
{
    if (program.CurrentMaterial == Material::None) return;
    Post({{"gravel", SignedNumberText(Gravel)},
          {"sand", SignedNumberText(Sand)},
          {"finer", SignedNumberText(P200)},
          {"USCS", txtSuscs.Text()},
          {"AASHTO", txtSaash.Text()}});
}

/// A sample's mark goes before the texts of the zones, which stand clear of it.
void frmSieve::DrawPlasticityChart(const std::optional<Limits>& sample)
{
    picChart.Cls();
    picChart1.Cls();
    picChart.Axes.reset();
    PrintAxisTitles(picChart1, picChart, {"Liquid Limit (%)", "Plasticity Index (%)", kAxisSize, kChartTitleLeft});
    DrawOutline(picChart1, picChart);
    DrawChartGrid();
    const ChartScale scale = ScaleOf(picChart);
    const double left = 0, right = picChart.ScaleWidth;
    picChart.Line(scale.X(50), 0, scale.X(50), scale.height, kBlue);
    picChart.Line(right, scale.Y(kTopOfALine), scale.X(LiquidLimitOnALine(4)), scale.Y(4), kBlue);
    for (const double index : {4.0, 7.0})
        picChart.Line(left, scale.Y(index), scale.X(LiquidLimitOnALine(index)), scale.Y(index), kBlue);
    if (sample) MarkSample(*sample);
    PrintZones();
}

void frmSieve::DrawChartGrid()
{
    const ChartScale scale = ScaleOf(picChart);
    for (int column = 0; column <= kColumns; ++column) {
        const double x = column * scale.columnWidth;
        picChart.Line(x, 0, x, scale.height, kGridGrey);
        PrintBelow(picChart1, picChart, x, scale.height, NumberText(column * 10.0));
    }
    for (int row = 1; row <= kRows; ++row) {
        const double y = scale.Y(row * 10);
        picChart.Line(0, y, picChart.ScaleWidth, y, kGridGrey);
        PrintLeftOf(picChart1, picChart, y, NumberText(row * 10.0));
    }
}

void frmSieve::PrintZones()
{
    const ChartScale scale = ScaleOf(picChart);
    std::vector<PlotLabel> labels;
    for (const Zone& zone : kZones) {
        const double above = zone.hangs ? kOverLetters : picChart.TextHeight(zone.text) / 2;
        const DrawnPoint spot{scale.X(zone.liquidLimit), scale.Y(zone.plasticityIndex)};
        labels.push_back({.text = std::string(zone.text),
                          .at = spot,
                          .wanted = {{spot.x - picChart.TextWidth(zone.text) / 2, spot.y - above}},
                          .stays = true});
    }
    PrintLabels(picChart, {0, 0, picChart.ScaleWidth, scale.height}, labels);
}

void frmSieve::MarkSample(const Limits& limits)
{
    const ChartScale scale = ScaleOf(picChart);
    TellAxes(picChart, scale, {"Liquid Limit (%)", "Plasticity Index (%)"}, {0, 100}, {0, 10});
    picChart.FillSolid = true;
    picChart.FillColor = kBlack;
    picChart.Circle(scale.X(limits.liquid), scale.Y(limits.PlasticityIndex()), kSampleRadius);
    picChart.FillSolid = false;
}

}  // namespace terravane
