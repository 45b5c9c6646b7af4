/// Figures as notes say them.
#pragma once

#include <string>

#include "runtime/numbers.h"

namespace terravane::notes {

inline std::string Whole(double value)
{
    return Format(value, "#0");
}

inline std::string Tenths(double value)
{
    return Format(value, "#0.0");
}

inline std::string Hundredths(double value)
{
    return Format(value, "#0.00");
}

/// With as many decimals as it has: a limit, or a reading as it was typed.
inline std::string Plain(double value)
{
    return NumberText(value);
}

}  // namespace terravane::notes
