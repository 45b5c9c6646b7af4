#include "batch/progress.h"

#include <cmath>

#include "runtime/numbers.h"

namespace terravane {

namespace {

constexpr std::size_t kWidth = 20;  // characters of the bar

std::string TwoDigits(long number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// "0:31", "2:05:00".
std::string ClockText(double seconds)
{
    const long all = std::lround(std::ceil(seconds));
    const long hours = all / 3600, minutes = all / 60 % 60;
    const std::string end = ":" + TwoDigits(all % 60);
    return hours == 0 ? std::to_string(minutes) + end : std::to_string(hours) + ":" + TwoDigits(minutes) + end;
}

}  // namespace

std::string Progress::Bar(Seconds elapsed) const
{
    const double share = total_ == 0 ? 1 : static_cast<double>(done_) / static_cast<double>(total_);
    const auto filled = static_cast<std::size_t>(share * kWidth);
    const std::string total = std::to_string(total_), done = std::to_string(done_);
    std::string bar = "[" + std::string(filled, '#') + std::string(kWidth - filled, '-') + "]  " +
                      std::string(total.size() - done.size(), ' ') + done + "/" + total + "  " +
                      std::to_string(static_cast<int>(share * 100)) + " %";
    if (worked_ == 0 || elapsed.count() <= 0) return bar;
    const double rate = static_cast<double>(worked_) / elapsed.count();
    return bar + "  " + Format(rate, "#0.0") + "/s  " + ClockText(static_cast<double>(total_ - done_) / rate) + " left";
}

}  // namespace terravane
