/// The tests as the toolbar and the overall results show them, for tables that are worked out from them when the
/// program is compiled. A new test is entered here; everyone else asks tests.h.
#pragma once

#include <array>

#include "laboratory/atterberg.h"
#include "laboratory/bearing_ratio.h"
#include "laboratory/compaction.h"
#include "laboratory/field_density.h"
#include "laboratory/sieve_analysis.h"
#include "laboratory/specific_gravity.h"

namespace terravane::laboratory {

inline constexpr std::array kTests{&kAtterberg,          &kSieveAnalysis, &kSpecificGravity, &kStandardCompaction,
                                   &kModifiedCompaction, &kBearingRatio,  &kFieldDensity};

}  // namespace terravane::laboratory
