#include "reports/cover_page.h"

#include "reports/brand.h"
#include "reports/open_sheet.h"
#include "reports/report.h"
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

void PaintLogo(Program& program, Printer& printer)
{
    const auto logo = LoadBrandPicture(program, "Image6", kCoverLogo);
    const double scale = kLogoWidth / logo->width;
    printer.PaintPicture(logo, printer.Width / 2 - kLogoWidth / 2, kLogoTop, kLogoWidth, logo->height * scale);
}

/// Centred on the sheet, ending the line.
void PrintLine(Printer& printer, std::string_view text)
{
    PrintCentred(printer, 0, printer.Width, text);
    printer.Print();
}

void PrintBlankLines(Printer& printer, int count)
{
    for (int line = 0; line < count; ++line) printer.Print();
}

void PrintBoldLine(Printer& printer, std::string_view text)
{
    printer.FontBold = true;
    PrintLine(printer, text);
    printer.FontBold = false;
}

void PrintJob(Printer& printer, const TestSheet& sheet)
{
    PrintBlankLines(printer, 1);
    PrintLine(printer, sheet.txtProject.Text());
    PrintLine(printer, sheet.txtLocation.Text());
    PrintBlankLines(printer, kGap);
    PrintBoldLine(printer, "เสนอ");
    PrintLine(printer, sheet.txtClient.Text());
    PrintBlankLines(printer, kGap);
}

void PrintOrganisation(Program& program, Printer& printer)
{
    PrintBoldLine(printer, "โดย");
    const jet::Recordset& logo = OpenLogoRow(program);
    for (const std::string_view column : {"logo_cov1", "logo_cov2", "logo_cov3"})
        PrintLine(printer, Trim(logo.Fields(std::string(column))));
}

}  // namespace

void PrintCoverPage(Program& program, Printer& printer)
{
    const TestSheet& sheet = OpenSheet(program);
    PaintLogo(program, printer);
    printer.FontName = kReportFont;
    printer.FontSize = kCoverTitleSize;
    printer.CurrentY = kTitleTop;
    PrintBoldLine(printer, ReportOf(program.CurrentTest).titles.cover);
    printer.FontSize = kTextSize;
    PrintJob(printer, sheet);
    PrintOrganisation(program, printer);
}

}  // namespace terravane
