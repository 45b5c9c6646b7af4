#include "desktop/monkey.h"

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QThread>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <array>
#include <utility>

#include "app/mdiBack.h"
#include "laboratory/tests.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

constexpr int kDeepest = 5;  // boxes and menus that wait for each other, before all are closed
constexpr std::array kMenuEntries{"mnuNew",   "mnuOpen",  "mnuAs",  "mnuTo",     "mnuSum",   "mnuRecent",
                                  "mnuLogoT", "mnuLogoC", "mnuOpr", "mnuManual", "mnuAbout", "mnuExit"};

constexpr std::array kKeys{
    Qt::Key_Return,    Qt::Key_Enter,  Qt::Key_Escape,   Qt::Key_Tab,    Qt::Key_Backtab,
    Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right,  Qt::Key_Home,
    Qt::Key_End,       Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Space,
    Qt::Key_Backspace, Qt::Key_F2,     Qt::Key_F4,       Qt::Key_F10,    Qt::Key_Menu,
    Qt::Key_Slash,     Qt::Key_Minus,  Qt::Key_Period,   Qt::Key_Insert, Qt::Key_Apostrophe,
};

struct Shortcut {
    Qt::Key key;
    Qt::KeyboardModifiers with;
};
constexpr std::array kShortcuts{
    Shortcut{Qt::Key_A, Qt::ControlModifier},   Shortcut{Qt::Key_C, Qt::ControlModifier},
    Shortcut{Qt::Key_V, Qt::ControlModifier},   Shortcut{Qt::Key_X, Qt::ControlModifier},
    Shortcut{Qt::Key_Z, Qt::ControlModifier},   Shortcut{Qt::Key_Y, Qt::ControlModifier},
    Shortcut{Qt::Key_Tab, Qt::ControlModifier}, Shortcut{Qt::Key_F4, Qt::ControlModifier},
    Shortcut{Qt::Key_F6, Qt::ControlModifier},  Shortcut{Qt::Key_F, Qt::AltModifier},
    Shortcut{Qt::Key_D, Qt::AltModifier},       Shortcut{Qt::Key_S, Qt::AltModifier},
    Shortcut{Qt::Key_Down, Qt::AltModifier},    Shortcut{Qt::Key_Space, Qt::AltModifier},
    Shortcut{Qt::Key_Left, Qt::ShiftModifier},  Shortcut{Qt::Key_Home, Qt::ShiftModifier},
    Shortcut{Qt::Key_Down, Qt::ShiftModifier},  Shortcut{Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
};

/// What a spreadsheet leaves on the clipboard.
constexpr std::array kBlocks{"85.3\t86.5\n1,030\t31\n", "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n", "๑๒.๕\t\t", "\"a\tb",
                             ""};

/// No apostrophe in most of them: with one nothing is saved.
constexpr std::array kTexts{"ดินลูกรัง",  "25.4", "-3",  "0",          "1e9", "0.0000001", "ก้ำ", "A/B",
                            "O'Brien", "🪨", "๑๒๓", "31/02/2026", "  ",  "100%",      "/",  "999999999999"};

/// What no person can bring about: a control or form that is not there, a cell outside its grid, a fault of our own.
bool IsUnheardOf(const RuntimeError& error)
{
    return error.Number() == error::kObjectRequired || error.Number() == error::kSubscriptOutOfRange ||
           error.Number() == error::kInternal;
}

/// Where the splines of sheets with fewer than three points look for the third.
bool IsOfTheMethod(const std::string& event)
{
    return event.starts_with("frmSieve.") || event.starts_with("frmCompaction.");
}

/// Down and up again; the window may be gone in between, and then the key or button goes up over nothing.
void Strike(const QPointer<QWindow>& window, Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier,
            const QString& text = {})
{
    for (const bool down : {true, false})
        if (window) QTest::simulateEvent(window.data(), down, key, with, text, false);
}

void Strike(const QPointer<QWindow>& window, char letter)
{
    Strike(window, QTest::asciiToKey(letter), Qt::NoModifier, QString(QLatin1Char(letter)));
}

void Click(const QPointer<QWindow>& window, Qt::MouseButton button, QPoint at)
{
    if (window) QTest::mousePress(window, button, {}, at);
    if (window) QTest::mouseRelease(window, button, {}, at);
}

}  // namespace

MessageAnswer MonkeySurroundings::Show(const Message& message)
{
    if (showsBox()) return QtSurroundings::Show(message);
    return message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::Ok;
}

void MonkeySurroundings::Fail(const std::string& event, const RuntimeError& error)
{
    const std::string told = event + ": " + std::to_string(error.Number()) + " " + error.Description();
    failures.insert(event + ": " + std::to_string(error.Number()));
    if (IsUnheardOf(error) && !IsOfTheMethod(event)) unheardOf = told;
    if (showsBox()) QtSurroundings::Fail(event, error);
}

MonkeyDesk::MonkeyDesk(DiskFileSystem& disk, const std::string& folder)
    : surroundings(disk), program(surroundings, disk, folder)
{
    AddForms(program);
    program.Run("Start", [&] { WriteFirstContent(disk, program.BrandFolderNow()); });
    desktop = std::make_unique<Desktop>(program, surroundings);
    desktop->KeepDrafts(WithMark(program.ApplicationPath()) + "Drafts");
    program.Run("Start", [this] { program.Show("frmTitle"); });
}

MonkeyDesk::~MonkeyDesk() = default;

void MonkeyDesk::OpenProject(const std::string& path)
{
    if (Form* splash = program.Loaded("frmTitle")) splash->Get<Timer>("Timer1").Tick();
    program.Get<mdiBack>(kFrameName).OpenFile(path);
}

void MonkeyDesk::Press(const std::string& form, const std::string& control)
{
    Form* const shown = program.Loaded(form);
    if (!shown) return;
    Control* const found = shown->Find(control);
    if (auto* entry = dynamic_cast<MenuEntry*>(found)) entry->Press();
    if (auto* button = dynamic_cast<CommandButton*>(found)) button->Press();
}

Monkey::Monkey(unsigned seed, std::string folder) : random_(seed), folder_(std::move(folder)) {}

void Monkey::Play(MonkeyDesk& desk, int acts)
{
    QEventLoop loop;
    desk_ = &desk;
    loop_ = &loop;
    left_ = acts;
    desk.surroundings.showsBox = [this] { return left_ > 0 && level_ < kDeepest && Pick(2) == 0; };
    Expect();
    loop.exec();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    desk_ = nullptr;
}

void Monkey::Expect()
{
    QTimer::singleShot(1, this, [this] { Next(); });
}

/// The next act is waiting before this one begins: a menu or a box that waits inside it gets the next act itself. What
/// only looks after events in between, as every key and click does, has to let it wait.
void Monkey::Next()
{
    const int level = QThread::currentThread()->loopLevel();
    if (level == level_) return Expect();
    const bool isOver = left_ <= 0 || desk_->surroundings.ended;
    if (isOver && level_ == 0 && !QApplication::activePopupWidget()) return loop_->quit();
    Expect();
    const int outer = std::exchange(level_, level);
    if (isOver || level > kDeepest) {
        Calm();
    } else {
        --left_;
        ++acted_;
        Act();
    }
    level_ = outer;
    if (!desk_->surroundings.ended) Watch();
}

/// Closes what waits: menus first, then boxes.
void Monkey::Calm()
{
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->reject();
}

/// A form that is shown has its window.
void Monkey::Watch()
{
    for (const auto& shown : desk_->program.ShownForms()) {
        const QWidget* window = desk_->desktop->WindowOf(*shown.form);
        if (!window) complaint_ = shown.form->Name() + " is shown and has no window.";
    }
}

void Monkey::Act()
{
    struct Habit {
        int share;
        void (Monkey::*act)();
    };
    static constexpr std::array kHabits{
        Habit{26, &Monkey::ClickSomewhere}, Habit{8, &Monkey::DragSomewhere}, Habit{4, &Monkey::TurnWheel},
        Habit{14, &Monkey::PressButton},    Habit{15, &Monkey::PressKey},     Habit{6, &Monkey::PressShortcut},
        Habit{6, &Monkey::TypeText},        Habit{8, &Monkey::TypeCells},     Habit{3, &Monkey::ChooseMenu},
        Habit{3, &Monkey::OpenSheet},       Habit{3, &Monkey::ChangeWindow},  Habit{4, &Monkey::ThinkOfFile},
    };
    int place = Pick(100);
    for (const Habit& habit : kHabits) {
        if (place < habit.share) return (this->*habit.act)();
        place -= habit.share;
    }
}

/// What the mouse reaches: a menu, else the dialog on top, else the frame or the splash.
QWidget* Monkey::TopWindow() const
{
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    const auto& shown = desk_->program.ShownForms();
    if (shown.empty()) return nullptr;
    QWidget* window = desk_->desktop->WindowOf(*shown.back().form);
    return window ? window->window() : nullptr;
}

/// A place in a part of the window; what is scrolled out of sight is reached at the window's edge.
QPoint Monkey::PlaceIn(QWidget& window)
{
    QWidget* part = PartOf(window);
    const QPoint at = part->mapTo(&window, QPoint(Pick(std::max(1, part->width())), Pick(std::max(1, part->height()))));
    return {std::clamp(at.x(), 0, std::max(0, window.width() - 1)),
            std::clamp(at.y(), 0, std::max(0, window.height() - 1))};
}

/// The window itself, or any part of it that is seen.
QWidget* Monkey::PartOf(QWidget& window)
{
    QWidgetList parts{&window};
    for (QWidget* part : window.findChildren<QWidget*>())
        if (part->isVisible() && part->window() == &window) parts << part;
    return parts[Pick(static_cast<int>(parts.size()))];
}

QWindow* Monkey::KeyWindow() const
{
    if (QWindow* focused = QGuiApplication::focusWindow()) return focused;
    QWidget* top = TopWindow();
    if (top) top->activateWindow();
    return top ? top->windowHandle() : nullptr;
}

void Monkey::ClickSomewhere()
{
    QWidget* window = TopWindow();
    if (!window || !window->windowHandle()) return;
    const QPointer<QWindow> handle = window->windowHandle();
    const QPoint at = PlaceIn(*window);
    const int kind = Pick(10);
    Click(handle, kind < 2 ? Qt::RightButton : Qt::LeftButton, at);
    if (kind != 9) return;
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    Click(handle, Qt::LeftButton, at);
}

/// The window may be gone before the button is let go.
void Monkey::DragSomewhere()
{
    QWidget* window = TopWindow();
    if (!window || !window->windowHandle()) return;
    const QPointer<QWindow> handle = window->windowHandle();
    const QPoint from = PlaceIn(*window), to = PlaceIn(*window);
    QTest::mousePress(handle, Qt::LeftButton, {}, from);
    if (handle) QTest::mouseMove(handle, (from + to) / 2);
    if (handle) QTest::mouseMove(handle, to);
    if (handle) QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
}

void Monkey::TurnWheel()
{
    QWidget* window = TopWindow();
    if (!window) return;
    QWidget* part = PartOf(*window);
    const QPointF at = part->rect().center();
    const Qt::KeyboardModifiers with = Pick(4) == 0 ? Qt::ControlModifier : Qt::NoModifier;
    QWheelEvent turn(at, part->mapToGlobal(at), {}, {0, Pick(2) ? 120 : -120}, Qt::NoButton, with, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(part, &turn);
}

void Monkey::PressButton()
{
    QWidget* window = TopWindow();
    if (!window || !window->windowHandle()) return;
    QList<QAbstractButton*> buttons;
    for (auto* button : window->findChildren<QAbstractButton*>())
        if (button->isVisible() && button->isEnabled() && button->window() == window) buttons << button;
    if (buttons.isEmpty()) return;
    QAbstractButton* button = buttons[Pick(static_cast<int>(buttons.size()))];
    const QPoint at = button->mapTo(window, QPoint(std::min(8, button->width() / 2), button->height() / 2));
    Click(window->windowHandle(), Qt::LeftButton, at);
}

void Monkey::PressKey()
{
    QWindow* window = KeyWindow();
    if (!window) return;
    if (Pick(2)) return Strike(window, static_cast<char>('!' + Pick('~' - '!' + 1)));
    Strike(window, kKeys[static_cast<std::size_t>(Pick(static_cast<int>(kKeys.size())))]);
}

void Monkey::PressShortcut()
{
    const Shortcut& shortcut = kShortcuts[static_cast<std::size_t>(Pick(static_cast<int>(kShortcuts.size())))];
    if (Pick(4) == 0)
        QGuiApplication::clipboard()->setText(
            QString::fromUtf8(kBlocks[static_cast<std::size_t>(Pick(static_cast<int>(kBlocks.size())))]));
    if (QWindow* window = KeyWindow()) Strike(window, shortcut.key, shortcut.with);
}

/// As a Thai keyboard's layout hands it over.
void Monkey::TypeText()
{
    QObject* focus = QGuiApplication::focusObject();
    if (!focus) return;
    QInputMethodEvent typed;
    typed.setCommitString(QString::fromUtf8(kTexts[static_cast<std::size_t>(Pick(static_cast<int>(kTexts.size())))]));
    QApplication::sendEvent(focus, &typed);
}

/// A few readings as a person types them, one below the other.
void Monkey::TypeCells()
{
    for (int i = Pick(4); i >= 0; --i) {
        QPointer<QWindow> window = KeyWindow();
        for (const QChar digit : QString::number(Pick(100000) / 100.0)) Strike(window, digit.toLatin1());
        Strike(window, Qt::Key_Return);
    }
}

/// An entry of the frame's menu, while nothing keeps the frame from being used.
void Monkey::ChooseMenu()
{
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget() || !desk_->HasForm(kFrameName)) return;
    const int entry = Pick(static_cast<int>(kMenuEntries.size()));
    const bool isExit = entry + 1 == static_cast<int>(kMenuEntries.size());
    if (isExit && Pick(8)) return;  // seldom
    QWidget* frame = desk_->desktop->WindowOf(*desk_->program.Loaded(kFrameName));
    auto* action = frame->findChild<QAction*>(kMenuEntries[static_cast<std::size_t>(entry)]);
    if (action && action->isEnabled() && action->isVisible()) action->trigger();
}

void Monkey::OpenSheet()
{
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget() || !desk_->HasForm(kFrameName)) return;
    const auto tests = laboratory::Tests();
    const std::string stem(tests[static_cast<std::size_t>(Pick(static_cast<int>(tests.size())))]->menu);
    desk_->program.Get<mdiBack>(kFrameName).tbrLab.PressItem(stem + (Pick(2) ? "1" : "2"));
}

/// Closed by its title bar, made larger or smaller; the frame itself is closed seldom.
void Monkey::ChangeWindow()
{
    QWidget* window = TopWindow();
    if (!window) return;
    QList<QMdiSubWindow*> sheets;
    for (auto* sheet : window->findChildren<QMdiSubWindow*>())
        if (sheet->isVisible()) sheets << sheet;
    QWidget* of = sheets.isEmpty() || Pick(3) == 0 ? window : sheets[Pick(static_cast<int>(sheets.size()))];
    switch (Pick(5)) {
        case 0:
            if (!qobject_cast<QMainWindow*>(of) || Pick(4) == 0) of->close();
            return;
        case 1:
            return of->showMinimized();
        case 2:
            return of->showMaximized();
        case 3:
            return of->showNormal();
        default:
            of->resize(200 + Pick(1400), 150 + Pick(900));
    }
}

/// What the next file and print dialogs answer; forgotten answers wait for the next one.
void Monkey::ThinkOfFile()
{
    static constexpr std::array kNames{"one.mdb",        "two.mdb", "TRVN_road.mdb", "nowhere/three.mdb", "BrandList",
                                       "FileRecent.txt", "ถนน.mdb", "logo.mdb",      "BrandList/log1.jpg"};
    auto& surroundings = desk_->surroundings;
    if (surroundings.files.size() < 3)
        surroundings.files.push_back(folder_ + kNames[static_cast<std::size_t>(Pick(static_cast<int>(kNames.size())))]);
    surroundings.printInto = Pick(2) ? std::optional(folder_ + "report.pdf") : std::nullopt;
}

}  // namespace terravane
