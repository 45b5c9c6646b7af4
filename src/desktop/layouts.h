/// Every window's layout as one table. A new window is its function, in a file of its own, and its row here.
#pragma once

#include <array>
#include <string_view>

#include "desktop/layout.h"
#include "laboratory/description.h"

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

struct WindowLayout {
    std::string_view form;
    Place (*make)();
};

inline constexpr std::array kLayouts{
    WindowLayout{"frmProject", GeneralDataLayout},
    WindowLayout{"frmAbout", AboutLayout},
    WindowLayout{"frmPreferences", PreferencesLayout},
    WindowLayout{"frmCompaction", CompactionLayout},
    WindowLayout{"frmAtterberg", AtterbergLayout},
    WindowLayout{"frmSpecific", SpecificLayout},
    WindowLayout{"frmSieve", SieveLayout},
    WindowLayout{"frmCBR", CbrLayout},
    WindowLayout{"frmSummary", SummaryLayout},
    WindowLayout{"frmDensity", DensityLayout},
};

/// A layout with the boxes of the sheet that it names nowhere: they stand in the row of Calculate, before all else.
Place WithOtherBoxes(Place layout, const laboratory::Sheet& sheet);

/// The layout of a form's window; error 424 for a form that has none.
const Place& LayoutOf(std::string_view form);

}  // namespace terravane
