#include "reports/print_report.h"

#include "reports/all_reports.h"
#include "reports/cover_page.h"
#include "reports/page_frame.h"
#include "reports/signature_block.h"
#include "runtime/text.h"

namespace terravane {

namespace {

void DrawPage(const Printing& of)
{
    DrawPageFrame(of);
    DrawPageBody(of);
}

}  // namespace

void DrawPageBody(const Printing& of)
{
    of.Kind().drawBody(of);
    if (of.number == kFirstPage) DrawSignatures(of);
}

void PrintReport(const Program& program, Printer& printer)
{
    const auto page = [&](int number) { return PrintingOf(program, printer, Medium::Printer, number); };
    const auto& second = ReportOf(program.CurrentTest).second;
    printer.PageLabel = "cover";
    DrawCoverPage(page(kCover));
    printer.NewPage();
    DrawPage(page(kFirstPage));
    if (!second) return;
    printer.NewPage();
    if (second->isOnItsSide) printer.SetOrientation(Orientation::Landscape);
    DrawPage(page(kSecondPage));
}

std::vector<DisplayList> PagesOfReport(const Program& program)
{
    Printer copy = program.printer;
    copy.KillDoc();
    PrintReport(program, copy);
    return copy.Pages();
}

std::string JobTitle(const Program& program)
{
    const std::string title(TitlesOf(program).english);
    const std::string number(Trim(OpenSheet(program).txtID.Text()));
    return number.empty() ? title : title + " " + number;
}

}  // namespace terravane
