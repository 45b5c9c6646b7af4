#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "runtime/numbers.h"
#include "runtime/powers_of_ten.h"
#include "runtime/scan_number.h"

namespace terravane {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::uint64_t kLargestExact = std::uint64_t{1} << 53;  // whole numbers up to here are doubles
constexpr int kAccumulated = 18;                                 // digits that a 64-bit number always holds
constexpr long long kFarExponent = 1'000'000'000'000;            // beyond it no mantissa in memory brings one back

constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}
constexpr bool IsBlank(char c)
{
    return kBlanks.find(c) != std::string_view::npos;
}

/// Reads digits and point of a mantissa; a digit that no longer fits the accumulator only moves the exponent.
void ScanMantissa(const char*& at, const char* end, ScannedNumber& number)
{
    const char* const begin = at;
    int accumulated = 0;
    bool behindPoint = false;
    for (; at != end; ++at) {
        if (*at == '.' && !behindPoint) {
            behindPoint = true;
            continue;
        }
        if (!IsDigit(*at)) break;
        number.hasDigits = true;
        if (accumulated < kAccumulated) {
            number.significand = number.significand * 10 + static_cast<std::uint64_t>(*at - '0');
            accumulated += number.significand != 0 ? 1 : 0;
            number.exponent -= behindPoint ? 1 : 0;
        } else {
            number.isCut = true;
            number.exponent += behindPoint ? 0 : 1;
        }
    }
    number.mantissa = std::string_view(begin, static_cast<std::size_t>(at - begin));
}

/// Reads "e2", "E+2", "D-2"; letters without a digit behind them are not an exponent and stay unread.
void ScanExponent(const char*& at, const char* end, ScannedNumber& number)
{
    if (at == end || std::string_view("eEdD").find(*at) == std::string_view::npos) return;
    const char* digits = at + 1;
    const bool isNegative = digits != end && *digits == '-';
    if (digits != end && (*digits == '-' || *digits == '+')) ++digits;
    if (digits == end || !IsDigit(*digits)) return;
    long long exponent = 0;
    for (; digits != end && IsDigit(*digits); ++digits) {
        exponent = std::min(exponent * 10 + (*digits - '0'), kFarExponent);
    }
    number.typedExponent = isNegative ? -exponent : exponent;
    number.exponent += number.typedExponent;
    at = digits;
}

/// A mantissa's digits in a form that the library reads, however long it was typed: no digit behind the first
/// 780 changes a double except by being there at all.
class LongMantissa {
  public:
    explicit LongMantissa(const ScannedNumber& number) : exponent_(number.typedExponent)
    {
        for (const char c : number.mantissa) Take(c);
        if (hasMore_) Keep('1');
    }

    double Value() noexcept
    {
        const long long written = std::clamp(exponent_, -100'000LL, 100'000LL);
        digits_[length_] = 'e';
        const auto end = std::to_chars(&digits_[length_ + 1], digits_.data() + digits_.size(), written).ptr;
        double value = 0;
        const auto read = std::from_chars(digits_.data(), end, value);
        if (read.ec == std::errc()) return value;
        const bool isLarge = static_cast<long long>(length_) + exponent_ > 0;
        return isLarge ? std::numeric_limits<double>::max() : 0;
    }

  private:
    static constexpr std::size_t kKept = 780;

    void Take(char c)
    {
        if (c == '.') {
            behindPoint_ = true;
        } else if (length_ == 0 && c == '0') {
            exponent_ -= behindPoint_ ? 1 : 0;
        } else if (length_ < kKept) {
            Keep(c);
            exponent_ += behindPoint_ ? 0 : 1;
        } else {
            hasMore_ = hasMore_ || c != '0';
            exponent_ += behindPoint_ ? 0 : 1;
        }
    }

    /// Every kept digit lowers the exponent by one, which digits before the point make up for.
    void Keep(char c)
    {
        digits_[length_++] = c;
        --exponent_;
    }

    std::array<char, kKept + 32> digits_;
    std::size_t length_ = 0;
    long long exponent_;
    bool behindPoint_ = false;
    bool hasMore_ = false;
};

double Magnitude(const ScannedNumber& number) noexcept
{
    if (number.significand == 0) return 0;
    if (number.isCut || number.significand > kLargestExact) return LongMantissa(number).Value();
    const auto significand = static_cast<double>(number.significand);
    if (number.exponent == 0) return significand;
    if (number.exponent < 0 && -number.exponent <= kExactPowers) {
        return significand / PowerOfTen(static_cast<int>(-number.exponent));
    }
    if (number.exponent > 0 && number.exponent <= kExactPowers) {
        return significand * PowerOfTen(static_cast<int>(number.exponent));
    }
    return LongMantissa(number).Value();
}

}  // namespace

ScannedNumber ScanNumber(std::string_view text) noexcept
{
    ScannedNumber number;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end && IsBlank(*at)) ++at;
    if (at != end && (*at == '-' || *at == '+')) number.isNegative = *at++ == '-';
    ScanMantissa(at, end, number);
    if (!number.hasDigits) return number;
    ScanExponent(at, end, number);
    while (at != end && IsBlank(*at)) ++at;
    number.isWholeText = at == end;
    return number;
}

double ValueOf(const ScannedNumber& number) noexcept
{
    const double magnitude = Magnitude(number);
    return number.isNegative && magnitude != 0 ? -magnitude : magnitude;
}

double Val(std::string_view text) noexcept
{
    return ValueOf(ScanNumber(text));
}

bool IsNumber(std::string_view text) noexcept
{
    return ScanNumber(text).isWholeText;
}

}  // namespace terravane
