#include "controls/text_controls.h"

#include <utility>

#include "runtime/runtime_error.h"

namespace terravane {

TextControl::TextControl(Form& owner, std::string_view name, std::string_view caption, TextEvents events)
    : Control(owner, name, caption), Change(std::move(events.Change))
{
    KeyPress = std::move(events.KeyPress);
    GotFocus = std::move(events.GotFocus);
    LostFocus = std::move(events.LostFocus);
}

void TextControl::Type(std::string_view text)
{
    Raise("Change", [&] {
        SetText(text);
        if (Change) Change();
    });
}

void TextControl::SetLocked(bool locked)
{
    locked_ = locked;
    Changed();
}

TextBox::TextBox(Form& owner, std::string_view name, std::string_view caption, std::string text)
    : ControlKind(owner, name, caption, TextEvents{}), text_(std::move(text))
{}

TextBox::TextBox(Form& owner, std::string_view name, std::string_view caption, TextEvents events)
    : ControlKind(owner, name, caption, std::move(events))
{}

TextBox::TextBox(Form& owner, const Naming& naming, TextEvents events)
    : TextBox(owner, naming.control, naming.caption, std::move(events))
{}

void TextBox::SetText(std::string_view text)
{
    Replace(text_, text);
}

ComboBox::ComboBox(Form& owner, std::string_view name, std::string_view caption, std::vector<std::string> list,
                   std::string text)
    : ControlKind(owner, name, caption, TextEvents{}), text_(std::move(text)), list_(std::move(list))
{}

ComboBox::ComboBox(Form& owner, std::string_view name, std::string_view caption, std::vector<std::string> list,
                   ComboEvents events)
    : ControlKind(owner, name, caption,
                  TextEvents{std::move(events.Change), std::move(events.KeyPress), std::move(events.GotFocus),
                             std::move(events.LostFocus)}),
      Click(std::move(events.Click)),
      list_(std::move(list))
{}

ComboBox::ComboBox(Form& owner, const Naming& naming, std::vector<std::string> list, std::string text)
    : ComboBox(owner, naming.control, naming.caption, std::move(list), std::move(text))
{}

void ComboBox::SetText(std::string_view text)
{
    Replace(text_, text);
}

void ComboBox::AddItem(std::string item)
{
    list_.push_back(std::move(item));
    Changed();
}

void ComboBox::Clear()
{
    list_.clear();
    Replace(text_, "");
    Changed();
}

void ComboBox::Choose(std::size_t index)
{
    if (index >= list_.size()) throw RuntimeError(error::kInvalidProcedureCall);
    RaiseWith(
        "Click", [&] { SetText(list_[index]); }, Click);
}

DatePicker::DatePicker(Form& owner, std::string_view name, std::string_view caption, TextEvents events)
    : ControlKind(owner, name, caption, std::move(events))
{}

DatePicker::DatePicker(Form& owner, const Naming& naming, TextEvents events)
    : DatePicker(owner, naming.control, naming.caption, std::move(events))
{}

std::string DatePicker::Text() const
{
    return ShortDate(value_);
}

void DatePicker::SetText(std::string_view text)
{
    const Moment value = ParseDate(text);
    if (value == value_) return;
    const Moment before = std::exchange(value_, value);
    if (Owner().HasTextListeners()) TellText(ShortDate(before), ShortDate(value));
    Changed();
}

}  // namespace terravane
