#include "reports/cover_page.h"

#include "drawing/scopes.h"
#include "reports/brand.h"
#include "reports/report_page.h"
#include "runtime/text.h"
#include "store/brand_pictures.h"

namespace terravane {

namespace {

constexpr double kLogoWidth = 1420;
constexpr double kLogoTop = 1200;
constexpr double kTitleTop = 4000;
constexpr double kCoverTitleSize = 28;  // points
constexpr double kTextSize = 22;
constexpr int kGap = 4;  // blank lines between the cover's parts

void PaintLogo(const Printing& of)
{
    const AsFigure figure(of.page, "Logo of the organisation");
    const auto logo = LoadBrandPicture(of.sheet.program, "Image6", kCoverLogo);
    const double scale = kLogoWidth / logo->width;
    of.page.PaintPicture(logo, of.page.Width / 2 - kLogoWidth / 2, kLogoTop, kLogoWidth, logo->height * scale);
}

/// Centred on the sheet, ending the line.
void PrintLine(DrawingSurface& page, std::string_view text)
{
    PrintCentred(page, 0, page.Width, text);
    page.Print();
}

void PrintBoldLine(DrawingSurface& page, std::string_view text)
{
    const Bold bold(page);
    PrintLine(page, text);
}

void PrintBlankLines(DrawingSurface& page, int count)
{
    for (int line = 0; line < count; ++line) page.Print();
}

void PrintTitle(const Printing& of)
{
    const AsTitle title(of.page);
    const TextSize size(of.page, kCoverTitleSize);
    of.page.CurrentY = kTitleTop;
    PrintBoldLine(of.page, of.report.test.names.cover);
}

void PrintJob(DrawingSurface& page, const TestSheet& sheet)
{
    PrintBlankLines(page, 1);
    PrintLine(page, sheet.txtProject.Text());
    PrintLine(page, sheet.txtLocation.Text());
    PrintBlankLines(page, kGap);
    PrintBoldLine(page, "เสนอ");
    PrintLine(page, sheet.txtClient.Text());
    PrintBlankLines(page, kGap);
}

void PrintOrganisation(const Printing& of)
{
    PrintBoldLine(of.page, "โดย");
    const jet::Recordset logo = OpenLogoRow(of.sheet.program);
    for (const std::string_view column : {"logo_cov1", "logo_cov2", "logo_cov3"})
        PrintLine(of.page, Trim(logo.Fields(std::string(column))));
}

}  // namespace

void DrawCoverPage(const Printing& of)
{
    SetReportFont(of.page);
    PaintLogo(of);
    PrintTitle(of);
    const TextSize size(of.page, kTextSize);
    PrintJob(of.page, of.sheet);
    PrintOrganisation(of);
}

}  // namespace terravane
