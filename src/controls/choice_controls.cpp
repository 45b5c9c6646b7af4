#include "controls/choice_controls.h"

#include <utility>

#include "controls/visit_control.h"

namespace terravane {

CommandButton::CommandButton(Form& owner, std::string_view name, std::string_view caption, CommandEvents events)
    : ControlKind(owner, name, caption), Click(std::move(events.Click))
{
    MouseMove = std::move(events.MouseMove);
    MouseLeave = std::move(events.MouseLeave);
}

void CommandButton::Press()
{
    if (Enabled()) Raise("Click", Click);
}

OptionButton::OptionButton(Form& owner, std::string_view name, std::string_view caption, std::string group, bool value,
                           ClickEvent events)
    : ControlKind(owner, name, caption), Click(std::move(events.Click)), group_(std::move(group)), value_(value)
{}

OptionButton::OptionButton(Form& owner, std::string_view name, std::string_view caption, std::string group,
                           ClickEvent events)
    : OptionButton(owner, name, caption, std::move(group), false, std::move(events))
{}

OptionButton::OptionButton(Form& owner, const Naming& naming, std::string group, ClickEvent events, bool value)
    : OptionButton(owner, naming.control, naming.caption, std::move(group), value, std::move(events))
{}

void OptionButton::Press()
{
    if (!Enabled()) return;
    RaiseWith(
        "Click", [this] { TakeChoice(); }, Click);
}

void OptionButton::Choose()
{
    if (value_) return;
    RaiseWith(
        "Click", [this] { TakeChoice(); }, Click);
}

/// The others of the group go off.
void OptionButton::TakeChoice()
{
    if (value_) return;
    for (OptionButton* other : ControlsOf<OptionButton>(Owner())) {
        if (other->group_ == group_) other->Release();
    }
    SetValue(true);
}

void OptionButton::SetValue(bool value)
{
    value_ = value;
    TellText(OnOrOffText(!value), OnOrOffText(value));
    Changed();
}

void OptionButton::Release()
{
    if (value_) SetValue(false);
}

CheckBox::CheckBox(Form& owner, std::string_view name, std::string_view caption, ClickEvent events)
    : ControlKind(owner, name, caption), Click(std::move(events.Click))
{}

void CheckBox::SetValue(bool value)
{
    if (value_ == value) return;
    const auto change = [&] {
        value_ = value;
        TellText(OnOrOffText(!value), OnOrOffText(value));
        Changed();
    };
    RaiseWith("Click", change, Click);
}

ListBox::ListBox(Form& owner, std::string_view name, std::vector<std::string> list, ClickEvent events)
    : ControlKind(owner, name), Click(std::move(events.Click)), list_(std::move(list)), selected_(list_.size(), false)
{}

void ListBox::SetSelected(std::size_t index, bool selected)
{
    if (selected_.at(index) == selected) return;
    const auto change = [&] {
        selected_[index] = selected;
        TellText(OnOrOffText(!selected), OnOrOffText(selected), static_cast<int>(index), 0);
        Changed();
    };
    RaiseWith("Click", change, Click);
}

}  // namespace terravane
