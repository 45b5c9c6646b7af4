#include "controls/text_controls.h"

#include <utility>

#include "runtime/runtime_error.h"

namespace terravane {

TextControl::TextControl(Form& owner, std::string name, std::string caption, TextEvents events)
    : Control(owner, std::move(name), std::move(caption)), Change(std::move(events.Change))
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

TextBox::TextBox(Form& owner, std::string name, std::string caption, std::string text)
    : ControlKind(owner, std::move(name), std::move(caption), TextEvents{}), text_(std::move(text))
{}

TextBox::TextBox(Form& owner, std::string name, std::string caption, TextEvents events)
    : ControlKind(owner, std::move(name), std::move(caption), std::move(events))
{}

void TextBox::SetText(std::string_view text)
{
    if (text_ == text) return;
    text_ = text;
    Changed();
}

ComboBox::ComboBox(Form& owner, std::string name, std::string caption, std::vector<std::string> list, std::string text)
    : ControlKind(owner, std::move(name), std::move(caption), TextEvents{}),
      text_(std::move(text)),
      list_(std::move(list))
{}

ComboBox::ComboBox(Form& owner, std::string name, std::string caption, std::vector<std::string> list,
                   ComboEvents events)
    : ControlKind(owner, std::move(name), std::move(caption),
                  TextEvents{std::move(events.Change), std::move(events.KeyPress), std::move(events.GotFocus),
                             std::move(events.LostFocus)}),
      Click(std::move(events.Click)),
      list_(std::move(list))
{}

void ComboBox::SetText(std::string_view text)
{
    if (text_ == text) return;
    text_ = text;
    Changed();
}

void ComboBox::AddItem(std::string item)
{
    list_.push_back(std::move(item));
    Changed();
}

void ComboBox::Clear()
{
    list_.clear();
    text_.clear();
    Changed();
}

void ComboBox::Choose(std::size_t index)
{
    if (index >= list_.size()) throw RuntimeError(error::kInvalidProcedureCall);
    SetText(list_[index]);
    Raise("Click", Click);
}

DatePicker::DatePicker(Form& owner, std::string name, std::string caption, TextEvents events)
    : ControlKind(owner, std::move(name), std::move(caption), std::move(events))
{}

std::string DatePicker::Text() const
{
    return ShortDate(value_);
}

void DatePicker::SetText(std::string_view text)
{
    const Moment value = ParseDate(text);
    if (value == value_) return;
    value_ = value;
    Changed();
}

}  // namespace terravane
