#include "reports/sieve_report.h"

#include <array>
#include <string>

#include "controls/choice_controls.h"
#include "laboratory/masks.h"
#include "laboratory/sieve_analysis.h"
#include "reports/report_table.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/sieve/frmSieve.h"

namespace terravane {

namespace {

constexpr double kTableTop = 4.5;  // lines of the page
constexpr double kBodyLine = kTableTop + 3;
constexpr double kRemarkLine = kBodyLine + kMostSieves;

/// Tops of the lower blocks, in lines from the page's top.
constexpr PerMedium<double> kGrainSizesLine{29.8, 30.8};
constexpr PerMedium<double> kClassesLine{33.8, 34.8};

constexpr double kMostLoss = 2;  // percent

using HeadLine = std::array<std::string_view, sieve::kColumns>;
constexpr std::array kHeads{
    HeadLine{"Sieve", "Sieve", "Mass of", "Mass of Sieve", "Mass of Soil", "Cumulative", "Cumulative", "Percent"},
    HeadLine{"Number", "Opening", "Sieve", "+ Soil", "Retained", "Retained", "Retained", "Passing"},
    HeadLine{"", "(mm)", "(g)", "(g)", "(g)", "(g)", "(%)", "(%)"},
};

constexpr std::string_view kMassColon = " :     ";
constexpr std::array kMasses{
    FieldOf(laboratory::kSieveSheet, "txtGsoil"),
    FieldOf(laboratory::kSieveSheet, "txtDwp"),
    FieldOf(laboratory::kSieveSheet, "txtWl"),
};
constexpr std::array kGrainSizes{
    FieldOf(laboratory::kSieveSheet, "txtD10"), FieldOf(laboratory::kSieveSheet, "txtD30"),
    FieldOf(laboratory::kSieveSheet, "txtD60"), FieldOf(laboratory::kSieveSheet, "txtCu"),
    FieldOf(laboratory::kSieveSheet, "txtCc"),
};

/// One classification system: a heading and two rows.
struct System {
    std::string_view heading;
    std::array<ReportField, 2> rows;
};
constexpr int kSystemLines = 3;
constexpr std::array kSystems{
    System{"Unified Soil Classification System (USCS)",
           {FieldOf(laboratory::kSieveSheet, "txtSuscs"), FieldOf(laboratory::kSieveSheet, "txtNuscs")}},
    System{"AASHTO Classification System",
           {FieldOf(laboratory::kSieveSheet, "txtSaash"), FieldOf(laboratory::kSieveSheet, "txtMtype")}},
};

/// The page being drawn, with the eight columns of its tables.
struct SievePage : ReportPage {
    PageColumns columns;

    explicit SievePage(const Printing& printing)
        : ReportPage(printing), columns(ColumnsBeside(0, WholeWidth(page), sieve::kColumns))
    {}

    /// The right end of the method box.
    double MethodEnd() const { return columns.Left(3); }
    Edges BesideSignatures() const { return {kLeft, columns.Left(6)}; }
    double Value(std::string_view control) const { return Val(Text(control)); }
    PageLines From(const PerMedium<double>& lines) const { return {page, LineHeight(page) * lines.On(medium)}; }
};

void DrawMassBoxes(const SievePage& of)
{
    const RuledBox method(of.page, of.y, {kLeft, of.MethodEnd()}, 1, 4);
    const RuledBox masses(of.page, of.y, {of.MethodEnd(), of.Right()}, 1, 4);
    masses.Thin();
    masses.Rows(2, 2);
}

void PrintMethod(const SievePage& of)
{
    const bool isWet = of.sheet.Get<OptionButton>("optYes").Value();
    of.page.CurrentY = of.y(2);
    PrintCentred(of.page, kLeft, of.MethodEnd() - kLeft, isWet ? "Wet Sieving Method" : "Dry Sieving Method");
}

/// All stops count from the end of the longest label. A value that is longer than its room moves the colon.
void PrintMasses(const SievePage& of)
{
    const double stop = of.MethodEnd() + of.page.TextWidth(kMasses.front().label);
    double line = 1;
    for (const ReportField& mass : kMasses) {
        const std::string value = Format(of.Text(mass.control), kTwoDecimals);
        const double left = stop + 1800 - of.page.TextWidth(value);
        PrintFrom(of.page, of.MethodEnd() + 900, of.y(line++), mass.label);
        PrintFrom(of.page, ColonLeft(of.page, stop + 1100, kMassColon, left), kMassColon);
        PrintFrom(of.page, left, value);
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
    PrintFrom(of.page, UnitLeft(of.page, colon + 900), "%");
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
    of.page.FilledBox(kLeft, of.y(kTableTop), of.Right(), of.y(kBodyLine), kWhite);
    const RuledBox heads(of.page, of.y, WholeWidth(of.page), kTableTop, kBodyLine);
    const RuledBox body(of.page, of.y, WholeWidth(of.page), kBodyLine, kRemarkLine);
    body.Thin();
    body.Rows(kBodyLine + 1, kMostSieves - 1);
    body.Verticals(of.columns, 2, sieve::kColumns, kTableTop, kRemarkLine);
}

void PrintTableHeads(const SievePage& of)
{
    const Bold bold(of.page);
    double line = kTableTop;
    for (const HeadLine& heads : kHeads) {
        of.page.CurrentY = of.y(line++);
        PrintHeads(of.page, of.columns, heads);
    }
}

void DrawSieveTable(const SievePage& of)
{
    DrawTableRules(of);
    std::vector<double> rows = of.y.EdgesOf(kBodyLine, kMostSieves);
    rows.insert(rows.begin(), of.y(kTableTop));
    const AsTable table(
        of.page,
        {.columns = of.columns.EdgesOf(sieve::kColumns), .rows = std::move(rows), .headRows = 1, .headColumns = 1});
    PrintTableHeads(of);
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

void PrintGrainSizeHead(const SievePage& of, double top, double left, std::string_view label)
{
    const Bold bold(of.page);
    of.page.CurrentY = top;
    PrintCentred(of.page, left, of.columns.width, label);
}

void DrawGrainSizes(const SievePage& of)
{
    const PageLines y = of.From(kGrainSizesLine);
    const RuledBox box(of.page, y, of.BesideSignatures(), 0, 2);
    box.Thin();
    box.Rows(1);
    box.Verticals(of.columns, 2, static_cast<int>(kGrainSizes.size()));
    const AsTable table(
        of.page,
        {.columns = of.columns.EdgesOf(static_cast<int>(kGrainSizes.size())), .rows = y.EdgesOf(0, 2), .headRows = 1});
    int column = 1;
    for (const ReportField& size : kGrainSizes) {
        const double left = of.columns.Left(column++);
        const std::string text = of.Text(size.control);
        PrintGrainSizeHead(of, y(0), left, size.label);
        of.page.CurrentY = y(1);
        PrintCentred(of.page, left, of.columns.width, Trim(BehindEquals(text)));
    }
}

void PrintClassesCaption(const SievePage& of, const PageLines& y)
{
    PrintCaption(of.page, kLeft, y(0),
                 "Engineering Soil Classification (LL = " + of.Text("txtLL") +
                     " % PI = " + NumberText(of.Value("txtLL") - of.Value("txtPL")) + " %)");
}

void PrintHeading(DrawingSurface& page, double top, std::string_view heading)
{
    const Bold bold(page);
    PrintFrom(page, kLeft + kLabelInset, top, heading);
}

void DrawSystem(const SievePage& of, const RuledBox& box, const PageLines& y, double top, const System& system)
{
    const double split = kLeft + WholeWidth(of.page).Width() / 6 + 150;
    box.Rows(top + 1, kSystemLines - 1);
    box.Vertical(split, top + 1, top + kSystemLines);
    const AsTable table(of.page, {.columns = {kLeft, split, of.BesideSignatures().right},
                                  .rows = y.EdgesOf(top, kSystemLines),
                                  .headRows = 1,
                                  .headColumns = 1,
                                  .merged = {{0, 0, 1, 2}}});
    PrintHeading(of.page, y(top), system.heading);
    for (const ReportField& row : system.rows) {
        PrintFrom(of.page, kLeft + kLabelInset, y(++top), row.label);
        PrintFrom(of.page, split + kLabelInset, of.Text(row.control));
    }
}

void DrawClasses(const SievePage& of)
{
    const PageLines y = of.From(kClassesLine);
    PrintClassesCaption(of, y);
    const RuledBox box(of.page, y, of.BesideSignatures(), 1, 1 + 2 * kSystemLines);
    box.Rows(1 + kSystemLines);
    box.Thin();
    DrawSystem(of, box, y, 1, kSystems[0]);
    DrawSystem(of, box, y, 1 + kSystemLines, kSystems[1]);
}

}  // namespace

void DrawSieve(const Printing& printing)
{
    const SievePage of(printing);
    DrawMassBoxes(of);
    PrintMethod(of);
    PrintMasses(of);
    PrintFractions(of);
    DrawSieveTable(of);
    PrintRemark(of);
    DrawGrainSizes(of);
    DrawClasses(of);
}

}  // namespace terravane
