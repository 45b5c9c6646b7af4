/// Numbers as the sheets read and write them: tolerant reading, masks, plain texts, and arithmetic that fails where
/// it stands. Knows no control and no unit.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace terravane {

/// The leading number of a text, 0 for an empty or non-numeric one. Leading blanks are skipped; sign, point and an
/// exponent ("1e2", "1D2") belong to the number. Never fails: what exceeds a double reads as the largest one.
double Val(std::string_view text) noexcept;

/// A value under a mask of '#', '0' and '.', as "#0.00", "##0.0#####0", "#.00".
/// The decimal value (15 significant digits of the double) is rounded half away from zero to the mask's places; a '0'
/// forces its digit and every digit between it and the point; a value that rounds to zero prints no sign.
std::string Format(double value, std::string_view mask);

/// The same for a text: formatted when all of it (outer blanks aside) is a number, else returned as it came.
std::string Format(std::string_view text, std::string_view mask);

/// What Val reads from a cell whose mask forces that many decimal places: Val(Format(value, "0.00")) for 2. Places
/// from 0 to 22; a value that is not finite reads as 0.
double RoundedToPlaces(double value, int places) noexcept;

/// Plain number-to-text: 15 significant digits for a double, 7 for a single, leading zero kept ("0.5").
std::string NumberText(double value);
std::string NumberText(float value);

/// The conversion that keeps a place for the sign: " 40", " .5", "-5.25"; no zero before the point.
std::string SignedNumberText(double value);
std::string SignedNumberText(float value);

/// Whether all of a text, outer blanks aside, is one number.
bool IsNumber(std::string_view text) noexcept;

/// a / b; 0/0 is error 6, x/0 is error 11, a result beyond the double's range error 6.
double Divide(double dividend, double divisor);

/// Natural logarithm; error 5 for zero or less.
double Log(double value);

/// The largest whole number not above the value.
double Int(double value) noexcept;

/// Rounds to single precision; error 6 outside its range.
float ToSingle(double value);

/// Rounds to 16 bits, halves to even; error 6 outside -32768 to 32767.
std::int16_t ToInteger(double value);

}  // namespace terravane
