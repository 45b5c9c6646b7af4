#include "controls/text_controls.h"

#include "runtime/runtime_error.h"

namespace terravane {

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
    : TextControl(owner, std::move(name), std::move(caption)), text_(std::move(text))
{}

void TextBox::SetText(std::string_view text)
{
    if (text_ == text) return;
    text_ = text;
    Changed();
}

ComboBox::ComboBox(Form& owner, std::string name, std::string caption, std::vector<std::string> list, std::string text)
    : TextControl(owner, std::move(name), std::move(caption)), text_(std::move(text)), list_(std::move(list))
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

DatePicker::DatePicker(Form& owner, std::string name, std::string caption)
    : TextControl(owner, std::move(name), std::move(caption))
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
