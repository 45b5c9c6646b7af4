// The print of the overall results: one upright page, drawn from what the form shows.
#include "drawing/placed_text.h"
#include "drawing/scopes.h"
#include "program/version.h"
#include "results/frmSummary.h"
#include "runtime/text.h"

namespace terravane {

namespace {

constexpr std::string_view kThaiName = "โปรแกรมเทอร์ราเวน สำหรับงานทดสอบวัสดุก่อสร้างทาง";
constexpr std::string_view kName = "Terravane Program";
constexpr std::string_view kVersion = "Terravane version " TERRAVANE_VERSION;
constexpr std::string_view kMaker = "Written by the Terravane developers";
constexpr std::string_view kRemarkText =
    "Remark: * indicates that the test was performed using a wet sieve or an unsoaked CBR.";

constexpr double kTitleSize = 20;  // points
constexpr double kVersionSize = 14;
constexpr double kTextSize = 16;
constexpr double kRemarkSize = 14;
constexpr Colour kThaiColour{192, 0, 0};
constexpr Colour kNameColour{0, 0, 192};

// Lengths are twips from here on. The same margin holds left and right.
constexpr double kMargin = 1250;
constexpr double kLogoTop = 1250;
constexpr double kLogoSide = 1200;
constexpr double kBannerLeft = 3000;
constexpr double kThaiTop = 1200;
constexpr double kNameTop = 1600;
constexpr double kVersionTop = 2070;
constexpr double kBannerRule = 2480;
constexpr double kJobTop = 2700;
constexpr double kJobTextLeft = 2800;
constexpr double kTitleTop = 3800;
constexpr double kTableTop = 4500;
constexpr double kTestInset = 200;
constexpr double kCaptionInset = 90;  // the longest caption leaves as much at its other end
constexpr double kRemarkTop = kTableTop + 418 * summary::kRows + 76;  // a line of the table is a little less than 418

/// Where the grid's columns begin on the page, in thirds of the table, and where the last one ends.
constexpr std::array kEdges{0.0, 1.0, 2.0, 2.5, 3.0};

double RightEdge(const DrawingSurface& page)
{
    return page.ScaleWidth - kMargin;
}

/// The table on the page: a line of text a row of the grid. The line is measured once, in the size then in force.
class PrintedTable {
  public:
    PrintedTable(DrawingSurface& page, const TextGrid& grid)
        : page_(page), grid_(grid), line_(LineHeight(page)), third_((page.ScaleWidth - 2 * kMargin) / 3)
    {}

    void DrawFrame() const
    {
        const Stroke stroke(page_, kThickRule);
        page_.Box(Left(0), Top(0), Left(summary::kColumns), Top(summary::kRows));
    }

    void DrawRules() const
    {
        const Stroke stroke(page_, kThinRule);
        page_.Line(Left(summary::kProperty), Top(0), Left(summary::kProperty), Top(summary::kRows));
        page_.Line(Left(summary::kSoil), Top(0), Left(summary::kSoil), Top(summary::kRows));
        page_.Line(Left(summary::kCrush), Top(1), Left(summary::kCrush), Top(summary::kRows));
        page_.Line(Left(summary::kSoil), Top(1), Left(summary::kColumns), Top(1));
        for (const CellArea& test : Tests()) page_.Line(Left(0), Top(test.row), Left(summary::kColumns), Top(test.row));
    }

    void PrintHeads() const
    {
        for (int row = 0; row < summary::kHeadRows; ++row) {
            for (int column = 0; column < summary::kColumns; ++column) {
                const CellArea area = grid_.AreaOf(row, column);
                if (area.row != row || area.column != column) continue;  // printed with the cell that it merged with
                page_.CurrentY = Middle(area);
                PrintCentred(page_, Left(column), Width(column, area.columns), grid_(row, column));
            }
        }
    }

    void PrintTestsAndCaptions() const
    {
        for (const CellArea& test : Tests())
            PrintFrom(page_, Left(summary::kTest) + kTestInset, Middle(test), grid_(test.row, summary::kTest));
        for (int row = summary::kHeadRows; row < summary::kRows; ++row)
            PrintFrom(page_, Left(summary::kProperty) + kCaptionInset, Top(row), summary::LineOf(row).result->printed);
    }

    /// The unit stands behind a value that was posted, and behind a mark without a value.
    void PrintValues(int column) const
    {
        for (int row = summary::kHeadRows; row < summary::kRows; ++row) {
            std::string text = grid_(row, column);
            if (!Trim(text).empty()) text += summary::LineOf(row).Unit();
            page_.CurrentY = Top(row);
            PrintCentred(page_, Left(column), Width(column, 1), text);
        }
    }

    /// Where its cells lie, and which of them are merged.
    TableShape Shape() const
    {
        TableShape shape{.headRows = summary::kHeadRows, .headColumns = summary::kSoil};
        for (int column = 0; column <= summary::kColumns; ++column) shape.columns.push_back(Left(column));
        for (int row = 0; row <= summary::kRows; ++row) shape.rows.push_back(Top(row));
        for (int row = 0; row < summary::kRows; ++row) {
            for (int column = 0; column < summary::kColumns; ++column) {
                const CellArea area = grid_.AreaOf(row, column);
                const bool isOwn = area.row == row && area.column == column;
                if (isOwn && area.rows * area.columns > 1)
                    shape.merged.push_back({row, column, area.rows, area.columns});
            }
        }
        return shape;
    }

  private:
    double Left(int column) const { return kMargin + third_ * kEdges[static_cast<std::size_t>(column)]; }
    double Width(int column, int columns) const { return Left(column + columns) - Left(column); }
    double Top(int row) const { return kTableTop + line_ * row; }
    /// Where a text begins that stands half-way down an area.
    double Middle(const CellArea& area) const { return Top(area.row) + line_ * (area.rows - 1) / 2; }

    /// The tests below the heads, as the grid's first column merges them.
    std::vector<CellArea> Tests() const
    {
        std::vector<CellArea> tests;
        for (int row = summary::kHeadRows; row < summary::kRows; row += tests.back().rows)
            tests.push_back(grid_.AreaOf(row, summary::kTest));
        return tests;
    }

    DrawingSurface& page_;
    const TextGrid& grid_;
    double line_, third_;
};

void PrintName(DrawingSurface& page, double top, Colour colour, std::string_view name)
{
    const Bold bold(page);
    const TextSize size(page, kTitleSize);
    const TextColour coloured(page, colour);
    PrintFrom(page, kBannerLeft, top, name);
}

void PrintVersion(DrawingSurface& page)
{
    const Bold bold(page);
    const TextSize size(page, kVersionSize);
    PrintFrom(page, kBannerLeft, kVersionTop, kVersion);
}

void PrintMaker(DrawingSurface& page)
{
    const TextSize size(page, kVersionSize);
    PrintFrom(page, RightEdge(page) - page.TextWidth(kMaker), kVersionTop, kMaker);
}

void DrawBanner(const frmSummary& form, DrawingSurface& page)
{
    {
        const AsFigure figure(page, "Logo of Terravane");
        page.PaintPicture(form.imgLogo.Content(), kMargin, kLogoTop, kLogoSide, kLogoSide);
    }
    PrintName(page, kThaiTop, kThaiColour, kThaiName);
    PrintName(page, kNameTop, kNameColour, kName);
    PrintVersion(page);
    PrintMaker(page);
    const Stroke stroke(page, kThinRule);
    page.Line(kBannerLeft, kBannerRule, RightEdge(page), kBannerRule);
}

void PrintJob(const frmSummary& form, DrawingSurface& page)
{
    const TextSize size(page, kTextSize);
    double y = kJobTop;
    for (const TextBox* box : {&form.txtProject, &form.txtLocation}) {
        PrintFrom(page, kMargin, y, box->Caption());
        PrintFrom(page, kJobTextLeft, y, ":  " + box->Text());
        y += page.TextHeight(box->Caption());
    }
}

void PrintTitle(DrawingSurface& page)
{
    const AsTitle title(page);
    const Bold bold(page);
    const TextSize size(page, kTitleSize);
    page.CurrentY = kTitleTop;
    PrintCentred(page, 0, page.ScaleWidth, kSummaryTitle);
}

/// Slanted and light, so that it reads as a note below the table.
void PrintRemark(DrawingSurface& page)
{
    const AsLine line(page);
    const Regular regular(page);
    const Italic italic(page);
    const TextSize size(page, kRemarkSize);
    PrintFrom(page, kMargin, kRemarkTop, kRemarkText);
}

void DrawTable(const frmSummary& form, DrawingSurface& page)
{
    const Bold bold(page);
    const TextSize size(page, kTextSize);
    const PrintedTable table(page, form.mshSum);
    table.DrawFrame();
    table.DrawRules();
    const AsTable part(page, table.Shape());
    table.PrintHeads();
    table.PrintTestsAndCaptions();
    PrintRemark(page);
    table.PrintValues(summary::kSoil);
    table.PrintValues(summary::kCrush);
}

}  // namespace

void frmSummary::DrawPage(Printer& printer) const
{
    printer.SetOrientation(Orientation::Portrait);
    printer.FontName = kReportFont;
    printer.FontBold = false;
    printer.FontItalic = false;
    DrawBanner(*this, printer);
    PrintJob(*this, printer);
    PrintTitle(printer);
    DrawTable(*this, printer);
}

std::vector<DisplayList> frmSummary::Pages() const
{
    Printer copy = program.printer;
    copy.KillDoc();
    DrawPage(copy);
    return copy.Pages();
}

}  // namespace terravane
