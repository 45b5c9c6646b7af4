#include "controls/form.h"

#include <algorithm>

#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

Form::Form(EventBoundary& boundary, std::string name, std::string caption)
    : boundary_(boundary), name_(std::move(name)), caption_(std::move(caption))
{}

void Form::SetCaption(std::string caption)
{
    caption_ = std::move(caption);
    changes_.Announce();
}

Control* Form::Find(std::string_view name) const
{
    const auto found =
        std::ranges::find_if(controls_, [name](const Control* control) { return SameName(control->Name(), name); });
    return found == controls_.end() ? nullptr : *found;
}

Subscription Form::Show(std::function<void()> view)
{
    view();
    return changes_.Listen(std::move(view));
}

void Form::RunEvent(std::string_view event, const Handler& handler)
{
    boundary_.Run(name_ + "." + std::string(event), handler);
}

void Form::MoveFocus(Control& control)
{
    if (active_ == &control) return;
    Control* left = active_;
    active_ = &control;
    if (left) left->Raise("LostFocus", left->LostFocus);
    if (active_ == &control) control.Raise("GotFocus", control.GotFocus);
    changes_.Announce();
}

void Form::FailMissing(std::string_view name) const
{
    throw RuntimeError(error::kObjectRequired, "The form " + name_ + " has no such control: " + std::string(name));
}

}  // namespace terravane
