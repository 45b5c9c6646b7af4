#include "controls/form.h"

#include <algorithm>
#include <utility>

#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace terravane {

Form::Form(EventBoundary& boundary, std::string_view name, std::string_view caption, WindowKind window)
    : boundary_(boundary), name_(name), caption_(caption), window_(window)
{}

void Form::SetCaption(std::string caption)
{
    caption_ = std::move(caption);
    changes_.Announce();
}

const Form::Member* Form::FindMember(std::string_view name) const
{
    const auto found =
        std::ranges::find_if(members_, [name](const Member& member) { return SameName(member.name, name); });
    return found == members_.end() ? nullptr : &*found;
}

Control* Form::Find(std::string_view name)
{
    const Member* member = FindMember(name);
    return member ? member->control : nullptr;
}

const Control* Form::Find(std::string_view name) const
{
    const Member* member = FindMember(name);
    return member ? member->control : nullptr;
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

void Form::FailMissing(std::string_view control) const
{
    throw RuntimeError(error::kObjectRequired, "The form " + name_ + " has no such control: " + std::string(control));
}

}  // namespace terravane
