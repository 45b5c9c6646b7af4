#include "controls/control.h"

#include <utility>

namespace terravane {

Control::Control(Form& owner, std::string_view name, std::string_view caption)
    : owner_(owner), name_(name), caption_(caption)
{
    owner.members_.push_back({name_, this});
}

namespace {

/// Sets and tells, where there is anything new to tell.
template <class T>
bool Assign(T& member, T value)
{
    if (member == value) return false;
    member = std::move(value);
    return true;
}

}  // namespace

void Control::SetCaption(std::string caption)
{
    if (Assign(caption_, std::move(caption))) Changed();
}

void Control::SetToolTip(std::string toolTip)
{
    if (Assign(toolTip_, std::move(toolTip))) Changed();
}

void Control::SetEnabled(bool enabled)
{
    if (Assign(enabled_, enabled)) Changed();
}

void Control::SetVisible(bool visible)
{
    if (Assign(visible_, visible)) Changed();
}

void Control::SetBackColor(std::optional<Colour> colour)
{
    if (Assign(backColour_, colour)) Changed();
}

void Control::SetForeColor(std::optional<Colour> colour)
{
    if (Assign(foreColour_, colour)) Changed();
}

void Control::SetMousePointer(Pointer pointer)
{
    if (Assign(pointer_, pointer)) Changed();
}

void Control::SetFocus()
{
    if (HasFocus()) return;
    Control* left = std::exchange(owner_.active_, this);
    if (left) left->Raise("LostFocus", left->LostFocus);
    if (HasFocus()) Raise("GotFocus", GotFocus);
    owner_.changes_.Announce();
}

bool Control::HasFocus() const
{
    return owner_.ActiveControl() == this;
}

void Control::SelectAll()
{
    ++selectAllRequests_;
    Changed();
}

bool Control::PressKey(Key key)
{
    if (!KeyPress) return false;
    bool taken = false;
    Raise("KeyPress", [&] { taken = KeyPress(key); });
    return taken;
}

Subscription Control::Show(std::function<void()> view)
{
    view();
    return changes_.Listen(std::move(view));
}

void Control::Raise(std::string_view event, const Handler& handler)
{
    if (handler) owner_.RunEvent(name_ + "_" + std::string(event), handler);
}

void Control::RaiseWith(std::string_view event, const Handler& change, const Handler& handler)
{
    Raise(event, [&] {
        change();
        if (handler) handler();
    });
}

void Control::Replace(std::string& text, std::string_view after, int row, int column)
{
    if (text == after) return;
    if (!owner_.HasTextListeners()) {
        text = after;
    } else {
        const std::string before = std::exchange(text, std::string(after));
        TellText(before, text, row, column);
    }
    Changed();
}

void Control::TellText(std::string_view before, std::string_view after, int row, int column)
{
    for (ControlListener* listener : owner_.textListeners_) listener->TextChanged({*this, row, column, before, after});
}

void Control::TellRows(int before, int after)
{
    for (ControlListener* listener : owner_.textListeners_) listener->RowsChanged(*this, before, after);
}

}  // namespace terravane
