// Any text, read as a date: a day comes out that is read again from its own short form, or error 13 does.
#include <chrono>
#include <cstdlib>
#include <string>

#include "runtime/dates.h"
#include "runtime/runtime_error.h"

namespace {

using namespace terravane;

void Check(bool holds)
{
    if (!holds) std::abort();
}

void CheckDay(Moment moment)
{
    Check(moment == std::chrono::floor<std::chrono::days>(moment));
    Check(ParseDate(ShortDate(moment)) == moment);
    Check(ParseDate(Format(moment, "yyyy-mm-dd")) == moment);
    Check(ParseDate(Format(moment, "dd mmmm yyyy")) == moment);
    Check(HoursBetween(moment, moment + std::chrono::days{1}) == 24);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
try {
    CheckDay(ParseDate({reinterpret_cast<const char*>(data), size}));
    return 0;
} catch (const RuntimeError& error) {
    Check(error.Number() == error::kTypeMismatch);
    return 0;
}
