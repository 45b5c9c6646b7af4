/// A control's properties by their names, for scripts and tests.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "controls/control.h"

namespace terravane {

using PropertyValue = std::variant<bool, int, std::string>;

/// "Enabled", "Visible", "Value", "Locked", "Caption", "BackColor", "ForeColor" ("#RRGGBB", empty where the
/// platform's own holds), "ListCount", "Rows", "Cols", "Tab", and, with an index, "TabEnabled" and "List".
/// Names without regard to case. Nothing where that kind of control has no such property; error 9 for an
/// index outside.
std::optional<PropertyValue> ReadProperty(const Control& control, std::string_view property, int index = 0);

}  // namespace terravane
