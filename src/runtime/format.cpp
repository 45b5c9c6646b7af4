#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "runtime/numbers.h"
#include "runtime/powers_of_ten.h"
#include "runtime/scan_number.h"

namespace terravane {
namespace {

constexpr int kDigits = 15;  // significant decimal digits of a double that a mask sees

/// What a mask asks for: digits are forced from the leftmost '0' to the point and from the point to the
/// rightmost.
struct Mask {
    int forcedWhole = 0;
    int forcedPlaces = 0;
    int places = 0;
    bool hasPoint = false;
};

Mask ReadMask(std::string_view text)
{
    Mask mask;
    for (const char c : text) {
        if (c == '.') {
            mask.hasPoint = true;
        } else if (c != '0' && c != '#') {
            continue;
        } else if (mask.hasPoint) {
            ++mask.places;
            if (c == '0') mask.forcedPlaces = mask.places;
        } else if (c == '0' || mask.forcedWhole > 0) {
            ++mask.forcedWhole;
        }
    }
    return mask;
}

constexpr double kScaledLimit = 1e13;  // scaled values below have a representable half, with digits to spare

/// |value| × 10^places rounded by the rule of Format, where plain double arithmetic is sure of it; else a
/// negative number. Scaling errs by two units of 2^-53 at most, and taking 15 digits moves a value by 5e-16
/// to 5e-15 of itself. So a scaled value nearer to a half than the first bound has exactly that half as its
/// 15 digits, and one farther than the second bound lies on the same side of it with 15 digits as with all.
std::int64_t ScaledSurely(double magnitude, int places)
{
    constexpr double kSurelyHalf = 2.5e-16;
    constexpr double kSurelyBeside = 6e-15;
    if (places > kExactPowers) return -1;
    const double scaled = magnitude * PowerOfTen(places);
    if (!(scaled < kScaledLimit)) return -1;
    const auto whole = static_cast<std::int64_t>(scaled);
    const double beyondHalf = (scaled - static_cast<double>(whole)) - 0.5;
    if (beyondHalf > kSurelyBeside * scaled) return whole + 1;
    if (beyondHalf < -kSurelyBeside * scaled) return whole;
    return std::abs(beyondHalf) <= kSurelyHalf * scaled ? whole + 1 : -1;
}

/// Adds one to the last of a row of decimal digits.
void Increment(std::string& digits)
{
    auto at = digits.rbegin();
    for (; at != digits.rend() && *at == '9'; ++at) *at = '0';
    if (at != digits.rend()) {
        ++*at;
    } else {
        digits.insert(digits.begin(), '1');
    }
}

/// The digits of |value| × 10^places, rounded by the rule of Format, without leading zeros; any size of
/// value.
std::string ScaledDigits(double magnitude, int places)
{
    std::array<char, 32> text;  // d.dddddddddddddde±xxx
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific, kDigits - 1)
            .ptr;
    std::string digits(1, text[0]);
    digits.append(&text[2], kDigits - 1);
    const bool isSmall = text[kDigits + 2] == '-';
    int exponent = 0;
    std::from_chars(&text[kDigits + 3], end, exponent);

    const int kept = (isSmall ? -exponent : exponent) + 1 + places;
    if (kept < 0 || magnitude == 0) return {};
    const auto length = static_cast<std::size_t>(kept);
    const bool roundsUp = kept < kDigits && digits[length] >= '5';
    digits.resize(length, '0');
    if (roundsUp) Increment(digits);
    return digits;
}

std::size_t Size(int count)
{
    return static_cast<std::size_t>(count);
}

/// Sets sign and point among the digits of a scaled value: blanks of the mask filled, optional zeros dropped.
std::string WrittenByMask(bool isNegative, std::string_view digits, const Mask& mask)
{
    const std::size_t behind = std::min(digits.size(), Size(mask.places));
    const std::string_view whole = digits.substr(0, digits.size() - behind);
    const std::string_view fraction = digits.substr(digits.size() - behind);

    std::string text;
    if (isNegative && !digits.empty()) text.push_back('-');
    if (whole.size() < Size(mask.forcedWhole)) text.append(Size(mask.forcedWhole) - whole.size(), '0');
    text.append(whole);
    if (!mask.hasPoint) return text;
    text.push_back('.');
    text.append(Size(mask.places) - behind, '0');
    text.append(fraction);
    for (int place = mask.places; place > mask.forcedPlaces && text.back() == '0'; --place) text.pop_back();
    return text;
}

std::string FormatUnder(const Mask& mask, double value)
{
    if (!std::isfinite(value)) return NumberText(value);
    const double magnitude = std::abs(value);
    const std::int64_t scaled = ScaledSurely(magnitude, mask.places);
    if (scaled < 0) return WrittenByMask(value < 0, ScaledDigits(magnitude, mask.places), mask);
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), scaled).ptr;
    const auto length = scaled == 0 ? 0 : static_cast<std::size_t>(end - digits.data());
    return WrittenByMask(value < 0, {digits.data(), length}, mask);
}

}  // namespace

std::string Format(double value, std::string_view mask)
{
    return FormatUnder(ReadMask(mask), value);
}

std::string Format(std::string_view text, std::string_view mask)
{
    const ScannedNumber number = ScanNumber(text);
    return number.isWholeText ? FormatUnder(ReadMask(mask), ValueOf(number)) : std::string(text);
}

double RoundedToPlaces(double value, int places) noexcept
{
    if (!std::isfinite(value)) return 0;
    const std::int64_t scaled = ScaledSurely(std::abs(value), places);
    if (scaled < 0) return Val(FormatUnder({1, places, places, true}, value));
    if (scaled == 0) return 0;
    const double rounded = static_cast<double>(scaled) / PowerOfTen(places);
    return value < 0 ? -rounded : rounded;
}

}  // namespace terravane
