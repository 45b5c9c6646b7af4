#include "reports/print_report.h"

#include "reports/cover_page.h"
#include "reports/open_sheet.h"
#include "reports/page_frame.h"
#include "reports/report.h"
#include "runtime/text.h"

namespace terravane {

void PrintReport(Program& program, Printer& printer)
{
    const Report& report = ReportOf(program.CurrentTest);
    PrintCoverPage(program, printer);
    printer.NewPage();
    DrawPageFrame(program, printer, Medium::Printer);
    report.drawBody(program, printer, Medium::Printer);
    if (report.drawSecondPage == nullptr) return;
    printer.NewPage();
    if (report.isSecondOnItsSide) printer.SetOrientation(Orientation::Landscape);
    report.drawSecondPage(program, printer, Medium::Printer);
}

std::vector<DisplayList> PagesOfReport(Program& program)
{
    Printer copy = program.printer;
    copy.KillDoc();
    PrintReport(program, copy);
    return copy.Pages();
}

std::string JobTitle(const Program& program)
{
    const std::string title(EnglishTitle(program));
    const std::string number(Trim(OpenSheet(program).txtID.Text()));
    return number.empty() ? title : title + " " + number;
}

}  // namespace terravane
