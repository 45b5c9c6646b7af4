/// The description of a sheet without a method, for sheets that stand in for the real ones.
#pragma once

#include <map>
#include <string>

#include "laboratory/description.h"

namespace terravane::support {

/// One tab, nothing typed, nothing kept, under the name of any form. It stays as long as the program runs.
inline const laboratory::Sheet& BareDescription(const std::string& form)
{
    static constexpr std::string_view kTabs[]{"Data"};
    static std::map<std::string, laboratory::Sheet> made;
    const auto [entry, isNew] = made.try_emplace(form);
    if (isNew) entry->second = {.form = entry->first, .caption = "Sheet", .tabs = kTabs};
    return entry->second;
}

}  // namespace terravane::support
