#include "controls/choice_controls.h"

#include "controls/form.h"

namespace terravane {

void CommandButton::Press()
{
    if (Enabled()) Raise("Click", Click);
}

OptionButton::OptionButton(Form& owner, std::string name, std::string caption, std::string group, bool value)
    : Control(owner, std::move(name), std::move(caption)), group_(std::move(group)), value_(value)
{}

void OptionButton::Choose()
{
    if (value_) return;
    for (Control* control : Owner().Controls()) {
        if (auto* other = dynamic_cast<OptionButton*>(control); other && other->group_ == group_) other->Release();
    }
    value_ = true;
    Changed();
    Raise("Click", Click);
}

void OptionButton::Release()
{
    if (!value_) return;
    value_ = false;
    Changed();
}

CheckBox::CheckBox(Form& owner, std::string name, std::string caption, bool value)
    : Control(owner, std::move(name), std::move(caption)), value_(value)
{}

void CheckBox::SetValue(bool value)
{
    if (value_ == value) return;
    value_ = value;
    Changed();
    Raise("Click", Click);
}

ListBox::ListBox(Form& owner, std::string name, std::vector<std::string> list)
    : Control(owner, std::move(name)), list_(std::move(list)), selected_(list_.size(), false)
{}

void ListBox::SetSelected(std::size_t index, bool selected)
{
    if (selected_.at(index) == selected) return;
    selected_[index] = selected;
    Changed();
    Raise("Click", Click);
}

}  // namespace terravane
