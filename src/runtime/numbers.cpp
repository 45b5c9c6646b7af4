#include "runtime/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "runtime/elementary.h"
#include "runtime/runtime_error.h"

namespace terravane {
namespace {

constexpr int kDoubleDigits = 15;
constexpr int kSingleDigits = 7;

template <typename Number>
std::string PlainText(Number value, int digits)
{
    if (value == 0) return "0";  // also the negative zero
    std::array<char, 40> text;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, digits).ptr;
    std::replace(text.data(), end, 'e', 'E');
    return {text.data(), end};
}

std::string WithSignPlace(std::string text)
{
    const bool isNegative = text.starts_with('-');
    const std::size_t sign = isNegative ? 1 : 0;
    if (std::string_view(text).substr(sign).starts_with("0.")) text.erase(sign, 1);
    return isNegative ? text : " " + text;
}

}  // namespace

std::string NumberText(double value)
{
    return PlainText(value, kDoubleDigits);
}

std::string NumberText(float value)
{
    return PlainText(value, kSingleDigits);
}

std::string SignedNumberText(double value)
{
    return WithSignPlace(NumberText(value));
}

std::string SignedNumberText(float value)
{
    return WithSignPlace(NumberText(value));
}

double Divide(double dividend, double divisor)
{
    if (divisor == 0) throw RuntimeError(dividend == 0 ? error::kOverflow : error::kDivisionByZero);
    const double quotient = dividend / divisor;
    if (!std::isfinite(quotient)) throw RuntimeError(error::kOverflow);
    return quotient;
}

double Log(double value)
{
    if (!(value > 0)) throw RuntimeError(error::kInvalidProcedureCall);
    return NaturalLogarithm(value);
}

double Int(double value) noexcept
{
    return std::floor(value);
}

float ToSingle(double value)
{
    if (!(std::abs(value) <= std::numeric_limits<float>::max())) throw RuntimeError(error::kOverflow);
    return static_cast<float>(value);
}

std::int16_t ToInteger(double value)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const double rounded = std::nearbyint(value);
    if (!(rounded >= Limits::min() && rounded <= Limits::max())) throw RuntimeError(error::kOverflow);
    return static_cast<std::int16_t>(rounded);
}

}  // namespace terravane
