/// Numbers for tests that hold for any value: the same ones on every machine and at every run.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <random>

namespace terravane {

/// How many values a test tries: as many as it says, or TERRAVANE_ROUNDS times as many where that is set.
inline int Rounds(int everyDay)
{
    const char* const times = std::getenv("TERRAVANE_ROUNDS");
    return times ? everyDay * std::atoi(times) : everyDay;
}

class RandomValues {
  public:
    explicit RandomValues(std::uint64_t seed) : engine_(seed) {}

    std::uint64_t Bits() { return engine_(); }

    /// 0 to limit - 1.
    std::uint64_t Below(std::uint64_t limit) { return engine_() % limit; }

    /// Both signs, from 1e-9 to 1e12, each power of ten as likely as any other.
    double OfAnySize()
    {
        const double mantissa = 1 + 9 * (static_cast<double>(Bits() >> 11) * 0x1p-53);
        const double sign = Below(2) == 0 ? 1 : -1;
        return sign * mantissa * std::pow(10.0, static_cast<double>(Below(21)) - 9);
    }

    /// As a laboratory types it: a whole number over a power of ten, often halfway between two shown figures.
    double Typed()
    {
        const double units = static_cast<double>(Below(2'000'000)) - 1'000'000;
        return units / std::pow(10.0, static_cast<double>(Below(7)));
    }

  private:
    std::mt19937_64 engine_;
};

}  // namespace terravane
