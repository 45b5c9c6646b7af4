/// What stands around the readings: captions, frames, tabs, bars, menus, timers.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"
#include "drawing/picture.h"

namespace terravane {

/// A text that is read; some can be pressed.
class Label : public ControlKind<Label> {
  public:
    Label(Form& owner, std::string_view name, std::string_view caption = {}, ClickEvent events = {});
    void Press() { Raise("Click", Click); }
    Handler Click;
};

/// A captioned frame around other controls. One with a handler hears a press on its own ground, beside the controls
/// that stand in it.
class Frame : public ControlKind<Frame> {
  public:
    Frame(Form& owner, std::string_view name, std::string_view caption = {}, ClickEvent events = {});
    void Press() { Raise("Click", Click); }
    Handler Click;
};

/// A picture of the program's own, or a holder of one; shown by the view that knows it.
class Image : public ControlKind<Image> {
  public:
    using ControlKind::ControlKind;
    std::shared_ptr<const Picture> Content() const { return content_; }
    void SetContent(std::shared_ptr<const Picture> content);

  private:
    std::shared_ptr<const Picture> content_;
};

struct TabEvents {
    std::function<void(int previousTab)> TabChanged = {};
};

/// A row of tabs, counted from 0, of which each may be disabled.
class TabControl : public ControlKind<TabControl> {
  public:
    TabControl(Form& owner, std::string_view name, std::vector<std::string> captions, TabEvents events = {});

    int Tab() const { return tab_; }
    /// Shows a tab and runs TabChanged with the one left, where it is another.
    void SetTab(int tab);
    int Count() const { return static_cast<int>(captions_.size()); }
    const std::string& TabCaption(int tab) const { return captions_.at(static_cast<std::size_t>(tab)); }
    bool TabEnabled(int tab) const { return enabledTabs_.at(static_cast<std::size_t>(tab)); }
    void SetTabEnabled(int tab, bool enabled);

    /// Says which controls stand on a tab. Those of tabs that are never disabled need not be told.
    void Hold(int tab, std::initializer_list<const Control*> controls);
    /// Whether the user can come to the control: not while it stands on a disabled tab.
    bool Reaches(const Control& control) const;

    std::function<void(int previousTab)> TabChanged;

  private:
    std::vector<std::string> captions_;
    std::vector<bool> enabledTabs_;
    std::map<const Control*, int> tabOf_;
    int tab_ = 0;
};

/// What a button's picture stands for; which picture that is, is the view's.
enum class Icon { None, Save, Print, Close };

/// A button of a toolbar, or an item that drops down from one.
struct ToolButton {
    std::string key = {};      // "mn2"; may be empty
    std::string caption = {};  // "Atterberg Limits"
    std::string toolTip = {};
    std::vector<ToolButton> items = {};  // what drops down; then only the items act
    bool enabled = true;
    Icon icon = Icon::None;
};

struct ToolbarEvents {
    std::function<void(int number)> ButtonClick = {};
    std::function<void(const std::string& key)> ItemClick = {};
};

class Toolbar : public ControlKind<Toolbar> {
  public:
    Toolbar(Form& owner, std::string_view name, std::vector<ToolButton> buttons, ToolbarEvents events = {});

    const std::vector<ToolButton>& Buttons() const { return buttons_; }
    /// By place from 1, as the forms count; error 9 outside.
    const ToolButton& Button(int number) const;
    void SetButtonEnabled(int number, bool enabled);

    /// The user's press on a button from 1; nothing happens where bar or button is disabled or where it drops
    /// down.
    void Press(int number);
    /// The user's press on a dropped item; false where no item has that key.
    bool PressItem(std::string_view key);

    std::function<void(int number)> ButtonClick;
    std::function<void(const std::string& key)> ItemClick;

  private:
    std::vector<ToolButton> buttons_;
};

/// Panels of text, from 1; a coloured strip where it has none.
class StatusBar : public ControlKind<StatusBar> {
  public:
    StatusBar(Form& owner, std::string_view name, std::size_t panels);

    /// The first panel's text.
    std::string Text() const override { return panels_.empty() ? std::string() : panels_.front(); }
    const std::string& Panel(std::size_t number) const { return panels_.at(number - 1); }
    void SetPanel(std::size_t number, std::string text);
    std::size_t PanelCount() const { return panels_.size(); }

  private:
    std::vector<std::string> panels_;
};

/// An entry of the menu tree; "-" is a separator. `parent` is empty at the top level.
class MenuEntry : public ControlKind<MenuEntry> {
  public:
    MenuEntry(Form& owner, std::string_view name, std::string_view caption, std::string parent = {},
              ClickEvent events = {});

    const std::string& Parent() const { return parent_; }
    bool IsSeparator() const { return Caption() == "-"; }
    void Press();

    Handler Click;

  private:
    std::string parent_;
};

struct TimerEvents {
    Handler Ticked = {};
};

/// Asks to be ticked; who shows the form keeps the time.
class Timer : public ControlKind<Timer> {
  public:
    Timer(Form& owner, std::string_view name, std::chrono::milliseconds interval, TimerEvents events = {});

    std::chrono::milliseconds Interval() const { return interval_; }
    void Tick();

    Handler Ticked;

  private:
    std::chrono::milliseconds interval_;
};

struct ScrollEvents {
    Handler Change = {};
};

/// A position between 0 and a maximum.
class ScrollBar : public ControlKind<ScrollBar> {
  public:
    ScrollBar(Form& owner, std::string_view name, ScrollEvents events = {});

    int Value() const { return value_; }
    /// Held between 0 and the maximum; Change runs where the value changes.
    void SetValue(int value);
    int Maximum() const { return maximum_; }
    void SetMaximum(int maximum);

    Handler Change;

  private:
    int value_ = 0, maximum_ = 0;
};

}  // namespace terravane
