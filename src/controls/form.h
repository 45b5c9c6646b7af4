/// A form without a window: controls as members, handlers as members, everything findable by name.
#pragma once

#include <functional>
#include <ranges>
#include <string>
#include <string_view>
#include <vector>

#include "controls/changes.h"
#include "controls/subscription.h"

namespace terravane {

class Control;

/// A handler of an event of one control, given by the form that owns the control.
using Handler = std::function<void()>;

/// The one place where a failing command is caught. Program implements it; a test may use a plain one.
class EventBoundary {
  public:
    virtual ~EventBoundary() = default;

    /// Runs a handler. The outermost call catches what it throws, shows it and leaves the form as it stands;
    /// a call from inside a running handler lets it through, since a command that fails, fails as a whole.
    virtual void Run(std::string_view event, const std::function<void()>& handler) = 0;
};

/// What a form is shown as. Which window that is, is the desktop's.
enum class WindowKind {
    Frame,    // the main window, with the menu and the area of the sheets
    Sheet,    // a test sheet in that area
    Dialog,   // a window of its own above the frame
    Preview,  // pages of a report
    Splash    // the program's name while it starts
};

class Form {
  public:
    /// name  of the form in code, script and file, "frmCompaction"
    Form(EventBoundary& boundary, std::string_view name, std::string_view caption,
         WindowKind window = WindowKind::Dialog);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    WindowKind Window() const { return window_; }

    /// Twips on the screen; only forms that place themselves set them.
    double Left = 0, Top = 0, Width = 0, Height = 0;

    /// The form's own events, run by whoever loads, shows and unloads forms.
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}

    /// Whether something that was typed here would be lost if the form closed now; Esc closes it only where nothing
    /// would.
    virtual bool HoldsUnkeptTexts() const { return false; }

    /// The control of that name, without regard to case; none: nullptr.
    Control* Find(std::string_view name);
    const Control* Find(std::string_view name) const;
    /// The same as a control of kind T; error 424 names form and control where there is none of that kind.
    template <class T>
    T& Get(std::string_view name);
    template <class T>
    const T& Get(std::string_view name) const;

    /// In order of declaration.
    auto Controls()
    {
        return std::views::transform(members_, [](const Member& member) { return member.control; });
    }
    auto Controls() const
    {
        return std::views::transform(members_, [](const Member& member) -> const Control* { return member.control; });
    }

    Control* ActiveControl() { return active_; }
    const Control* ActiveControl() const { return active_; }

    /// The cell that a handler addressed last, to read or to write; no grid where there was none since ForgetAddressed.
    /// Where a command failed it tells at which reading.
    struct AddressedCell {
        const Control* grid = nullptr;
        int row = 0, column = 0;
    };
    const AddressedCell& LastAddressed() const { return addressed_; }
    void ForgetAddressed() { addressed_ = {}; }

    /// From here on the listener is told of every change of the form's texts, until it is taken off; it outlives that.
    void ListenToTexts(ControlListener& listener) { textListeners_.push_back(&listener); }
    void StopListening(const ControlListener& listener) { std::erase(textListeners_, &listener); }
    bool HasTextListeners() const { return !textListeners_.empty(); }

    /// Runs `view` after a change of the caption or of the control that has the focus.
    Subscription Show(std::function<void()> view);

    /// Runs a handler of this form inside the event boundary; the event is named "form.control_Event" in
    /// errors.
    void RunEvent(std::string_view event, const Handler& handler);

    /// Error 424 for a control that is not there, or is of another kind than it should be.
    [[noreturn]] void FailMissing(std::string_view control) const;

  private:
    friend class Control;
    friend class TextGrid;  // tells what was addressed
    struct Member {
        std::string_view name;  // the control's own
        Control* control;
    };
    const Member* FindMember(std::string_view name) const;

    EventBoundary& boundary_;
    std::string name_, caption_;
    WindowKind window_;
    std::vector<Member> members_;
    Control* active_ = nullptr;
    AddressedCell addressed_;
    std::vector<ControlListener*> textListeners_;
    Announcement changes_;
};

template <class T>
T& Form::Get(std::string_view name)
{
    if (auto* control = dynamic_cast<T*>(Find(name))) return *control;
    FailMissing(name);
}

template <class T>
const T& Form::Get(std::string_view name) const
{
    if (const auto* control = dynamic_cast<const T*>(Find(name))) return *control;
    FailMissing(name);
}

}  // namespace terravane
