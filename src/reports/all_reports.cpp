#include "reports/all_reports.h"

#include <algorithm>
#include <array>

#include "laboratory/all_tests.h"
#include "reports/atterberg_report.h"
#include "reports/cbr_report.h"
#include "reports/compaction_report.h"
#include "reports/density_report.h"
#include "reports/sieve_chart.h"
#include "reports/sieve_report.h"
#include "reports/specific_gravity_report.h"

namespace terravane {

namespace {

/// Both compaction tests have one sheet and one page.
constexpr Report CompactionReport(const laboratory::Description& test)
{
    return {.test = test,
            .headFactor = 20.5,
            .signatures = {.anchor = 32.5, .second = 5, .third = 9, .fixedPreview = true},
            .first = {DrawCompaction}};
}

constexpr std::array kReports{
    CompactionReport(laboratory::kStandardCompaction),
    CompactionReport(laboratory::kModifiedCompaction),
    Report{.test = laboratory::kFieldDensity,
           .headFactor = 20.5,
           .signatures = {.anchor = 39, .second = 3.5, .third = 6},
           .first = {DrawFieldDensity},
           .hasPosition = true,
           .isTitleCrossed = true},
    Report{.test = laboratory::kSpecificGravity,
           .headFactor = {20.5, 23.5},
           .signatures = {.anchor = {29.4, 29.5}, .second = 5, .third = 9},
           .first = {DrawSpecificGravity}},
    Report{.test = laboratory::kAtterberg,
           .headFactor = {20.5, 22},
           .signatures = {.anchor = {36, 37}, .second = 4, .third = 7},
           .first = {DrawAtterberg}},
    Report{.test = laboratory::kSieveAnalysis,
           .headFactor = {21.5, 22},
           .signatures = {.anchor = {31, 32}, .second = 5, .third = 9},
           .first = {DrawSieve},
           .second = PageOfReport{.drawBody = DrawSieveChart, .isOnItsSide = true}},
    Report{.test = laboratory::kBearingRatio,
           .headFactor = 20.5,
           .signatures = {.anchor = 34.5, .second = 4, .third = 7},
           .first = {DrawCbrPage1},
           .second = PageOfReport{DrawCbrPage2}},
};
static_assert(kReports.size() == laboratory::kTests.size());

/// A compaction page is titled by the sheet's banner, whatever the current test says.
Test TitledTest(const Program& program)
{
    if (!IsCompaction(program.CurrentTest)) return program.CurrentTest;
    const bool isStandard = OpenSheet(program).txtLabName.Text().find("Standard") != std::string::npos;
    return isStandard ? Test::StdSoil : Test::ModSoil;
}

}  // namespace

const Report& ReportOf(Test test)
{
    const auto report = std::ranges::find(kReports, test, [](const Report& of) { return of.test.test; });
    if (report == kReports.end()) throw RuntimeError(error::kInvalidProcedureCall, "This test has no report");
    return *report;
}

std::string_view SheetNameOf(Test test)
{
    return ReportOf(test).test.sheet.form;
}

TestSheet& OpenSheet(const Program& program)
{
    return program.Get<TestSheet>(SheetNameOf(program.CurrentTest));
}

const laboratory::Names& TitlesOf(const Program& program)
{
    return ReportOf(TitledTest(program)).test.names;
}

Printing PrintingOf(const Program& program, DrawingSurface& page, Medium medium, int number)
{
    return {.report = ReportOf(program.CurrentTest),
            .titled = ReportOf(TitledTest(program)),
            .sheet = OpenSheet(program),
            .page = page,
            .medium = medium,
            .number = number};
}

}  // namespace terravane
