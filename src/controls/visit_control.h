/// Controls by their kinds. Who includes this includes the kinds that it treats.
#pragma once

#include <concepts>
#include <type_traits>
#include <variant>
#include <vector>

#include "controls/control.h"
#include "controls/form.h"

namespace terravane {

/// Calls the visitor with the control as what it is; it must take every kind.
template <class Visitor, std::derived_from<Control> AControl>
decltype(auto) VisitControl(Visitor&& visitor, AControl& control)
{
    return std::visit([&visitor](auto* kind) -> decltype(auto) { return visitor(*kind); }, control.Kind());
}

/// The controls of one kind, in order of declaration.
template <class Kind>
std::vector<Kind*> ControlsOf(Form& form)
{
    std::vector<Kind*> found;
    for (Control* control : form.Controls()) {
        const AnyControl any = control->Kind();
        if (const auto* kind = std::get_if<Kind*>(&any)) found.push_back(*kind);
    }
    return found;
}

}  // namespace terravane
