#include "batch/project_session.h"

#include <algorithm>
#include <utility>

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "controls/choice_controls.h"
#include "reports/all_reports.h"
#include "reports/print_report.h"
#include "store/statements.h"

namespace terravane {

namespace {

constexpr std::string_view kResultsForm = "frmSummary";

/// What a place of the sheet shows for a record of its table.
std::string TextAt(const TestSheet& sheet, const ColumnPlace& place, int record)
{
    if (place.kind == ColumnPlace::Kind::Head) return sheet.Get<TextControl>(place.control).Text();
    const auto& grid = std::as_const(sheet.Get<TextGrid>(place.control));
    return place.kind == ColumnPlace::Kind::GridRow ? grid(place.line, record)
                                                    : grid(record + place.rowShift, place.line);
}

std::vector<ColumnPlace> ResultPlaces(const TablePass& pass, const laboratory::Description& test)
{
    std::vector<ColumnPlace> places;
    const auto keeps = ResultColumns(test);
    std::ranges::copy_if(pass.places, std::back_inserter(places), [&keeps](const ColumnPlace& place) {
        return std::ranges::find(keeps, place.suffix) != keeps.end();
    });
    return places;
}

}  // namespace

ProjectSession::ProjectSession(const Brand& brand, const std::string& path, Bytes content, Moment now)
    : path_(path),
      disk_(brand, path, std::move(content)),
      heard_(path, now),
      program_(heard_, disk_, FolderOf(brand.folder), brand.folder)
{
    AddForms(program_);
    heard_.During("Open File");
    program_.Run("mdiBack.Form_Load", [this] { program_.Show(kFrameName); });
    program_.Get<mdiBack>(kFrameName).mnuOpen.Press();
}

TestSheet* ProjectSession::Open(const laboratory::Description& test, Material material)
{
    const std::size_t before = heard_.Troubles().size();
    heard_.During("Opening the sheet");
    program_.Get<mdiBack>(kFrameName)
        .tbrLab.PressItem(std::string(test.menu) + laboratory::Describe(material).menuDigit);
    if (heard_.Troubles().size() > before) return nullptr;
    return &OpenSheet(program_);
}

bool ProjectSession::Press(TestSheet& sheet, const laboratory::Description& test, const Choices& choices,
                           const ProjectTexts& saved)
{
    Presser presser(sheet, heard_);
    PressCommands(test, presser, choices, saved);
    if (presser.HasStopped()) return false;
    const std::size_t before = heard_.Troubles().size();
    heard_.During("Saving the results");
    program_.Run("SaveResults", [&] { SaveResults(sheet, test); });
    return heard_.Troubles().size() == before;
}

/// What Save writes, but the results alone: names, dates and readings are not this program's to touch.
void ProjectSession::SaveResults(TestSheet& sheet, const laboratory::Description& test)
{
    const TableSchema& table = TableOf(program_.CurrentTest, program_.CurrentMaterial);
    OpenProjectConnection(program_);
    for (const TablePass& pass : sheet.TablePasses()) {
        const auto places = ResultPlaces(pass, test);
        for (int record = 1; record <= pass.records && !places.empty(); ++record) {
            std::vector<Assignment> results;
            results.reserve(places.size());
            for (const ColumnPlace& place : places)
                results.push_back({table.ColumnName(place.suffix), TextAt(sheet, place, record)});
            Execute(program_, program_.ProjectConnection, UpdateRow(table, results, record));
        }
    }
}

std::vector<DisplayList> ProjectSession::ReportPages()
{
    std::vector<DisplayList> pages;
    heard_.During("Report");
    program_.Run("Report", [&] { pages = PagesOfReport(program_); });
    return pages;
}

std::string ProjectSession::ReportTitle() const
{
    return JobTitle(program_);
}

std::vector<DisplayList> ProjectSession::ResultsPages()
{
    heard_.During("Overall Results");
    program_.Get<mdiBack>(kFrameName).mnuSum.Press();
    Form* const results = program_.Loaded(kResultsForm);
    if (!results) {
        heard_.Fail("mnuSum", RuntimeError(error::kObjectRequired, "The results could not be opened"));
        return {};
    }
    program_.printer.SetOrientation(Orientation::Portrait);
    results->Get<CommandButton>("cmdPrint").Press();
    program_.Unload(kResultsForm);
    return heard_.Printed();
}

}  // namespace terravane
