#include "desktop/desktop.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include "desktop/frame_window.h"
#include "desktop/preview_window.h"
#include "laboratory/tests.h"

namespace terravane {

namespace {

/// The form dies when the running command has ended, its window as soon as no event of its own runs any more: in
/// between nothing of the window may reach a control.
void Dispose(QWidget& window)
{
    if (auto* sheet = dynamic_cast<SheetWindow*>(&window)) sheet->TakeBarAway();
    for (QObject* part : window.findChildren<QObject*>()) {
        part->blockSignals(true);
        if (auto* view = dynamic_cast<FormView*>(part)) view->Unbind();
    }
    window.setWindowTitle({});  // which Qt would measure some more times
    window.hide();              // and takes no key and no press from now on
    window.deleteLater();
}

}  // namespace

Desktop::Desktop(Program& program, QtSurroundings& surroundings)
    : program_(program),
      surroundings_(surroundings),
      journal_(program),
      watch_(program),
      following_(program.ShowForms([this] { Follow(); }))
{
    journal_.KeepHistory();
    surroundings_.ProposedPdf = [this] { return ProposedPdf(); };
    Follow();
}

void Desktop::KeepDrafts(const std::string& folder)
{
    constexpr std::chrono::milliseconds kBetweenSyncs{500};
    journal_.KeepDrafts(WithMark(folder));
    QObject::connect(&syncing_, &QTimer::timeout, &syncing_, [this] { journal_.SyncDraft(); });
    syncing_.start(kBetweenSyncs);
}

/// Beside the project file, under its name and what is in it: "TRVN_road compaction-soil.pdf".
std::string Desktop::ProposedPdf() const
{
    std::string path = program_.CurrentProjectPath;
    if (path.ends_with(".mdb")) path.resize(path.size() - 4);
    if (program_.Loaded("frmSummary")) return path + " results.pdf";
    if (program_.CurrentTest == Test::None) return path + ".pdf";
    const auto& test = laboratory::Describe(program_.CurrentTest);
    const auto& material = laboratory::Describe(program_.CurrentMaterial);
    return path + " " + std::string(test.key) + "-" + std::string(material.key) + ".pdf";
}

Desktop::~Desktop()
{
    surroundings_.ProposedPdf = {};
    following_ = {};
    std::vector<QWidget*> tops;  // the others go with the window that they belong to
    for (const auto& [form, window] : windows_) {
        if (window && !window->parentWidget()) tops.push_back(window);
    }
    for (QWidget* top : tops) delete top;
}

QWidget* Desktop::WindowOf(const Form& form) const
{
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second;
}

void Desktop::Follow()
{
    DisposeOfClosed();
    for (const auto& shown : program_.ShownForms()) {
        if (!windows_.contains(shown.form)) windows_[shown.form] = Open(shown);
    }
}

void Desktop::DisposeOfClosed()
{
    std::erase_if(windows_, [this](const auto& entry) {
        const auto& [form, window] = entry;
        const auto& shown = program_.ShownForms();
        if (std::ranges::find(shown, form, &Program::ShownForm::form) != shown.end()) return false;
        if (window) Dispose(*window);
        return true;
    });
}

FrameWindow* Desktop::FrameOpen() const
{
    for (const auto& [form, window] : windows_) {
        if (auto* frame = dynamic_cast<FrameWindow*>(window.data())) return frame;
    }
    return nullptr;
}

QWidget* Desktop::Open(const Program::ShownForm& shown)
{
    if (shown.form->Window() == WindowKind::Sheet) return FrameOpen()->ShowSheet(*shown.form);
    QWidget* window = MakeWindow(shown);
    window->show();
    return window;
}

QWidget* Desktop::MakeWindow(const Program::ShownForm& shown)
{
    Form& form = *shown.form;
    switch (form.Window()) {
        case WindowKind::Frame:
            surroundings_.LeaveFailuresToNotices();
            return new FrameWindow(program_, journal_, watch_, form);
        case WindowKind::Splash:
            return new SplashWindow(form);
        case WindowKind::Preview:
            return new PreviewWindow(program_, surroundings_, form, FrameOpen());
        case WindowKind::Dialog:
        case WindowKind::Sheet:  // stands in the frame's window
            break;
    }
    return new DialogWindow(program_, form, shown.modality, FrameOpen());
}

}  // namespace terravane
