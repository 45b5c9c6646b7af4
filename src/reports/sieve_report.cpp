#include "reports/sieve_report.h"

#include <array>
#include <string>

#include "controls/choice_controls.h"
#include "reports/medium.h"
#include "reports/open_sheet.h"
#include "reports/report_table.h"
#include "reports/sieve_chart.h"
#include "reports/signature_block.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/pattern/masks.h"
#include "sheets/sieve/frmSieve.h"

namespace terravane {

namespace {

constexpr int kTableColumns = sieve::kColumns;
constexpr double kTableTop = 4.5;  // lines of the page
constexpr double kBodyLine = kTableTop + 3;
constexpr double kRemarkLine = kBodyLine + kMostSieves;

/// Tops of the lower blocks, in lines from the page's top.
constexpr PerMedium<double> kGrainSizesLine{29.8, 30.8};
constexpr PerMedium<double> kClassesLine{33.8, 34.8};

constexpr double kMostLoss = 2;  // percent

using HeadLines = std::array<std::string_view, 3>;
constexpr std::array<HeadLines, sieve::kColumns> kHeads{
    HeadLines{"Sieve", "Number", ""},
    HeadLines{"Sieve", "Opening", "(mm)"},
    HeadLines{"Mass of", "Sieve", "(g)"},
    HeadLines{"Mass of Sieve", "+ Soil", "(g)"},
    HeadLines{"Mass of Soil", "Retained", "(g)"},
    HeadLines{"Cumulative", "Retained", "(g)"},
    HeadLines{"Cumulative", "Retained", "(%)"},
    HeadLines{"Percent", "Passing", "(%)"},
};

/// A label and the control that its value comes from.
struct Field {
    std::string_view label, control;
};
constexpr std::array kMasses{
    Field{"Dry Mass of Original Sample", "txtGsoil"},
    Field{"Dry Mass after Washing", "txtDwp"},
    Field{"Mass Loss through Washing", "txtWl"},
};
constexpr std::array kGrainSizes{
    Field{"D10 (mm)", "txtD10"}, Field{"D30 (mm)", "txtD30"}, Field{"D60 (mm)", "txtD60"},
    Field{"Cu", "txtCu"},        Field{"Cc", "txtCc"},
};

/// One classification system: a heading and two rows.
struct System {
    std::string_view heading;
    std::array<Field, 2> rows;
};
constexpr int kSystemLines = 3;
constexpr std::array kSystems{
    System{"Unified Soil Classification System (USCS)",
           {Field{"Group Symbol", "txtSuscs"}, Field{"Group Name", "txtNuscs"}}},
    System{"AASHTO Classification System", {Field{"Group Symbol", "txtSaash"}, Field{"Typical Names", "txtMtype"}}},
};

/// The page being drawn: its rows from the body's top, the eight columns of its tables.
struct SievePage {
    const TestSheet& sheet;
    DrawingSurface& page;
    Medium medium;
    PageLines y;
    PageColumns columns;

    SievePage(const TestSheet& open, DrawingSurface& surface, Medium where)
        : sheet(open),
          page(surface),
          medium(where),
          y(surface, kBodyTop),
          columns{kLeft, (surface.ScaleWidth - kLeft - 500) / kTableColumns}
    {}

    double Right() const { return RightEdge(page); }
    /// The right end of the method box.
    double MethodEnd() const { return columns.Left(3); }
    /// The right end of what stands beside the signatures.
    double NarrowEnd() const { return columns.Left(6); }
    std::string Text(std::string_view control) const { return TextOf(sheet, control); }
    double Value(std::string_view control) const { return Val(Text(control)); }
    PageLines From(const PerMedium<double>& lines) const { return {page, LineHeight(page) * lines.On(medium)}; }
};

void DrawMassBoxes(const SievePage& of)
{
    of.page.DrawWidth = kThickRule;
    of.page.Box(kLeft, of.y(1), of.MethodEnd(), of.y(4));
    of.page.Box(of.MethodEnd(), of.y(1), of.Right(), of.y(4));
    of.page.DrawWidth = kThinRule;
    DrawRows(of.page, of.y, of.MethodEnd(), of.Right(), 2, 2);
}

void PrintMethod(const SievePage& of)
{
    const bool isWet = of.sheet.Get<OptionButton>("optYes").Value();
    of.page.CurrentY = of.y(2);
    PrintCentred(of.page, kLeft, of.MethodEnd() - kLeft, isWet ? "Wet Sieving Method" : "Dry Sieving Method");
}

/// All stops count from the end of the longest label.
void PrintMasses(const SievePage& of)
{
    const double stop = of.MethodEnd() + of.page.TextWidth(kMasses.front().label);
    for (std::size_t row = 0; row < kMasses.size(); ++row) {
        const std::string value = Format(of.Text(kMasses[row].control), kTwoDecimals);
        of.page.CurrentY = of.y(1 + static_cast<double>(row));
        PrintFrom(of.page, of.MethodEnd() + 900, kMasses[row].label);
        PrintFrom(of.page, stop + 1100, " :     ");
        PrintFrom(of.page, stop + 1800 - of.page.TextWidth(value), value);
        PrintFrom(of.page, stop + 2100, " grams ");
    }
}

void PrintFraction(const SievePage& of, double line, std::string_view label, double percent)
{
    const double left = (of.MethodEnd() + of.Right()) / 2 + 900;
    const double colon = left + of.page.TextWidth("Plasticity Index");
    of.page.CurrentY = of.y(line);
    PrintFrom(of.page, left, label);
    PrintFrom(of.page, colon, "  :     ");
    PrintFrom(of.page, colon + 400, Format(percent, kTwoDecimals));
    PrintFrom(of.page, colon + 900, "%");
}

void PrintFractions(const SievePage& of)
{
    const double retained4 = 100 - of.Value("txtP4"), fines = of.Value("txtP200");
    PrintFraction(of, 1, "Gravel Fraction ", retained4);
    PrintFraction(of, 2, "Sand Fraction ", (100 - fines) - retained4);
    PrintFraction(of, 3, "Fine Fraction ", fines);
}

void DrawTableRules(const SievePage& of)
{
    of.page.DrawWidth = kThickRule;
    of.page.FilledBox(kLeft, of.y(kTableTop), of.Right(), of.y(kBodyLine), kWhite);
    of.page.Box(kLeft, of.y(kTableTop), of.Right(), of.y(kBodyLine));
    of.page.Box(kLeft, of.y(kBodyLine), of.Right(), of.y(kRemarkLine));
    of.page.DrawWidth = kThinRule;
    DrawRows(of.page, of.y, kLeft, of.Right(), kBodyLine + 1, kMostSieves - 1);
    DrawVerticals(of.page, of.y, of.columns, 2, sieve::kColumns, kTableTop, kRemarkLine);
}

void PrintHeads(const SievePage& of)
{
    of.page.FontBold = true;
    for (std::size_t line = 0; line < std::tuple_size_v<HeadLines>; ++line) {
        of.page.CurrentY = of.y(kTableTop + static_cast<double>(line));
        for (std::size_t column = 0; column < kHeads.size(); ++column)
            PrintCentred(of.page, of.columns.Left(static_cast<int>(column) + 1), of.columns.width,
                         kHeads[column][line]);
    }
    of.page.FontBold = false;
}

void DrawSieveTable(const SievePage& of)
{
    DrawTableRules(of);
    PrintHeads(of);
    PrintCells(of.page, of.y, of.columns, kBodyLine, of.sheet.Get<TextGrid>("MSHSieve"),
               {1, kMostSieves, sieve::Number, sieve::Passing});
}

/// A loss of exactly two percent is one too many.
void PrintRemark(const SievePage& of)
{
    const std::string loss = of.Text("txtErr");
    const double percent = Val(loss.substr(0, loss.empty() ? 0 : loss.size() - 1));
    of.page.CurrentY = of.y(kRemarkLine);
    PrintLineFrom(of.page, kLeft,
                  "Remark :  Percent mass loss due to sieving of this test is " + loss +
                      (percent < kMostLoss ? " which is less than 2% then the test need not be rerun."
                                           : " which is more than 2% then the test should be rerun."));
}

void DrawGrainSizes(const SievePage& of)
{
    const PageLines y = of.From(kGrainSizesLine);
    of.page.DrawWidth = kThickRule;
    of.page.Box(kLeft, y(0), of.NarrowEnd(), y(2));
    of.page.DrawWidth = kThinRule;
    DrawRows(of.page, y, kLeft, of.NarrowEnd(), 1, 1);
    DrawVerticals(of.page, y, of.columns, 2, static_cast<int>(kGrainSizes.size()), 0, 2);
    for (std::size_t i = 0; i < kGrainSizes.size(); ++i) {
        const double left = of.columns.Left(static_cast<int>(i) + 1);
        const std::string box = of.Text(kGrainSizes[i].control);
        of.page.FontBold = true;
        of.page.CurrentY = y(0);
        PrintCentred(of.page, left, of.columns.width, kGrainSizes[i].label);
        of.page.FontBold = false;
        of.page.CurrentY = y(1);
        PrintCentred(of.page, left, of.columns.width, Trim(BehindEquals(box)));
    }
}

void PrintClassesCaption(const SievePage& of, const PageLines& y)
{
    PrintCaption(of.page, y(0),
                 "Engineering Soil Classification (LL = " + of.Text("txtLL") +
                     " % PI = " + NumberText(of.Value("txtLL") - of.Value("txtPL")) + " %)");
}

void DrawSystem(const SievePage& of, const PageLines& y, double top, const System& system)
{
    const double split = kLeft + (of.page.ScaleWidth - kLeft - 500) / 6 + 150;
    DrawRows(of.page, y, kLeft, of.NarrowEnd(), top + 1, kSystemLines - 1);
    of.page.Line(split, y(top + 1), split, y(top + kSystemLines));
    of.page.FontBold = true;
    of.page.CurrentY = y(top);
    PrintFrom(of.page, kLeft + kLabelInset, system.heading);
    of.page.FontBold = false;
    for (std::size_t row = 0; row < system.rows.size(); ++row) {
        of.page.CurrentY = y(top + 1 + static_cast<double>(row));
        PrintFrom(of.page, kLeft + kLabelInset, system.rows[row].label);
        PrintFrom(of.page, split + kLabelInset, of.Text(system.rows[row].control));
    }
}

void DrawClasses(const SievePage& of)
{
    const PageLines y = of.From(kClassesLine);
    PrintClassesCaption(of, y);
    of.page.DrawWidth = kThickRule;
    of.page.Box(kLeft, y(1), of.NarrowEnd(), y(1 + 2 * kSystemLines));
    DrawRows(of.page, y, kLeft, of.NarrowEnd(), 1 + kSystemLines, 1);
    of.page.DrawWidth = kThinRule;
    DrawSystem(of, y, 1, kSystems[0]);
    DrawSystem(of, y, 1 + kSystemLines, kSystems[1]);
}

void DrawPage1(Program& program, DrawingSurface& page, Medium medium)
{
    page.FontSize = kBodySize;
    const SievePage of(OpenSheet(program), page, medium);
    DrawMassBoxes(of);
    PrintMethod(of);
    PrintMasses(of);
    PrintFractions(of);
    DrawSieveTable(of);
    PrintRemark(of);
    DrawGrainSizes(of);
    DrawClasses(of);
    DrawSignatures(program, page, medium);
}

}  // namespace

void PrintSieve(Program& program, Printer& printer)
{
    DrawPage1(program, printer, Medium::Printer);
    printer.NewPage();
    printer.SetOrientation(Orientation::Landscape);
    DrawSieveChart(OpenSheet(program), printer, Medium::Printer);
}

void ShowSievePage1(Program& program, DrawingSurface& picView)
{
    DrawPage1(program, picView, Medium::Preview);
}

void ShowSievePage2(Program& program, DrawingSurface& picView)
{
    DrawSieveChart(OpenSheet(program), picView, Medium::Preview);
}

}  // namespace terravane
