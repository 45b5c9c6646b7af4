#include "desktop/frame_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <unordered_map>

#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/visit_control.h"
#include "desktop/appearance.h"
#include "desktop/edit_menu.h"
#include "desktop/history_panel.h"
#include "desktop/keys.h"
#include "desktop/layouts.h"
#include "desktop/looks.h"
#include "desktop/notes_panel.h"
#include "desktop/notice_bar.h"
#include "desktop/qt_text.h"
#include "desktop/start_page.h"
#include "desktop/window_places.h"
#include "laboratory/tests.h"
#include "runtime/text.h"

namespace terravane {

namespace {

constexpr int kTitleBar = 24;  // a window manager's, which nobody can ask before the window stands
constexpr std::chrono::milliseconds kFrameSeen{200};
constexpr int kSaveButton = 1;

QFrame* MakeRule(QWidget* parent)
{
    auto* rule = new QFrame(parent);
    rule->setFrameShape(QFrame::VLine);
    rule->setFrameShadow(QFrame::Plain);
    rule->setForegroundRole(QPalette::Mid);
    return rule;
}

}  // namespace

FrameWindow::FrameWindow(Program& program, Journal& journal, notes::NotesWatch& watch, Form& frame)
    : program_(program), form_(frame), watch_(watch)
{
    setWindowTitle(ToQt(frame.Caption()));
    setWindowIcon(looks::ProgramIcon());
    setAttribute(Qt::WA_DeleteOnClose, false);
    setMinimumSize(1024, 680);
    resize(1280, std::min(720, screen()->availableSize().height() - kTitleBar));  // the status line stays on the screen
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    BuildMenu();
    new EditMenu(*this, journal, [this](const Control& control) {
        if (SheetWindow* sheet = OpenSheet()) sheet->Restored(control);
    });
    BuildViewMenu();
    AddHistoryPanel(journal);
    AddNotesPanel();
    BuildTools(*content);
    BuildStrip(*content);
    area_ = new QMdiArea(content);
    area_->setBackground(palette().brush(QPalette::Mid));
    area_->setAccessibleName(tr("Test sheets"));
    column->addWidget(area_, 1);
    setCentralWidget(content);
    notices_ = new NoticeBar(
        program.notices, [this](const NoticePlace& place) { LeadTo(program_, place); }, content);
    start_ = new StartPage(program, frame, content);
    area_->installEventFilter(this);
    BuildKeys();
    connect(this, &QWidget::windowTitleChanged, this, [this] { KeepTitle(); });
    QTimer::singleShot(kFrameSeen, this, [this] { PreloadGlyphs(font()); });
    RestorePlace(program_, form_, *this);
}

/// Qt would write the title of a sheet that fills the frame behind the frame's own.
void FrameWindow::KeepTitle()
{
    setWindowTitle(ToQt(form_.Caption()));
}

void FrameWindow::BuildMenu()
{
    std::unordered_map<std::string, QMenu*> menus;
    Mnemonics letters;
    for (MenuEntry* entry : ControlsOf<MenuEntry>(form_)) {
        if (entry->Parent().empty()) {
            menus[entry->Name()] = menuBar()->addMenu(letters.Mark(ToQt(entry->Caption())));
            continue;
        }
        QAction* action = menus.at(entry->Parent())->addAction(ToQt(entry->Caption()));
        action->setSeparator(entry->IsSeparator());
        action->setObjectName(ToQt(entry->Name()));
        connect(action, &QAction::triggered, this, [entry] { entry->Press(); });
        bindings_.push_back(entry->Show([entry, action] {
            action->setText(entry->IsSeparator() ? QString() : ToQt(Printable(entry->Caption())));
            action->setVisible(entry->Visible() && !entry->Caption().empty());
            action->setEnabled(entry->Enabled());
        }));
    }
}

/// What the shell has of its own stands behind what the form gives.
void FrameWindow::BuildViewMenu()
{
    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->setObjectName("view");
    view->addAction(tr("&Notices"), this, [this] { ShowToldNotices(program_.notices, this); });
    view->addAction(tr("&Keys"), this, [this] { ShowKeys(this); });
    view->addSeparator();
    AddAppearance(program_, *view);
}

void FrameWindow::AddHistoryPanel(Journal& journal)
{
    auto* panel = new HistoryPanel(this, program_, journal);
    addDockWidget(Qt::RightDockWidgetArea, panel);
    panel->hide();
    menuBar()->findChild<QMenu*>("view")->addAction(panel->toggleViewAction());
    journal.ShowDraft = [this, &journal](const Draft& draft) {
        if (journal.Sheet()) ShowDraftTexts(this, *journal.Sheet(), draft);
    };
}

/// Beside the history, so that one of them is in sight. Marks follow the notes to pages that are made later, too.
void FrameWindow::AddNotesPanel()
{
    auto* panel = new NotesPanel(this, program_, watch_);
    addDockWidget(Qt::RightDockWidgetArea, panel);
    tabifyDockWidget(findChild<QDockWidget*>("history"), panel);
    panel->hide();
    menuBar()->findChild<QMenu*>("view")->addAction(panel->toggleViewAction());
    bindings_.push_back(watch_.Show([this] {
        if (SheetWindow* sheet = OpenSheet()) MarkNotes(*sheet, watch_);
    }));
}

/// One row: the tests, the project's name, behind a thin rule what the open sheet has.
void FrameWindow::BuildTools(QWidget& content)
{
    auto* row = new QWidget(&content);
    row->setObjectName("tools");
    tools_ = new QHBoxLayout(row);
    tools_->setContentsMargins(0, 0, 0, 0);
    tools_->setSpacing(0);
    auto* tests = MakeBar(row);
    tests->setObjectName("tbrLab");
    bindings_.push_back(Bind(form_.Get<Toolbar>("tbrLab"), *tests));
    tests->setAccessibleName(tr("Tests"));
    MarkTools(*tests);
    tools_->addWidget(tests);
    project_ = new QLabel(row);
    project_->setObjectName("projectName");
    project_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    project_->setContentsMargins(looks::kGap, 0, looks::kMargin, 0);
    project_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    project_->setTextFormat(Qt::PlainText);
    tools_->addWidget(project_, 1);
    content.layout()->addWidget(row);
    bindings_.push_back(form_.Get<MenuEntry>("mnuRecent").Show([this] { FollowProject(); }));
    bindings_.push_back(form_.Get<Toolbar>("tbrLab").Show([this] { FollowProject(); }));
}

/// The file's name; the rest of its path where the mouse asks.
void FrameWindow::FollowProject()
{
    const bool isChosen = form_.Get<Toolbar>("tbrLab").Enabled();
    const QFileInfo file(ToQt(program_.CurrentProjectPath));
    const QString name = isChosen ? file.fileName() : tr("No project");
    project_->setText(project_->fontMetrics().elidedText(name, Qt::ElideMiddle, std::max(60, project_->width() - 20)));
    project_->setToolTip(isChosen ? file.filePath() : name);
    project_->setAccessibleName(isChosen ? tr("Project %1").arg(name) : name);
}

/// The coloured strip that tells whether a project is open; words beside it tell the same.
void FrameWindow::BuildStrip(QWidget& content)
{
    auto& strip = form_.Get<StatusBar>("StatusBar1");
    auto* view = new QLabel(&content);
    view->setFixedHeight(looks::kStripHeight);
    bindings_.push_back(BindFurniture(strip, *view));
    const auto tell = [this, &strip, view] {
        const bool isChosen = form_.Get<Toolbar>("tbrLab").Enabled();
        view->setToolTip(strip.ToolTip().empty() ? (isChosen ? tr("Project open") : tr("No project"))
                                                 : ToQt(strip.ToolTip()));
        view->setAccessibleName(view->toolTip());
    };
    bindings_.push_back(strip.Show(tell));
    bindings_.push_back(form_.Get<Toolbar>("tbrLab").Show(tell));
    content.layout()->addWidget(view);
}

SheetWindow* FrameWindow::OpenSheet() const
{
    for (QMdiSubWindow* window : area_->subWindowList())
        if (auto* sheet = dynamic_cast<SheetWindow*>(window); sheet && !sheet->isHidden()) return sheet;
    return nullptr;
}

void FrameWindow::BuildKeys()
{
    const auto onSheet = [this](void (SheetWindow::*act)()) {
        return [this, act] {
            if (SheetWindow* sheet = OpenSheet()) (sheet->*act)();
        };
    };
    const auto turn = [this](int by) {
        return [this, by] {
            if (SheetWindow* sheet = OpenSheet()) sheet->TurnTab(by);
        };
    };
    BindKey(*this, Shortcut::Save, onSheet(&SheetWindow::Save));
    BindKey(*this, Shortcut::NextCommand, onSheet(&SheetWindow::PressNext));
    BindKey(*this, Shortcut::Preview, onSheet(&SheetWindow::Preview));
    BindKey(*this, Shortcut::NextTab, turn(1));
    BindKey(*this, Shortcut::TabBefore, turn(-1));
    BindKey(*this, Shortcut::Close, onSheet(&SheetWindow::CloseUnlessUnsaved));
    BindKey(*this, Shortcut::Keys, [this] { ShowKeys(this); });
    BindKey(*this, Shortcut::Menu, [this] {
        menuBar()->setFocus(Qt::MenuBarFocusReason);
        menuBar()->setActiveAction(menuBar()->actions().front());
    });
}

/// The notices stand over the banner, so that no grid moves under the hand; the chip at its end stays in sight. In the
/// area itself ears would hear the sheets alone.
bool FrameWindow::eventFilter(QObject* watched, QEvent* event)
{
    constexpr int kChipRoom = 148;
    if (watched == area_ && (event->type() == QEvent::Resize || event->type() == QEvent::Move)) {
        const int height = std::max(looks::kBannerHeight, fontMetrics().height() + looks::kGap);
        notices_->setGeometry(area_->x(), area_->y(), area_->width() - kChipRoom, height);
        start_->Settle(area_->geometry());
    }
    return SettledWindow<QMainWindow>::eventFilter(watched, event);
}

/// The ground behind the sheets is no widget's own and does not follow by itself.
void FrameWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && area_) area_->setBackground(palette().brush(QPalette::Mid));
    SettledWindow<QMainWindow>::changeEvent(event);
}

void FrameWindow::resizeEvent(QResizeEvent* event)
{
    SettledWindow<QMainWindow>::resizeEvent(event);
    centralWidget()->layout()->activate();
    FollowProject();
}

QWidget* FrameWindow::ShowSheet(Form& sheet)
{
    auto* window = new SheetWindow(program_, sheet);
    window->setWindowIcon(windowIcon());
    area_->addSubWindow(window);
    window->Fill(*tools_);
    window->PageMade = [this, window] { MarkNotes(*window, watch_); };
    window->resize(window->sizeHint().boundedTo(area_->viewport()->size()).expandedTo(window->minimumSizeHint()));
    window->move(static_cast<int>(sheet.Left / looks::kTwipsPerPixel),
                 static_cast<int>(sheet.Top / looks::kTwipsPerPixel));
    window->widget()->hide();  // Qt shows a window in its own size before it fills the area: laid out once is enough
    window->showMaximized();
    window->widget()->show();
    window->resize(window->size().expandedTo(window->minimumSizeHint()));
    QTimer::singleShot(0, window, [window, &sheet] {    // when it is loaded
        window->setWindowTitle(ToQt(sheet.Caption()));  // Qt measures a title anew with every change of the window
        window->FocusFirstEmpty();
    });
    return window;
}

void FrameWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    KeepPlace(program_, form_, *this);
    CloseForm(program_, form_);
}

SheetWindow::SheetWindow(Program& program, Form& sheet) : program_(program), form_(sheet), next_(sheet)
{
    for (QAction* action : systemMenu()->actions()) action->setShortcut({});  // Ctrl+W asks first
}

SheetWindow::~SheetWindow()
{
    TakeBarAway();
}

void SheetWindow::Fill(QHBoxLayout& tools)
{
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    bar_ = MakeBar(tools.parentWidget());
    bar_->setObjectName("tblMenu");
    bar_->addWidget(MakeRule(bar_));
    bindings_.push_back(Bind(form_.Get<Toolbar>("tblMenu"), *bar_));
    bar_->setAccessibleName(tr("Sheet"));
    tools.addWidget(bar_);
    view_ = new FormView(form_, LayoutOf(form_.Name()));
    view_->TypedIn = [this](const Control& control) { Typed(control); };
    view_->CommandPressed = [this](Control& command) { CommandPressed(command); };
    view_->PageMade = [this] {
        ShowNext();
        if (PageMade) PageMade();
    };
    auto* room = new QScrollArea(content);  // for letters so large that not even what heads the sheet has room
    room->setFrameShape(QFrame::NoFrame);
    room->setWidgetResizable(true);
    room->setFocusPolicy(Qt::NoFocus);
    room->setWidget(view_);
    column->addWidget(room, 1);
    AddChip();
    auto* status = new QStatusBar(content);
    status->setObjectName("stbDes");
    bindings_.push_back(Bind(form_.Get<StatusBar>("stbDes"), *status));
    column->addWidget(status);
    setWidget(content);
    bindings_.push_back(program_.notices.Show([this] { FollowNotices(); }));
    ShowNext();
}

void SheetWindow::TakeBarAway()
{
    bindings_.clear();
    if (!bar_) return;
    for (QObject* part : bar_->findChildren<QObject*>()) part->blockSignals(true);
    bar_->hide();
    bar_->deleteLater();  // one of its buttons may be the one that is pressed
    bar_ = nullptr;
}

/// The material in words at the end of the banner, whose colour tells it to eyes alone.
void SheetWindow::AddChip()
{
    auto& banner = form_.Get<TextBox>("txtLabName");
    auto* view = dynamic_cast<QLabel*>(view_->ViewOf(banner));
    if (!view) return;
    auto* chip = new QLabel(view);
    chip->setObjectName("material");
    auto* row = new QHBoxLayout(view);
    row->setContentsMargins(0, 0, looks::kMargin, 0);
    row->addStretch();
    row->addWidget(chip);
    chip->setFrameShape(QFrame::Box);
    chip->setContentsMargins(looks::kGap, 1, looks::kGap, 1);  // the frame is drawn inside them
    chip->setFixedHeight(std::max(looks::kBannerHeight - 12, chip->fontMetrics().height() + 4));
    bindings_.push_back(banner.Show([this, chip, view] {
        QTimer::singleShot(0, chip, [this, chip, view] {  // the banner is written before the material is chosen
            if (program_.CurrentMaterial == Material::None) return;
            chip->setText(ToQt(laboratory::Describe(program_.CurrentMaterial).caption));
            chip->setAccessibleName(tr("Material: %1").arg(chip->text()));
            view->setAccessibleName(view->text() + ", " + chip->text());
        });
    }));
}

void SheetWindow::Typed(const Control& control)
{
    holdsUnsaved_ = true;
    next_.Typed(control);
    ShowNext();
}

/// A command that failed comes again.
void SheetWindow::CommandPressed(Control& command)
{
    const Notice* said = program_.notices.Current();
    const std::string failed = form_.Name() + "." + command.Name() + "_";
    const bool hasFailed = said && said->kind == NoticeKind::Failure && said->subject.starts_with(failed);
    if (!hasFailed) next_.Done(command);
    ShowNext();
}

/// The next command is the default button, of those that are seen.
void SheetWindow::ShowNext()
{
    const CommandButton* next = next_.Find();
    for (CommandButton* command : ControlsOf<CommandButton>(form_)) {
        auto* view = dynamic_cast<QPushButton*>(view_->MadeViewOf(*command));
        if (view && view->isDefault() != (command == next)) view->setDefault(command == next);
    }
}

/// Saved is what the program said so of.
void SheetWindow::FollowNotices()
{
    const std::string subject = form_.Name() + ".tblMenu_ButtonClick";
    for (const Notice& notice : program_.notices.Told()) {
        if (notice.number <= noticesSeen_) continue;
        noticesSeen_ = notice.number;
        if (notice.subject == subject && notice.kind == NoticeKind::Information) holdsUnsaved_ = false;
    }
}

void SheetWindow::Save()
{
    form_.Get<Toolbar>("tblMenu").Press(kSaveButton);
}

void SheetWindow::PressNext()
{
    CommandButton* next = next_.Find();
    if (!next) return;
    view_->BringToFront(*next);
    next->Press();
    if (view_) CommandPressed(*next);
}

void SheetWindow::Preview()
{
    form_.Get<CommandButton>("cmdView").Press();
}

void SheetWindow::TurnTab(int by)
{
    auto& tabs = form_.Get<TabControl>("SSTData");
    for (int tab = tabs.Tab() + by; tab >= 0 && tab < tabs.Count(); tab += by)
        if (tabs.TabEnabled(tab)) return tabs.SetTab(tab);
}

void SheetWindow::CloseUnlessUnsaved()
{
    if (!holdsUnsaved_) return CloseForm(program_, form_);
    program_.notices.Tell({.kind = NoticeKind::Attention,
                           .sentence = "Not closed: what was typed here is not saved. Ctrl+S saves it, Exit Screen "
                                       "closes without saving.",
                           .place = {form_.Name(), form_.ActiveControl() ? form_.ActiveControl()->Name() : "SSTData"},
                           .subject = form_.Name() + ".tblMenu_ButtonClick"});
}

void SheetWindow::FocusFirstEmpty()
{
    if (view_) view_->FocusFirstEmpty();
}

void SheetWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    CloseForm(program_, form_);
}

}  // namespace terravane
