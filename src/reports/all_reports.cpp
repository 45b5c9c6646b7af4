#include "reports/all_reports.h"

#include <algorithm>
#include <array>

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
constexpr Report CompactionReport(Test test, const ReportTitles& titles)
{
    return {.test = test,
            .sheet = "frmCompaction",
            .titles = titles,
            .headFactor = 20.5,
            .signatures = {.anchor = 32.5, .second = 5, .third = 9, .fixedPreview = true},
            .first = {DrawCompaction}};
}

constexpr std::array kReports{
    CompactionReport(Test::StdSoil, {.thai = {"การทดสอบการบดอัดแบบมาตรฐาน"},
                                     .english = "Standard Compaction Test",
                                     .cover = "ผลทดสอบการบดอัดดินแบบมาตรฐาน"}),
    CompactionReport(Test::ModSoil, {.thai = {"การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน"},
                                     .english = "Modified Compaction Test",
                                     .cover = "ผลทดสอบการบดอัดดินแบบสูงกว่ามาตรฐาน"}),
    Report{.test = Test::DenSoil,
           .sheet = "frmDensity",
           .titles = {.thai = {"การทดสอบความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย",
                               "การทดสอบหาความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย"},
                      .english = "Field Density Test by Sand Cone Method",
                      .cover = "ผลทดสอบการหาค่าความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย",
                      .crossed = true},
           .headFactor = 20.5,
           .signatures = {.anchor = 39, .second = 3.5, .third = 6},
           .first = {DrawFieldDensity},
           .hasPosition = true},
    Report{.test = Test::SpcSoil,
           .sheet = "frmSpecific",
           .titles = {.thai = {"การทดสอบหาความถ่วงจำเพาะของดิน", "การทดสอบหาความความถ่วงจำเพาะของดิน"},
                      .english = "Specific Gravity Test",
                      .cover = "ผลทดสอบหาความถ่วงจำเพาะของดิน"},
           .headFactor = {20.5, 23.5},
           .signatures = {.anchor = {29.4, 29.5}, .second = 5, .third = 9},
           .first = {DrawSpecificGravity}},
    Report{.test = Test::AttSoil,
           .sheet = "frmAtterberg",
           .titles = {.thai = {"การทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก"},
                      .english = "Atterberg Limits Test",
                      .cover = "ผลทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก"},
           .headFactor = {20.5, 22},
           .signatures = {.anchor = {36, 37}, .second = 4, .third = 7},
           .first = {DrawAtterberg}},
    Report{.test = Test::SieSoil,
           .sheet = "frmSieve",
           .titles = {.thai = {"การทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน"},
                      .english = "Sieve Analysis Test",
                      .cover = "ผลทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน"},
           .headFactor = {21.5, 22},
           .signatures = {.anchor = {31, 32}, .second = 5, .third = 9},
           .first = {DrawSieve},
           .second = PageOfReport{.drawBody = DrawSieveChart, .isOnItsSide = true}},
    Report{.test = Test::CBRSoil,
           .sheet = "frmCBR",
           .titles = {.thai = {"การทดสอบหาค่า ซี.บี.อาร์."},
                      .english = "California Bearing Ratio Test",
                      .cover = "ผลทดสอบการหาค่าซี.บี.อาร์."},
           .headFactor = 20.5,
           .signatures = {.anchor = 34.5, .second = 4, .third = 7},
           .first = {DrawCbrPage1},
           .second = PageOfReport{DrawCbrPage2}},
};

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
    const auto report = std::ranges::find(kReports, test, &Report::test);
    if (report == kReports.end()) throw RuntimeError(error::kInvalidProcedureCall, "This test has no report");
    return *report;
}

std::string_view SheetNameOf(Test test)
{
    return ReportOf(test).sheet;
}

TestSheet& OpenSheet(const Program& program)
{
    return program.Get<TestSheet>(SheetNameOf(program.CurrentTest));
}

const ReportTitles& TitlesOf(const Program& program)
{
    return ReportOf(TitledTest(program)).titles;
}

Printing PrintingOf(const Program& program, DrawingSurface& page, Medium medium, int number)
{
    return {.report = ReportOf(program.CurrentTest),
            .titles = TitlesOf(program),
            .sheet = OpenSheet(program),
            .page = page,
            .medium = medium,
            .number = number};
}

}  // namespace terravane
