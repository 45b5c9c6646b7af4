/// Controls that are pressed or switched.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "controls/control.h"

namespace terravane {

struct CommandEvents {
    Handler Click = {}, MouseMove = {}, MouseLeave = {};
};

/// A push button. '&' in its caption marks the key that presses it with Alt.
class CommandButton : public ControlKind<CommandButton> {
  public:
    CommandButton(Form& owner, std::string_view name, std::string_view caption = {}, CommandEvents events = {});

    /// The user's press; nothing happens where the button is disabled.
    void Press();

    Handler Click;
};

/// One of several that exclude each other: those of the same group name on the form.
class OptionButton : public ControlKind<OptionButton> {
  public:
    OptionButton(Form& owner, std::string_view name, std::string_view caption, std::string group, bool value = false,
                 ClickEvent events = {});
    OptionButton(Form& owner, std::string_view name, std::string_view caption, std::string group, ClickEvent events);
    OptionButton(Form& owner, const Naming& naming, std::string group, ClickEvent events, bool value = false);

    bool Value() const { return value_; }
    const std::string& Group() const { return group_; }
    /// The user's press: chooses this one and runs Click, also where it is chosen already. Nothing happens where the
    /// option is disabled.
    void Press();
    /// A handler's choice: the others of the group go off, and Click runs if this one was not chosen before.
    void Choose();
    /// Takes the choice away without choosing another; runs no event.
    void Release();

    Handler Click;

  private:
    void TakeChoice();
    void SetValue(bool value);

    std::string group_;
    bool value_;
};

class CheckBox : public ControlKind<CheckBox> {
  public:
    CheckBox(Form& owner, std::string_view name, std::string_view caption, ClickEvent events = {});

    bool Value() const { return value_; }
    /// Click runs where the state changes, whoever changes it.
    void SetValue(bool value);

    Handler Click;

  private:
    bool value_ = false;
};

/// A list of which any number of entries may be selected.
class ListBox : public ControlKind<ListBox> {
  public:
    ListBox(Form& owner, std::string_view name, std::vector<std::string> list, ClickEvent events = {});

    const std::vector<std::string>& List() const { return list_; }
    bool Selected(std::size_t index) const { return selected_.at(index); }
    void SetSelected(std::size_t index, bool selected);

    Handler Click;

  private:
    std::vector<std::string> list_;
    std::vector<bool> selected_;
};

}  // namespace terravane
