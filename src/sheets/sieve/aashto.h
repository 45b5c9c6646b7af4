/// The AASHTO classification as the sheet has it: group, group index, typical name. Its tests leave gaps, and a sample
/// that falls into one belongs to no group. Knows no control.
#pragma once

#include <string_view>

#include "sheets/sieve/limits.h"

namespace terravane {

/// Percent passing the sieves No. 10, 40 and 200.
struct AashtoSample {
    double passing10 = 0;
    double passing40 = 0;
    double passing200 = 0;
    Limits limits{};
};

/// "A-1-a" to "A-7-6"; empty for a sample of no group: liquid limits between 40 and 41, plasticity indices between 10
/// and 11, more than 35 and up to 36 percent fines, and a liquid limit of exactly 41 where it would be A-5.
std::string_view AashtoGroup(const AashtoSample& sample);

/// A whole number from 0 up; also for no group. Error 6 where a percentage is beyond 16 bits.
double GroupIndex(std::string_view group, const AashtoSample& sample);

/// "Clayey soils"; empty for "A-2-7" and for no group, which have none.
std::string_view TypicalName(std::string_view group);

}  // namespace terravane
