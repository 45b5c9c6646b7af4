#include "reports/page_frame.h"

#include <string>

#include "drawing/scopes.h"
#include "program/version.h"
#include "reports/brand.h"
#include "reports/head_block.h"
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

void DrawFooter(const Printing& of)
{
    const AsFurniture furniture(of.page);
    const TextSize size(of.page, kFooterSize);
    const std::string number = "Page " + std::to_string(of.number);
    of.page.CurrentY = of.page.ScaleHeight - kFooterHeight;
    PrintFrom(of.page, kLeft, of.sheet.stbDes.Panel(1));
    PrintLineFrom(of.page, RightEdge(of.page) - of.page.TextWidth(number), number);
}

/// Eight letter widths of the footer down, a width and not a height.
double BannerTop(DrawingSurface& page)
{
    const TextSize size(page, kFooterSize);
    return page.TextWidth("n") * 8;
}

/// Ends the line, below which the title box begins.
void DrawBanner(const Printing& of)
{
    const AsFurniture furniture(of.page);
    of.page.CurrentY = BannerTop(of.page);
    const TextSize size(of.page, kBannerSize);
    const Italic italic(of.page);
    const double measured = of.page.TextWidth(kDifferences.On(of.medium).bannerMeasured);
    PrintLineFrom(of.page, (of.page.ScaleWidth - measured) / 2, kBanner);
}

/// Top and bottom of the title box.
struct TitleBox {
    double top, bottom;
};

/// Its heights are lines of the banner above it.
TitleBox DrawTitleBox(DrawingSurface& page)
{
    const TextSize size(page, kBannerSize);
    const double line = LineHeight(page);
    const double right = RightEdge(page);
    const TitleBox box{page.CurrentY, page.CurrentY + line * kBoxLines};
    const double cell = kLeft + line * kLogoCellLines;
    const double rule = box.top + line * kNameLines;
    page.FilledBox(kLeft, box.top, right, box.bottom, kWhite);
    {
        const Stroke stroke(page, kTitleBoxRule);
        page.Box(kLeft, box.top, right, box.bottom);
    }
    const Stroke stroke(page, kTitleRule);
    page.Line(cell, rule, right - line * kLogoCellLines, rule);
    page.Line(cell, box.top, cell, box.bottom);
    return box;
}

/// The names centre on the sheet, the titles on the printable width.
void PrintNames(const Printing& of)
{
    const jet::Recordset logo = OpenLogoRow(of.sheet.program);
    const auto print = [&](const std::string& column, double lines) {
        of.page.CurrentY = LineHeight(of.page) * lines;
        PrintCentred(of.page, 0, of.page.Width, Trim(logo.Fields(column)));
    };
    print("logo_dep", 3);
    print("logo_ins", 3.8);
}

void PrintTitles(const Printing& of)
{
    const AsTitle title(of.page);
    const laboratory::Names& names = of.titled.test.names;
    const PerMedium<std::string_view> thai{names.OnPaper(), names.OnPreview()};
    const double measured = of.page.TextWidth(thai.On(of.titled.isTitleCrossed ? TheOther(of.medium) : of.medium));
    of.page.CurrentY = LineHeight(of.page) * 4.9;
    PrintFrom(of.page, (of.page.ScaleWidth - measured) / 2, thai.On(of.medium));
    of.page.CurrentY = LineHeight(of.page) * 5.7;
    PrintCentred(of.page, 0, of.page.ScaleWidth, names.english);
}

void DrawLogos(const Printing& of, const TitleBox& box)
{
    constexpr double kDepartmentSide = 1250, kInstituteSide = 1200, kInstituteLeft = 640;
    Program& program = of.sheet.program;
    const FrameDifferences& tops = kDifferences.On(of.medium);
    const Stroke stroke(of.page, kTitleRule);
    const double cell = LineHeight(of.page) * kLogoCellLines;
    const double rule = of.page.ScaleWidth - 630 - cell;
    of.page.Line(rule, box.top, rule, box.bottom);
    {
        const AsFigure figure(of.page, "Logo of the department");
        of.page.PaintPicture(LoadBrandPicture(program, "Image2", kDepartmentLogo), of.page.ScaleWidth - 530 - cell,
                             tops.departmentLogoTop, kDepartmentSide, kDepartmentSide);
    }
    const AsFigure figure(of.page, "Logo of the institute");
    of.page.PaintPicture(LoadBrandPicture(program, "Image1", kInstituteLogo), kInstituteLeft, tops.instituteLogoTop,
                         kInstituteSide, kInstituteSide);
}

/// Footer, banner, title box.
void DrawFurniture(const Printing& of)
{
    SetReportFont(of.page);
    DrawFooter(of);
    DrawBanner(of);
    const TitleBox box = DrawTitleBox(of.page);
    const Bold bold(of.page);
    const TextSize size(of.page, kTitleSize);
    PrintNames(of);
    PrintTitles(of);
    DrawLogos(of, box);
}

}  // namespace

void DrawPageFrame(const Printing& of)
{
    if (of.Kind().isOnItsSide) return;
    DrawFurniture(of);
    if (of.number == kFirstPage) DrawHeadBlock(of);
}

}  // namespace terravane
