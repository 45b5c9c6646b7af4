#include "batch/project_session.h"

#include <utility>

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "controls/choice_controls.h"
#include "reports/all_reports.h"
#include "reports/print_report.h"

namespace terravane {

namespace {

constexpr std::string_view kResultsForm = "frmSummary";

/// The brand folder and a copy of the project: nothing that a form writes reaches a real disk.
MemoryFileSystem PrivateDisk(const Brand& brand, const std::string& path, Bytes content)
{
    MemoryFileSystem disk = brand.disk;
    disk.Put(path, std::move(content));
    return disk;
}

}  // namespace

ProjectSession::ProjectSession(const Brand& brand, const std::string& path, Bytes content, Moment now)
    : path_(path),
      disk_(PrivateDisk(brand, path, std::move(content))),
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
    program_.Run("SaveResults", [&] { SaveColumns(sheet, ResultColumns(test)); });
    return heard_.Troubles().size() == before;
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

std::vector<notes::SaidNote> ProjectSession::Notes()
{
    if (!checker_) checker_.emplace(program_);
    return checker_->Said();
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
