/// The number at the head of a text, as read digit by digit and not yet made a double. Private to the
/// runtime.
#pragma once

#include <cstdint>
#include <string_view>

namespace terravane {

/// The value is ± significand × 10^exponent, less the digits that did not fit where isCut is set: those stand
/// in mantissa, digits and point as typed, to be taken times 10^typedExponent.
struct ScannedNumber {
    std::uint64_t significand = 0;
    long long exponent = 0;
    long long typedExponent = 0;
    std::string_view mantissa;
    bool isNegative = false;
    bool hasDigits = false;
    bool isCut = false;
    bool isWholeText = false;  // nothing but blanks around the number
};

ScannedNumber ScanNumber(std::string_view text) noexcept;

/// The nearest double; the largest one for what exceeds it; never a negative zero.
double ValueOf(const ScannedNumber& number) noexcept;

}  // namespace terravane
