/// Every window's layout. A new window is one more function here, in a file of its own.
#pragma once

#include <map>
#include <string_view>

#include "desktop/layout.h"

namespace terravane {

Place CompactionLayout();
Place AtterbergLayout();
Place SpecificLayout();
Place SieveLayout();
Place CbrLayout();
Place DensityLayout();
Place SummaryLayout();
Place GeneralDataLayout();
Place AboutLayout();
Place PreferencesLayout();

/// By the name of the form.
std::map<std::string_view, Place> AllLayouts();

/// The layout of a form's window; error 424 for a form that has none.
const Place& LayoutOf(std::string_view form);

}  // namespace terravane
