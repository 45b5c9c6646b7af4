// What goes from the widgets to the form: keys, typing, focus, presses; and the way to a place that someone asks for.
#include <QComboBox>
#include <QDateEdit>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <optional>

#include "controls/furniture.h"
#include "controls/text_controls.h"
#include "controls/visit_control.h"
#include "desktop/form_view.h"
#include "desktop/grid_view.h"
#include "runtime/text.h"

namespace terravane {

namespace {

std::optional<Key> KeyOf(int key)
{
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Key::Enter;
        case Qt::Key_Escape:
            return Key::Esc;
        case Qt::Key_Up:
            return Key::Up;
        case Qt::Key_Down:
            return Key::Down;
        case Qt::Key_Left:
            return Key::Left;
        case Qt::Key_Right:
            return Key::Right;
        case Qt::Key_Tab:
            return Key::Tab;
        default:
            return std::nullopt;
    }
}

/// The wheel turns what has the focus, and over all else the page below it.
bool IsWheelOverAnother(const QObject& watched, const QEvent& event)
{
    if (event.type() != QEvent::Wheel) return false;
    const auto* box = qobject_cast<const QWidget*>(&watched);
    const bool turns = qobject_cast<const QComboBox*>(box) || qobject_cast<const QDateEdit*>(box);
    return turns && !box->hasFocus();
}

}  // namespace

void FormView::Watch(Control& control, QWidget& view)
{
    views_[&control] = &view;
    // A combo's and a date's own box takes the keys in their stead.
    for (auto* box : view.findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly)) {
        controls_[box] = &control;
        box->installEventFilter(this);
    }
    controls_[&view] = &control;
    view.installEventFilter(this);
    view.setMouseTracking(true);
    ListenForTyping(control, view);
    if (view.focusPolicy() == Qt::WheelFocus) view.setFocusPolicy(Qt::StrongFocus);
}

void FormView::ListenForTyping(const Control& control, QWidget& view)
{
    const auto tell = [this, &control] {
        if (TypedIn) TypedIn(control);
    };
    for (auto* box : view.findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly))
        connect(box, &QLineEdit::textEdited, this, tell);
    if (auto* box = qobject_cast<QLineEdit*>(&view)) connect(box, &QLineEdit::textEdited, this, tell);
    if (auto* combo = qobject_cast<QComboBox*>(&view)) connect(combo, &QComboBox::activated, this, tell);
    if (auto* date = qobject_cast<QDateEdit*>(&view)) connect(date, &QDateEdit::userDateChanged, this, tell);
    auto* button = qobject_cast<QAbstractButton*>(&view);
    if (button && button->isCheckable()) connect(button, &QAbstractButton::clicked, this, tell);
}

/// What the shell makes of a key before the form is asked: Enter presses a button, Tab leads through a grid and out of
/// it.
bool FormView::TakesKey(QObject& watched, Control& control, QKeyEvent& press)
{
    const bool isEnter = press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
    if (auto* button = qobject_cast<QPushButton*>(&watched); button && isEnter) {
        button->click();
        return true;
    }
    const bool isBack = press.key() == Qt::Key_Backtab;
    if (press.key() != Qt::Key_Tab && !isBack) return false;
    auto* grid = qobject_cast<QWidget*>(&watched);
    while (grid && !dynamic_cast<GridView*>(grid)) grid = grid->parentWidget();
    auto* view = dynamic_cast<GridView*>(grid);
    return view && &control != &view->Grid() && view->WalkByTab(isBack);
}

bool FormView::eventFilter(QObject* watched, QEvent* event)
{
    if (IsWheelOverAnother(*watched, *event)) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress) PressFrame(*watched);
    const auto found = controls_.find(watched);
    if (found == controls_.end()) return false;
    Control& control = *found->second;
    if (event->type() == QEvent::FocusIn) control.SetFocus();
    if (event->type() == QEvent::Enter && control.MouseMove) control.MouseMove();
    if (event->type() == QEvent::Leave && control.MouseMove && control.MouseLeave) control.MouseLeave();
    if (event->type() != QEvent::KeyPress) return false;
    auto* press = static_cast<QKeyEvent*>(event);
    if (TakesKey(*watched, control, *press)) return true;
    const bool isShortcut = press->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const auto key = isShortcut ? std::nullopt : KeyOf(press->key());
    return key && control.PressKey(*key);
}

/// A press that no control in a frame takes is the frame's.
void FormView::PressFrame(const QObject& watched)
{
    if (const auto found = frames_.find(&watched); found != frames_.end()) found->second->Press();
}

void FormView::BringToFront(const Control& control)
{
    QWidget* view = ViewOf(control);
    for (TabControl* tabs : ControlsOf<TabControl>(form_)) {
        auto* pages = view ? dynamic_cast<QTabWidget*>(ViewOf(*tabs)) : nullptr;
        for (int tab = 0; pages && tab < pages->count(); ++tab)
            if (pages->widget(tab)->isAncestorOf(view) && tabs->TabEnabled(tab)) tabs->SetTab(tab);
    }
}

void FormView::LeadTo(const NoticePlace& place)
{
    Control* control = form_.Find(place.control);
    if (!control) return;
    BringToFront(*control);
    QWidget* view = ViewOf(*control);
    if (!view) return;
    window()->activateWindow();
    if (auto* grid = dynamic_cast<GridView*>(view); grid && place.IsCell())
        return grid->ShowCell(place.row, place.column);
    view->setFocus(Qt::OtherFocusReason);
    if (auto* box = qobject_cast<QLineEdit*>(view)) box->selectAll();
}

bool FormView::IsInFront(const Control& control) const
{
    const QWidget* view = MadeViewOf(control);
    return view && view->isVisible() && view->isEnabled() && control.Visible() && control.Enabled();
}

bool FormView::FocusIfEmpty(Control& control)
{
    if (!IsInFront(control)) return false;
    if (auto* grid = dynamic_cast<GridView*>(ViewOf(control))) return grid->OpenFirstEmpty();
    auto* box = dynamic_cast<TextControl*>(&control);
    const bool isBanner = qobject_cast<QLabel*>(ViewOf(control)) != nullptr;
    if (!box || box->Locked() || isBanner || !Trim(box->Text()).empty()) return false;
    ViewOf(control)->setFocus(Qt::OtherFocusReason);
    return true;
}

void FormView::FocusFirstEmpty()
{
    for (const std::string& name : placed_) {
        Control* control = form_.Find(name);
        if (control && FocusIfEmpty(*control)) return;
    }
}

void FormView::FollowFocus()
{
    Control* active = form_.ActiveControl();
    QWidget* view = active ? MadeViewOf(*active) : nullptr;
    if (!view || !view->isVisible() || view->isAncestorOf(focusWidget()) || view->hasFocus()) return;
    view->setFocus(Qt::OtherFocusReason);
}

}  // namespace terravane
