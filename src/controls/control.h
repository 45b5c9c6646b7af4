/// A control without a window: text and state that handlers read and write, events that a view, a script or a
/// test sets off. Knows no project, no report and no toolkit.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "controls/changes.h"
#include "controls/control_kinds.h"
#include "controls/form.h"
#include "controls/subscription.h"
#include "drawing/display_list.h"

namespace terravane {

/// The platform's own colours, as forms give them to controls. What a view shows is its palette's: light or dark.
inline constexpr Colour kWindowColour{255, 255, 255}, kButtonFace{240, 240, 240};

/// What the mouse looks like over a control.
enum class Pointer { Arrow, Hand };

/// The keys that handlers know; what a key types is the view's.
enum class Key { Enter, Esc, Up, Down, Left, Right, Tab };

/// What an event of the keyboard runs. True where it took the key, so that it does nothing else.
using KeyHandler = std::function<bool(Key)>;

/// The one event of many kinds.
struct ClickEvent {
    Handler Click = {};
};

/// Name and caption of a control that is described elsewhere: made from anything that tells both.
struct Naming {
    std::string_view control, caption;

    template <class Described>
    requires requires(const Described& of)
    {
        std::string_view(of.control);
        std::string_view(of.caption);
    }
    constexpr Naming(const Described& of) : control(of.control), caption(of.caption) {}
};

/// A control is a member of its form, found by handlers as that member and by everyone else by its name. It
/// registers itself with the form and lives exactly as long. The handlers of its events are given where it is declared:
/// `CommandButton cmdPlot{*this, "cmdPlot", "Plot Graph", {.Click = [this] { cmdPlot_Click(); }}};`
class Control {
  public:
    Control(Form& owner, std::string_view name, std::string_view caption = {});
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Name() const { return name_; }
    Form& Owner() { return owner_; }
    const Form& Owner() const { return owner_; }

    /// The control as what it is.
    virtual AnyControl Kind() = 0;
    virtual AnyConstControl Kind() const = 0;

    /// What the control shows as its text: a box's content, a button's or a label's caption.
    virtual std::string Text() const { return caption_; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string toolTip);

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);

    /// Empty where the platform's own colour holds.
    std::optional<Colour> BackColor() const { return backColour_; }
    void SetBackColor(std::optional<Colour> colour);
    std::optional<Colour> ForeColor() const { return foreColour_; }
    void SetForeColor(std::optional<Colour> colour);
    Pointer MousePointer() const { return pointer_; }
    void SetMousePointer(Pointer pointer);

    /// Gives the control the form's focus: the control that had it is told first, then this one. A view calls
    /// it when the user enters the control; nothing happens where it has the focus already.
    void SetFocus();
    bool HasFocus() const;
    /// Bumped each time a handler wants the text selected whole; a view compares it with the last it saw.
    int SelectAllRequests() const { return selectAllRequests_; }
    void SelectAll();

    /// A key pressed in the control. True where a handler took it, so that it does nothing else.
    virtual bool PressKey(Key key);

    /// Runs `view` now and after every change of what is to be seen.
    Subscription Show(std::function<void()> view);
    /// Tells the views; for state that a derived control keeps.
    void Changed() { changes_.Announce(); }

    /// Events; empty ones do nothing.
    Handler GotFocus;
    Handler LostFocus;
    Handler MouseMove;   // the mouse comes over the control
    Handler MouseLeave;  // and goes on over the form
    KeyHandler KeyPress;

  protected:
    /// Runs a handler inside the program's event boundary under the name "control_Event".
    void Raise(std::string_view event, const Handler& handler);
    /// The same for what a person does to the control: the change of its own state, and then the event.
    void RaiseWith(std::string_view event, const Handler& change, const Handler& handler);

    /// Puts another text in the place of one that the control holds, and tells listeners and views; nothing happens
    /// where they are alike.
    void Replace(std::string& text, std::string_view after, int row = -1, int column = -1);
    /// Tells the form's listeners.
    void TellText(std::string_view before, std::string_view after, int row = -1, int column = -1);
    void TellRows(int before, int after);

  private:
    Form& owner_;
    std::string name_, caption_, toolTip_;
    bool enabled_ = true, visible_ = true;
    std::optional<Colour> backColour_, foreColour_;
    Pointer pointer_ = Pointer::Arrow;
    int selectAllRequests_ = 0;
    Announcement changes_;
};

/// What a kind of control derives from: `class Label : public ControlKind<Label>`.
/// Base  Control, or what several kinds have in common
template <class Self, class Base = Control>
class ControlKind : public Base {
  public:
    using Base::Base;

    AnyControl Kind() override { return static_cast<Self*>(this); }
    AnyConstControl Kind() const override { return static_cast<const Self*>(this); }
};

}  // namespace terravane
