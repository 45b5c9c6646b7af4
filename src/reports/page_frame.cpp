#include "reports/page_frame.h"

#include "program/version.h"
#include "reports/brand.h"
#include "reports/head_block.h"
#include "reports/open_sheet.h"
#include "reports/report.h"
#include "reports/report_page.h"
#include "runtime/text.h"
#include "store/brand_pictures.h"

namespace terravane {

namespace {

constexpr double kBannerSize = 16;  // points
constexpr double kTitleSize = 14;
constexpr double kFooterHeight = 700;  // from the page's bottom to the footer's top
constexpr int kTitleBoxRule = 4;       // draw widths
constexpr int kTitleRule = 2;

// Heights of the title box and its texts, and widths of its logo cells, in lines.
constexpr double kBoxLines = 3.5;
constexpr double kNameLines = 1.6;  // the part of the box above its inner rule
constexpr double kLogoCellLines = 3.5;

constexpr std::string_view kBanner =
    "Terravane Program for Road Construction Materials 2022 (Terravane Version " TERRAVANE_VERSION ")";

/// What printer and preview have differently. On the printer the banner is centred by a text one blank
/// shorter.
struct FrameDifferences {
    std::string_view bannerMeasured;
    double departmentLogoTop, instituteLogoTop;
};

constexpr PerMedium<FrameDifferences> kDifferences{
    {"Terravane Program for Road Construction Materials 2022 (Terravane Version" TERRAVANE_VERSION ")", 1200, 1225},
    {kBanner, 1240, 1235},
};

/// A compaction page is titled by the sheet's banner, whatever the current test says.
Test TitledTest(const Program& program)
{
    if (!IsCompaction(program.CurrentTest)) return program.CurrentTest;
    const bool isStandard = OpenSheet(program).txtLabName.Text().find("Standard") != std::string::npos;
    return isStandard ? Test::StdSoil : Test::ModSoil;
}

const ReportTitles& TitlesOf(const Program& program)
{
    return ReportOf(TitledTest(program)).titles;
}

void DrawFooter(const Program& program, DrawingSurface& page, std::string_view pageText)
{
    page.CurrentY = page.ScaleHeight - kFooterHeight;
    PrintFrom(page, kLeft, OpenSheet(program).stbDes.Panel(1));
    PrintLineFrom(page, RightEdge(page) - page.TextWidth(pageText), pageText);
}

/// The banner's top is eight letter widths down, a width and not a height.
void DrawBanner(DrawingSurface& page, Medium medium)
{
    page.CurrentY = page.TextWidth("n") * 8;
    page.FontSize = kBannerSize;
    page.FontItalic = true;
    const double measured = page.TextWidth(kDifferences.On(medium).bannerMeasured);
    PrintLineFrom(page, (page.ScaleWidth - measured) / 2, kBanner);
    page.FontItalic = false;
}

/// Top and bottom of the title box.
struct TitleBox {
    double top, bottom;
};

TitleBox DrawTitleBox(DrawingSurface& page)
{
    const double line = LineHeight(page);
    const double right = RightEdge(page);
    const TitleBox box{page.CurrentY, page.CurrentY + line * kBoxLines};
    const double cell = kLeft + line * kLogoCellLines;
    const double rule = box.top + line * kNameLines;
    page.DrawWidth = kTitleBoxRule;
    page.FilledBox(kLeft, box.top, right, box.bottom, kWhite);
    page.Box(kLeft, box.top, right, box.bottom);
    page.DrawWidth = kTitleRule;
    page.Line(cell, rule, right - line * kLogoCellLines, rule);
    page.Line(cell, box.top, cell, box.bottom);
    return box;
}

/// The names centre on the sheet, the titles on the printable width.
void PrintNames(Program& program, DrawingSurface& page)
{
    const jet::Recordset logo = OpenLogoRow(program);
    const auto print = [&](const std::string& column, double lines) {
        page.CurrentY = LineHeight(page) * lines;
        PrintCentred(page, 0, page.Width, Trim(logo.Fields(column)));
    };
    print("logo_dep", 3);
    print("logo_ins", 3.8);
}

void PrintTitles(const Program& program, DrawingSurface& page, Medium medium)
{
    const ReportTitles& titles = TitlesOf(program);
    const double measured = page.TextWidth(titles.thai.On(titles.crossed ? TheOther(medium) : medium));
    page.CurrentY = LineHeight(page) * 4.9;
    PrintFrom(page, (page.ScaleWidth - measured) / 2, titles.thai.On(medium));
    page.CurrentY = LineHeight(page) * 5.7;
    PrintCentred(page, 0, page.ScaleWidth, titles.english);
}

void DrawLogos(Program& program, DrawingSurface& page, const TitleBox& box, Medium medium)
{
    constexpr double kDepartmentSide = 1250, kInstituteSide = 1200, kInstituteLeft = 640;
    const double cell = LineHeight(page) * kLogoCellLines;
    const double rule = page.ScaleWidth - 630 - cell;
    page.Line(rule, box.top, rule, box.bottom);
    page.PaintPicture(LoadBrandPicture(program, "Image2", kDepartmentLogo), page.ScaleWidth - 530 - cell,
                      kDifferences.On(medium).departmentLogoTop, kDepartmentSide, kDepartmentSide);
    page.PaintPicture(LoadBrandPicture(program, "Image1", kInstituteLogo), kInstituteLeft,
                      kDifferences.On(medium).instituteLogoTop, kInstituteSide, kInstituteSide);
}

}  // namespace

void DrawPageFrame(Program& program, DrawingSurface& page, Medium medium)
{
    DrawFurniture(program, page, medium, "Page 1");
    DrawHeadBlock(OpenSheet(program), page, medium);
}

void DrawFurniture(Program& program, DrawingSurface& page, Medium medium, std::string_view pageText)
{
    page.FontName = kReportFont;
    page.FontBold = false;
    page.FontSize = kFooterSize;
    DrawFooter(program, page, pageText);
    DrawBanner(page, medium);
    const TitleBox box = DrawTitleBox(page);
    page.FontBold = true;
    page.FontTransparent = true;
    page.FontSize = kTitleSize;
    PrintNames(program, page);
    PrintTitles(program, page, medium);
    DrawLogos(program, page, box, medium);
    page.FontBold = false;
}

std::string_view EnglishTitle(const Program& program)
{
    return TitlesOf(program).english;
}

}  // namespace terravane
