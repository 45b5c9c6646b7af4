/// A property tried on every sheet and material, with every hand and seed.
#pragma once

#include <gtest/gtest.h>

#include "properties/sheet_bench.h"

namespace terravane::support {

inline void PrintTo(const SheetCase& of, std::ostream* out)
{
    *out << CaseName(of);
}

class EverySheet : public testing::TestWithParam<SheetCase> {
  protected:
    /// Runs `property` on a fresh sheet for each hand and seed; a failure tells which.
    template <class Property>
    static void TryAll(Property property)
    {
        for (const Hand kind : kHands) {
            for (unsigned seed = 1; seed <= Seeds(); ++seed) {
                SCOPED_TRACE(std::string(kHandNames[static_cast<std::size_t>(kind)]) + " hand, seed " +
                             std::to_string(seed));
                RandomReadings hand(seed, kind);
                SheetBench bench(GetParam());
                property(bench, hand);
                if (HasFailure()) return;
            }
        }
    }
};

inline auto AllCases()
{
    return testing::ValuesIn(AllSheetCases());
}

inline std::string NameOf(const testing::TestParamInfo<SheetCase>& info)
{
    return CaseName(info.param);
}

}  // namespace terravane::support
