// Any text in a cell: it is read and formatted without a failure, what is no number comes back as it was, what was
// formatted is formatted to itself, and the two ways to round a cell agree.
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace {

using namespace terravane;

void Check(bool holds)
{
    if (!holds) std::abort();
}

/// The masks of the sheets' cells.
constexpr std::array<std::string_view, 8> kMasks{"#0",      "#0.0",        "#0.00",      "#0.000",
                                                 "##0.000", "##0.0#####0", "#,##0.00##", "#.00"};

/// Masks of a fixed number of places, by that number.
constexpr std::array<std::string_view, 4> kPlaces{"0", "0.0", "0.00", "0.000"};

void CheckFormatted(const std::string& text, std::string_view mask)
{
    const std::string once = Format(text, mask);
    if (!IsNumber(text)) return Check(once == text);
    Check(IsNumber(once) || once.empty() || once == ".");
    if (IsNumber(once)) Check(Format(once, mask) == once);
}

void CheckRounding(double value)
{
    for (std::size_t places = 0; places < kPlaces.size(); ++places) {
        Check(RoundedToPlaces(value, static_cast<int>(places)) == Val(Format(value, kPlaces[places])));
    }
}

void CheckPlainText(double value)
{
    const double read = Val(NumberText(value));
    Check(Val(NumberText(read)) == read);
    Check(Val(SignedNumberText(read)) == read);
}

/// Arithmetic on what was read fails with a number of its own or not at all.
void CheckArithmetic(double value)
{
    const auto attempt = [](auto call) {
        try {
            static_cast<void>(call());
        } catch (const RuntimeError& error) {
            Check(error.Number() == error::kOverflow || error.Number() == error::kDivisionByZero ||
                  error.Number() == error::kInvalidProcedureCall);
        }
    };
    attempt([&] { return Divide(value, 3); });
    attempt([&] { return Divide(3, value); });
    attempt([&] { return Log(value); });
    attempt([&] { return Int(value); });
    attempt([&] { return NumberText(ToSingle(value)); });
    attempt([&] { return ToInteger(value); });
}

void CheckTexts(const std::string& text)
{
    const std::string mended = ToUtf8(ToUtf16(text));
    Check(ToUtf8(ToUtf16(mended)) == mended);
    Check(CharacterCount(Left(text, 3)) <= 3);
    Check(Left(text, 3).size() + SkipCharacters(text, 3).size() == text.size());
    Check(Trim(Trim(text)) == Trim(text));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    const double value = Val(text);
    Check(std::isfinite(value));
    for (const std::string_view mask : kMasks) CheckFormatted(text, mask);
    CheckRounding(value);
    CheckPlainText(value);
    CheckArithmetic(value);
    CheckTexts(text);
    return 0;
}
