#include "reports/print_report.h"

#include <algorithm>
#include <array>

#include "reports/atterberg_report.h"
#include "reports/cbr_report.h"
#include "reports/compaction_report.h"
#include "reports/density_report.h"
#include "reports/open_sheet.h"
#include "reports/page_frame.h"
#include "reports/sieve_report.h"
#include "reports/specific_gravity_report.h"
#include "runtime/text.h"

namespace terravane {

namespace {

constexpr std::array kReports{
    Report{Test::StdSoil, PrintCompaction, ShowCompaction},
    Report{Test::ModSoil, PrintCompaction, ShowCompaction},
    Report{Test::DenSoil, PrintFieldDensity, ShowFieldDensity},
    Report{Test::SpcSoil, PrintSpecificGravity, ShowSpecificGravity},
    Report{Test::AttSoil, PrintAtterberg, ShowAtterberg},
    Report{Test::CBRSoil, PrintCBR, ShowCBRPage1, ShowCBRPage2},
    Report{Test::SieSoil, PrintSieve, ShowSievePage1, ShowSievePage2, true},
};

}  // namespace

const Report& ReportOf(Test test)
{
    const auto report = std::ranges::find(kReports, test, &Report::test);
    if (report == kReports.end()) throw RuntimeError(error::kInvalidProcedureCall, "This test has no report");
    return *report;
}

void PrintReport(Program& program, Printer& printer)
{
    const Report& report = ReportOf(program.CurrentTest);
    PrintPageFrame(program, printer);
    report.print(program, printer);
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
