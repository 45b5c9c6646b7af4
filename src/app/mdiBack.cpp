#include "app/mdiBack.h"

#include <algorithm>
#include <array>
#include <utility>

#include "program/version.h"
#include "runtime/text.h"
#include "store/new_stores.h"
#include "store/statements.h"

namespace terravane {

namespace {

constexpr std::uint64_t kMostOfRecent = 64 << 10;  // bytes; it holds one path
constexpr std::string_view kRecentFile = "FileRecent.txt";
constexpr std::string_view kPrefix = "TRVN_";
constexpr std::string_view kFilter = "Terravane File(*.mdb)|TRVN*.mdb";

/// What an earlier choice left unsaid: Save File As and To work on the file of the recent entry.
const Message kNoFileYet{"Please select menu of New File or Open File before.", "Warning", MessageStyle::Information,
                         MessageButtons::Ok};

/// A button a test; what drops down is its sheet for each material.
std::vector<ToolButton> TestButtons()
{
    std::vector<ToolButton> buttons;
    for (const laboratory::Description* test : laboratory::Tests()) {
        ToolButton& button = buttons.emplace_back();
        button.key = test->buttonKey;
        button.caption = test->names.button;
        for (const laboratory::MaterialDescription& material : laboratory::kMaterials)
            button.items.push_back(
                {.key = std::string(test->menu) + material.menuDigit, .caption = std::string(material.caption)});
    }
    return buttons;
}

/// A command that traps everything and ends without a word.
template <class Command>
void TrapSilently(Command command)
{
    try {
        command();
    } catch (const RuntimeError&) {
    }
}

/// What stands before the first line end, CR LF or LF.
std::string FirstLine(const Bytes& content)
{
    const auto end = std::ranges::find_if(content, [](auto byte) { return byte == '\r' || byte == '\n'; });
    return {content.begin(), end};
}

}  // namespace

std::string ProjectPathFor(std::string_view fileName, std::string_view fileTitle)
{
    return FolderOf(fileName).append(kPrefix).append(fileTitle);
}

mdiBack::mdiBack(Program& owner)
    : Form(owner, std::string(kFrameName),
           "Terravane Program : Version " TERRAVANE_VERSION " -  [Materials for Road Construction]", WindowKind::Frame),
      program(owner),
      tbrLab(*this, "tbrLab", TestButtons(),
             {.ItemClick = [this](const std::string& key) { tbrLab_ButtonMenuClick(key); }})
{
    tbrLab.SetEnabled(false);
    SetRecentCaption("");
}

void mdiBack::Form_Load()
{
    StatusBar1.SetBackColor(kNoProjectColour);
    TrapSilently([this] { ReadRecentLine(); });  // a first start has no such file
}

/// AppFolder stays empty where the application's path ends in a mark already: the assignment belongs to the
/// mark's being missing.
void mdiBack::ReadRecentLine()
{
    const std::string& path = program.ApplicationPath();
    if (path.empty() || !IsFolderMark(path.back())) program.AppFolder = WithMark(path);
    recentLine_ = FirstLine(program.Files().ReadAtMost(program.AppFolder + std::string(kRecentFile), kMostOfRecent));
    SetRecentCaption(recentLine_);
}

void mdiBack::SetRecentCaption(const std::string& path)
{
    mnuRecent.SetCaption(path);
    mnuRecent.SetVisible(!path.empty());
    mnuDot.SetVisible(!path.empty());
}

void mdiBack::ShowRecentEntry()
{
    SetRecentCaption(program.CurrentProjectPath);
}

void mdiBack::ShowProjectChosen()
{
    StatusBar1.SetBackColor(kProjectColour);
    tbrLab.SetEnabled(true);
}

void mdiBack::Unload(std::span<const laboratory::Sheet* const> sheets) const
{
    for (const laboratory::Sheet* sheet : sheets) program.Unload(sheet->form);
}

void mdiBack::UnloadAllSheets() const
{
    Unload(laboratory::SheetsClosedBeforeFile());
}

void mdiBack::UnloadSheetsOfTests() const
{
    Unload(laboratory::SheetsClosedBeforeSheet());
}

void mdiBack::ReportFailure(const RuntimeError& error) const
{
    program.Ask().Show({error.Description(), "Error", MessageStyle::Critical, MessageButtons::Ok});
}

CommonDialog mdiBack::ProjectDialog(const std::string& title) const
{
    CommonDialog dialog(program.Ask());
    dialog.DialogTitle = title;
    dialog.Filter = kFilter;
    dialog.FilterIndex = 2;  // behind the only entry: the last one is meant
    dialog.CancelError = true;
    return dialog;
}

void mdiBack::mnuNew_Click()
try {
    CommonDialog dialog = ProjectDialog("New File");
    dialog.ShowSave();
    program.CurrentProjectPath = ProjectPathFor(dialog.FileName, dialog.FileTitle);
    CreateProjectFile(program.Files(), program.CurrentProjectPath);
    program.TellProjectMade(program.CurrentProjectPath);
    program.Show("frmProject");
    ShowRecentEntry();
    UnloadAllSheets();
} catch (const RuntimeError& error) {
    ReportFailure(error);  // Cancel too: its error is not told apart
}

void mdiBack::mnuOpen_Click()
{
    TrapSilently([this] {
        CommonDialog dialog = ProjectDialog("Open File");
        dialog.ShowOpen();
        program.CurrentProjectPath = dialog.FileName;  // whether it is a project file is found out by a sheet
        ChooseProject();
    });
}

void mdiBack::mnuRecent_Click()
try {
    program.CurrentProjectPath = mnuRecent.Caption();
    OpenProjectConnection(program);
    ChooseProject();
} catch (const RuntimeError& error) {
    ReportFailure(error);
}

void mdiBack::OpenFile(const std::string& path)
{
    const std::string before = std::exchange(program.CurrentProjectPath, path);
    try {
        OpenProjectConnection(program);
        ChooseProject();
    } catch (const RuntimeError& error) {
        program.CurrentProjectPath = before;
        ReportFailure(error);
    }
}

void mdiBack::ChooseProject()
{
    ShowProjectChosen();
    ShowRecentEntry();
    UnloadAllSheets();
}

void mdiBack::mnuExit_Click() const
{
    RememberProject();
    program.Unload(Name());
}

void mdiBack::Form_Unload()
{
    program.Ask().End();  // first: a disk that takes no more must not keep a program without its frame alive
    RememberProject();
}

void mdiBack::RememberProject() const
{
    if (program.CurrentProjectPath.empty()) return;
    const std::string line = program.CurrentProjectPath + "\r\n";
    program.Files().ReplaceWhole(program.AppFolder + std::string(kRecentFile), Bytes(line.begin(), line.end()));
}

void mdiBack::mnuSum_Click() const
{
    TrapSilently([this] { program.Show("frmSummary", Modality::Modal); });
}

void mdiBack::ShowPreferences(int tab) const
{
    program.Load("frmPreferences").Get<TabControl>("sstPreference").SetTab(tab);
    program.Show("frmPreferences", Modality::Modal);
}

void mdiBack::mnuManual_Click() const
{
    std::string folder = WithMark(program.ApplicationPath());
    folder += folder.back();  // two marks: the path as shown
    program.Ask().OpenDocument(BrandFolderIn(folder).append(kGuideFile));
}

void mdiBack::mnuAbout_Click() const
{
    program.Show("frmAbout", Modality::Modal);
}

/// False, and said so, where no file was ever chosen. The recent entry's file counts, also when nothing was
/// opened since the program started.
bool mdiBack::TakeRecentAsSource() const
{
    const auto source = Trim(mnuRecent.Caption());
    if (source.empty()) {
        program.Ask().Show(kNoFileYet);
        return false;
    }
    program.CurrentProjectPath = source;
    return true;
}

void mdiBack::mnuAs_Click()
{
    TrapSilently([this] {
        if (!TakeRecentAsSource()) return;
        program.CurrentProjectPath = CopyProject("Save File As...");
        ShowRecentEntry();
        UnloadSheetsOfTests();
    });
}

void mdiBack::mnuTo_Click() const
{
    TrapSilently([this] {
        if (TakeRecentAsSource()) CopyProject("Save File To...");
    });
}

/// Copies the current project file; returns the copy's path.
std::string mdiBack::CopyProject(const std::string& dialogTitle) const
{
    CommonDialog dialog = ProjectDialog(dialogTitle);
    dialog.ShowSave();
    std::string target = ProjectPathFor(dialog.FileName, dialog.FileTitle);
    program.Files().Copy(program.CurrentProjectPath, target);
    program.TellProjectMade(target, program.CurrentProjectPath);
    return target;
}

}  // namespace terravane
