/// Controls whose content is a text that a person types or picks.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"
#include "runtime/dates.h"

namespace terravane {

struct TextEvents {
    Handler Change = {};
    KeyHandler KeyPress = {};
    Handler GotFocus = {}, LostFocus = {};
};

struct ComboEvents {
    Handler Click = {}, Change = {};
    KeyHandler KeyPress = {};
    Handler GotFocus = {}, LostFocus = {};
};

/// Anything that holds one text that load, save and scripts set by name.
class TextControl : public Control {
  public:
    TextControl(Form& owner, std::string_view name, std::string_view caption, TextEvents events);

    /// Puts a text into the control, as a handler does; runs no event but those that the kind states.
    virtual void SetText(std::string_view text) = 0;
    /// The user's typing: SetText, and the control's Change event; a text that the control refuses fails as the event
    /// does.
    void Type(std::string_view text);

    bool Locked() const { return locked_; }
    void SetLocked(bool locked);

    Handler Change;

  private:
    bool locked_ = false;
};

class TextBox : public ControlKind<TextBox, TextControl> {
  public:
    TextBox(Form& owner, std::string_view name, std::string_view caption = {}, std::string text = {});
    TextBox(Form& owner, std::string_view name, std::string_view caption, TextEvents events);
    TextBox(Form& owner, const Naming& naming, TextEvents events = {});

    std::string Text() const override { return text_; }
    void SetText(std::string_view text) override;

  private:
    std::string text_;
};

/// A box with a list below it; any text may be typed, in the list or not.
class ComboBox : public ControlKind<ComboBox, TextControl> {
  public:
    ComboBox(Form& owner, std::string_view name, std::string_view caption = {}, std::vector<std::string> list = {},
             std::string text = {});
    ComboBox(Form& owner, std::string_view name, std::string_view caption, std::vector<std::string> list,
             ComboEvents events);
    ComboBox(Form& owner, const Naming& naming, std::vector<std::string> list = {}, std::string text = {});

    std::string Text() const override { return text_; }
    void SetText(std::string_view text) override;

    const std::vector<std::string>& List() const { return list_; }
    void AddItem(std::string item);
    void Clear();

    /// Picks an entry by its place: takes its text and runs Click. Error 5 outside the list.
    void Choose(std::size_t index);

    Handler Click;

  private:
    std::string text_;
    std::vector<std::string> list_;
};

/// Holds a date; its text is the short date form. A text that is no date raises error 13 and changes nothing.
class DatePicker : public ControlKind<DatePicker, TextControl> {
  public:
    DatePicker(Form& owner, std::string_view name, std::string_view caption = {}, TextEvents events = {});
    DatePicker(Form& owner, const Naming& naming, TextEvents events = {});

    std::string Text() const override;
    void SetText(std::string_view text) override;
    Moment Value() const { return value_; }

  private:
    Moment value_{};
};

}  // namespace terravane
